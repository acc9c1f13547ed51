// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Foundation/Dictionary.h"
#include "Platform/Foundation/Result.h"

#include <QByteArray>

/// A recording's tags, read from its file. Any thread, blocking.
namespace FileTags {

/// The five text tags under the keys of an audio record entry. For other file types only a title is returned, made from
/// the file name.
[[nodiscard]] Dictionary texts(const QString& path);

/// The cover as stored in the file. Empty when there is none, and for the default cover.
[[nodiscard]] QByteArray artwork(const QString& path);

/// Writes artwork() to a new file in the temporary folder, so that another file can get the same cover, byte for byte.
/// @return its path, which the caller must remove; empty when there is no cover or no space
[[nodiscard]] QString artworkFile(const QString& path);

/// Whether the file has the five text tags of an entry; an error when the file cannot be read.
Platform::Result<bool> agree(const QString& path, const Dictionary& entry);

} // namespace FileTags
