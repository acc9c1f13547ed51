// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Media/linux/mpeg4/Mpeg4Boxes.h"

#include <QByteArray>

// The places in an MPEG-4 file that store offsets of audio. All of them change when audio moves.

namespace Platform {

/// Adds @p delta to the chunk offsets in @p index, a complete "moov", that point to @p from or beyond. False when the
/// index is damaged or an offset has no room for its new value.
[[nodiscard]] bool moveChunkOffsets(QByteArray& index, std::int64_t from, std::int64_t delta);

/// Corrects the offsets from @p from on in @p box, a top-level box, after the box was copied to a place @p delta bytes
/// further back in the file. @return 0 or an errno
[[nodiscard]] int moveFragment(int fd, Mpeg4Box box, std::int64_t from, std::int64_t delta);

} // namespace Platform
