// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Disc/DiscRecording.h"

#include <QByteArray>

namespace Platform {

/// The cue sheet of an image: the table of contents, with the titles and artists of the tracks as CD-TEXT. @p binName
/// is the data file's name without a folder; it must not contain a quotation mark. The pre-gap of a track is INDEX 00,
/// its audio INDEX 01, both in the data file.
[[nodiscard]] QByteArray cueSheet(const DRLayout& layout, const QString& binName);

/// A number of sectors as "mm:ss:ff".
[[nodiscard]] QByteArray msf(std::int64_t sectors);

} // namespace Platform
