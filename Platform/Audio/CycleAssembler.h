// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Audio/CaptureRing.h"

#include <cstdint>
#include <vector>

namespace Platform {

/// One cycle as the render callback sees it.
struct CaptureCycle {
    std::uint32_t frames = 0;
    std::uint64_t hostTime = 0;   ///< capture time of the first frame, steady nanoseconds
    std::uint64_t sampleTime = 0; ///< frames since the start, lost ones included
    bool startsAnew = false;      ///< begins with the first frame of a connection; never where holes are filled
};

/// Cuts what the ring holds into cycles of one size. It belongs to the I/O thread.
///
/// Frames are neither dropped nor repeated. Where frames were lost, a cycle ends early, so that none spans the hole;
/// or, when holes are to be filled, silence of equal length takes their place and the cycles keep their size.
class CycleAssembler {
public:
    CycleAssembler(CaptureRing& ring, double sampleRate, std::uint32_t cycleFrames);

    /// Makes the next cycle. False when the ring holds too little for one; with @p flush also a part is a cycle.
    [[nodiscard]] bool next(CaptureCycle& cycle, bool fillLost, bool flush = false);
    /// The samples of the cycle that next() made last.
    [[nodiscard]] const float* channel(std::uint32_t index) const { return buffer_.data() + index * cycleFrames_; }

private:
    [[nodiscard]] std::uint64_t nanoseconds(std::uint64_t frames) const {
        return std::uint64_t(double(frames) * 1e9 / sampleRate_);
    }
    bool finish(CaptureCycle& cycle);

    CaptureRing& ring_;
    const double sampleRate_;
    const std::uint32_t cycleFrames_;
    std::vector<float> buffer_; ///< cycleFrames_ samples a channel
    std::vector<float*> destinations_;
    std::uint32_t filled_ = 0;
    std::uint64_t hostTime_ = 0; ///< of the first frame in buffer_
    std::uint64_t sampleTime_ = 0;
    bool startsAnew_ = false; ///< as of the cycle to come
    bool holePassed_ = false; ///< the hole before the ring's front was dealt with
    std::uint64_t silenceLeft_ = 0;
};

} // namespace Platform
