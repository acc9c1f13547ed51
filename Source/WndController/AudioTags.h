// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Foundation/Dictionary.h"

/// Maps the columns of the library's table to keys and values of an entry. For a new column, add its key and value here
/// and then extend AudioTableModel.
namespace AudioTags {

/// The entry key of a column's identifier; any other text is a key already.
[[nodiscard]] QString audioTagKeyTranslate(const QString& identifier);

/// The value that a column shows: the stored object, but the length as "hh:mm:ss".
[[nodiscard]] QVariant audioTag(const Dictionary& entry, const QString& objectForKey);

/// The file's length as "hh:mm:ss", read from the file.
[[nodiscard]] QString audioLibraryNodeTimeString(const QString& path);

} // namespace AudioTags
