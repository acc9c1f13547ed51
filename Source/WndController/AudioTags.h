// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Foundation/Dictionary.h"

/// How the columns of the library's table read an audio record entry.
namespace AudioTags {

/// The entry key that a column's identifier stands for; an identifier that is no column's is a key already.
[[nodiscard]] QString audioTagKeyTranslate(const QString& identifier);

/// The value that a column shows of an entry: the stored object, but for the length, which reads "hh:mm:ss".
[[nodiscard]] QVariant audioTag(const Dictionary& entry, const QString& objectForKey);

/// The file's length as "hh:mm:ss", read from the file.
[[nodiscard]] QString audioLibraryNodeTimeString(const QString& path);

} // namespace AudioTags
