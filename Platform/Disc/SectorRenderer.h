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

/// Turns float samples into 16-bit samples. Where the resolution is reduced it adds triangular noise two steps wide,
/// which makes the rounding error independent of the audio. The gain does not change; values beyond full scale are
/// clipped.
class Dither {
public:
    explicit Dither(std::uint32_t seed);
    /// Interleaves two channels. @p exact: the samples are 16-bit values already, so no noise is added.
    void interleave(const float* left, const float* right, std::int16_t* out, std::size_t frames, bool exact);

private:
    [[nodiscard]] std::uint32_t next(std::size_t lane);

    static constexpr std::size_t kLanes = 8;
    std::array<std::uint32_t, kLanes> state_;
};

/// Reads one audio file as sectors of an audio CD. One thread.
class SectorRenderer {
public:
    /// @p reader is set to 44,100 Hz and two channels. @p frames: the file's length in frames at that rate; the rest of
    /// its last sector is silence. @p exact: the samples are 16-bit values already.
    SectorRenderer(std::unique_ptr<ExtAudioFileReader> reader, QString path, std::int64_t frames, bool exact);

    /// The next render() starts with this sector of the track. @return false when the file cannot be read there
    [[nodiscard]] bool seek(std::int64_t sector);
    /// Fills @p out, whole sectors, with the next samples; beyond the end of the file with silence.
    /// @return the error: the file is damaged, or shorter than it was when it was measured
    Result<> render(std::span<std::byte> out);

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
