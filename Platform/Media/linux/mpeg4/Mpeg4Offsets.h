// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Media/linux/mpeg4/Mpeg4Boxes.h"

#include <QByteArray>

// Where an MPEG-4 file says at which place its audio is. All of it changes when audio moves.

namespace Platform {

/// Adds @p delta to the chunk offsets in @p index, a whole "moov", that point to @p from or behind it. False when the
/// index is damaged or an offset has no room for its new value.
[[nodiscard]] bool moveChunkOffsets(QByteArray& index, std::int64_t from, std::int64_t delta);

/// Corrects what @p box, a box of the outermost level, says of places from @p from on, in a file in which it stands
/// @p delta bytes further than @p box says. @return 0 or an errno
[[nodiscard]] int moveFragment(int fd, Mpeg4Box box, std::int64_t from, std::int64_t delta);

} // namespace Platform
