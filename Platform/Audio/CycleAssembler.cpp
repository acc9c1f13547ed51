// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Audio/CycleAssembler.h"

#include <algorithm>

namespace Platform {

CycleAssembler::CycleAssembler(CaptureRing& ring, double sampleRate, std::uint32_t cycleFrames)
    : ring_(ring), sampleRate_(sampleRate), cycleFrames_(cycleFrames),
      buffer_(std::size_t(cycleFrames) * ring.channels()), destinations_(ring.channels()) {
}

bool CycleAssembler::next(CaptureCycle& cycle, bool fillLost, bool flush, std::uint64_t notAfter) {
    CaptureBlock block;
    std::uint32_t taken = 0;
    while (ring_.front(block, taken) && block.hostTime <= notAfter) {
        if (taken == 0 && !holePassed_ && (block.lostBefore > 0 || block.startsAnew)) {
            if (fillLost) {
                silenceLeft_ = block.lostBefore;
            } else {
                if (filled_ > 0)
                    return finish(cycle);
                sampleTime_ += block.lostBefore;
                startsAnew_ = block.startsAnew;
            }
            holePassed_ = true;
        }
        if (filled_ == 0)
            hostTime_ = block.hostTime + nanoseconds(taken) - nanoseconds(silenceLeft_);
        const std::uint32_t room = cycleFrames_ - filled_;
        if (silenceLeft_ > 0) {
            const auto silent = std::uint32_t(std::min<std::uint64_t>(room, silenceLeft_));
            for (std::uint32_t i = 0; i < ring_.channels(); ++i)
                std::fill_n(buffer_.data() + std::size_t(i) * cycleFrames_ + filled_, silent, 0.0f);
            silenceLeft_ -= silent;
            filled_ += silent;
        } else {
            for (std::uint32_t i = 0; i < ring_.channels(); ++i)
                destinations_[i] = buffer_.data() + std::size_t(i) * cycleFrames_ + filled_;
            const auto count = ring_.take(destinations_, room);
            filled_ += count;
            if (count == block.frames)
                holePassed_ = false;
        }
        if (filled_ == cycleFrames_)
            return finish(cycle);
    }
    return flush && filled_ > 0 && finish(cycle);
}

bool CycleAssembler::finish(CaptureCycle& cycle) {
    cycle = {.frames = filled_, .hostTime = hostTime_, .sampleTime = sampleTime_, .startsAnew = startsAnew_};
    startsAnew_ = false;
    sampleTime_ += filled_;
    filled_ = 0;
    return true;
}

} // namespace Platform
