// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Media/linux/mpeg4/Mpeg4Boxes.h"

namespace Platform {

/// The top-level boxes of an MPEG-4 file. Every reader uses the first of several indexes ("moov"); later ones, complete
/// or not, are left by interrupted saves.
struct Mpeg4Layout {
    std::vector<Mpeg4Box> boxes;
    std::size_t index = 0;   ///< position in boxes of the "moov" in use, whose tree is read
    std::int64_t end = 0;    ///< end of the last box that is needed
    bool complete = true;    ///< false: the file ends within its last box
    bool fragmented = false; ///< "moof" boxes describe audio, too

    [[nodiscard]] const Mpeg4Box& moov() const { return boxes[index]; }
};

/// Nothing, with @p why, when the file is not an MPEG-4 file with audio and a complete index.
[[nodiscard]] std::optional<Mpeg4Layout> readLayout(const ByteSource& file, QString& why);

/// Whether a box is empty: of type "free", or of a type of zeros, which a power cut can leave.
[[nodiscard]] bool isFree(const Mpeg4Box& box);

} // namespace Platform
