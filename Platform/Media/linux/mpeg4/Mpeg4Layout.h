// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Media/linux/mpeg4/Mpeg4Boxes.h"

namespace Platform {

/// The outermost boxes of an MPEG-4 file. Of several indexes ("moov") the first one counts, for every reader; later
/// ones, also parts of one, are what an interrupted save left.
struct Mpeg4Layout {
    std::vector<Mpeg4Box> boxes;
    std::size_t index = 0;   ///< of the "moov" that counts, with its tree
    std::int64_t end = 0;    ///< of the last box that is needed
    bool complete = true;    ///< false: the file ends within its last box
    bool fragmented = false; ///< the audio is described in "moof" boxes too

    [[nodiscard]] const Mpeg4Box& moov() const { return boxes[index]; }
};

/// Nothing, with @p why, when the file is no MPEG-4 file with sound and a whole index.
[[nodiscard]] std::optional<Mpeg4Layout> readLayout(const ByteSource& file, QString& why);

/// Whether a box holds nothing, as "free" says, or a type of zeros, which a power cut can leave.
[[nodiscard]] bool isFree(const Mpeg4Box& box);

} // namespace Platform
