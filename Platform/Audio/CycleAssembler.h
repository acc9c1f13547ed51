// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Audio/CaptureRing.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace Platform {

/// One cycle as the render callback sees it.
struct CaptureCycle {
    std::uint32_t frames = 0;
    std::uint64_t hostTime = 0;   ///< capture time of the first frame, steady nanoseconds
    std::uint64_t sampleTime = 0; ///< frames since the start, lost ones included
    bool startsAnew = false; ///< starts with the first frame of a connection; never set where lost frames are filled
};

/// Cuts the ring's content into cycles of one size. Used by the I/O thread only.
/// No frame is dropped or repeated. Where frames were lost, the cycle ends early, so that no cycle spans the gap. When
/// gaps are to be filled, silence of the same length is inserted and the cycles keep their size.
class CycleAssembler {
public:
    CycleAssembler(CaptureRing& ring, double sampleRate, std::uint32_t cycleFrames);

    /// Makes the next cycle. False when the ring does not hold enough frames for one; with @p flush a shorter cycle is
    /// made from the rest. Blocks that begin after @p notAfter, a host time, stay in the ring.
    [[nodiscard]] bool next(CaptureCycle& cycle, bool fillLost, bool flush = false, std::uint64_t notAfter = AnyTime);
    static constexpr std::uint64_t AnyTime = ~std::uint64_t(0);
    /// The samples of the cycle that the last next() made.
    [[nodiscard]] const float* channel(std::uint32_t index) const {
        return buffer_.data() + std::size_t(index) * cycleFrames_;
    }

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
    std::uint64_t hostTime_ = 0; ///< capture time of the first frame in buffer_
    std::uint64_t sampleTime_ = 0;
    bool startsAnew_ = false; ///< value for the next cycle
    bool holePassed_ = false; ///< the lost frames before the ring's front were already handled
    std::uint64_t silenceLeft_ = 0;
};

} // namespace Platform
