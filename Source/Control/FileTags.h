// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Foundation/Dictionary.h"

#include <QByteArray>

/// What a recording's file says of itself, read from the file. Any thread, blocking.
namespace FileTags {

/// The five text tags by the keys of an audio record entry. A file of another kind has none that are known here: its
/// title is then made of its name.
[[nodiscard]] Dictionary texts(const QString& path);

/// The cover as it stands in the file. Empty when there is none, and for the default one, which stands for none.
[[nodiscard]] QByteArray artwork(const QString& path);

/// Writes artwork() to a new file in the temporary folder, so that another file can be given the same cover, byte for
/// byte. @return its path, for the caller to remove; empty when there is no cover or no room
[[nodiscard]] QString artworkFile(const QString& path);

/// Whether the file has the five text tags of an entry. @p why tells a person when the file cannot be read.
[[nodiscard]] bool agree(const QString& path, const Dictionary& entry, QString* why = nullptr);

} // namespace FileTags
