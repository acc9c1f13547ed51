// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Foundation/Dictionary.h"

/// How the columns of the library's table read an entry. A new column starts here: key and value; then AudioTableModel.
namespace AudioTags {

/// The entry key of a column's identifier; any other text is a key already.
[[nodiscard]] QString audioTagKeyTranslate(const QString& identifier);

/// The value that a column shows: the stored object, but the length as "hh:mm:ss".
[[nodiscard]] QVariant audioTag(const Dictionary& entry, const QString& objectForKey);

/// The file's length as "hh:mm:ss", read from the file.
[[nodiscard]] QString audioLibraryNodeTimeString(const QString& path);

} // namespace AudioTags
