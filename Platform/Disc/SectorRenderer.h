// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Disc/CDFormat.h"
#include "Platform/Media/ExtAudioFile.h"

#include <array>
#include <cstddef>
#include <memory>
#include <span>
#include <vector>

namespace Platform {

/// Turns float samples into 16-bit ones. Where bits are taken away it adds triangular noise of two steps' width, which
/// makes the rounding error independent of the sound. The gain stays as it is; what is beyond full scale is clipped.
class Dither {
public:
    explicit Dither(std::uint32_t seed);
    /// Interleaves two channels. @p exact: the samples are 16-bit values already, nothing is added.
    void interleave(const float* left, const float* right, std::int16_t* out, std::size_t frames, bool exact);

private:
    [[nodiscard]] std::uint32_t next(std::size_t lane);

    static constexpr std::size_t kLanes = 8;
    std::array<std::uint32_t, kLanes> state_;
};

/// Reads one audio file as sectors of an audio CD. One thread.
class SectorRenderer {
public:
    /// @p reader is set to 44,100 Hz and two channels. @p frames: how many frames the file has at that rate; the rest
    /// of its last sector is silence. @p exact: no bits are taken away.
    SectorRenderer(std::unique_ptr<ExtAudioFileReader> reader, QString path, std::int64_t frames, bool exact);

    /// The next render() begins with this sector of the track. @return false when the file cannot be read there
    [[nodiscard]] bool seek(std::int64_t sector);
    /// Fills @p out, whole sectors, with what follows; behind the end of the file with silence.
    /// @return what went wrong: the file is damaged, or shorter than it was when it was measured
    [[nodiscard]] MediaError render(std::span<std::byte> out);

private:
    std::unique_ptr<ExtAudioFileReader> reader_;
    QString path_;
    std::int64_t frames_;
    std::int64_t at_ = 0;
    bool exact_;
    Dither dither_{1};
    std::array<std::vector<float>, 2> rows_;
    std::vector<std::int16_t> samples_;
};

} // namespace Platform
