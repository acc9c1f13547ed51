// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Media/PlayerRing.h"

#include <algorithm>
#include <bit>
#include <cassert>

namespace Platform {

PlayerRing::PlayerRing(std::size_t frames, std::uint32_t channels)
    : channels_(channels), mask_(std::bit_ceil(frames) - 1), samples_((mask_ + 1) * channels) {
}

void PlayerRing::requestJump(std::int64_t frame) {
    jumpTo_.store(frame, std::memory_order_relaxed);
    jumpsRequested_.fetch_add(1, std::memory_order_release);
}

std::int64_t PlayerRing::position() const {
    // Nothing was played since the last jump: its target is the position, however long the decoder takes.
    if (heardSegment_.load(std::memory_order_acquire) != jumpsRequested_.load(std::memory_order_relaxed))
        return jumpTo_.load(std::memory_order_relaxed);
    return position_.load(std::memory_order_relaxed);
}

bool PlayerRing::atEnd() const {
    return heardSegment_.load(std::memory_order_acquire) == jumpsRequested_.load(std::memory_order_relaxed) &&
           atEnd_.load(std::memory_order_relaxed);
}

bool PlayerRing::takeJump(std::int64_t& frame) {
    const auto requested = jumpsRequested_.load(std::memory_order_acquire);
    if (requested == jumpTaken_)
        return false;
    jumpTaken_ = requested;
    // A later request may already have changed the target; takeJump() returns that one at its next call.
    takenFrame_ = frame = jumpTo_.load(std::memory_order_relaxed);
    return true;
}

void PlayerRing::beginSegment() {
    end_.store(kOpen, std::memory_order_relaxed);
    auto& segment = segments_[jumpTaken_ % segments_.size()];
    segment.begin.store(written_.load(std::memory_order_relaxed), std::memory_order_relaxed);
    segment.firstFrame.store(takenFrame_, std::memory_order_relaxed);
    segment_.store(jumpTaken_, std::memory_order_release);
}

std::size_t PlayerRing::room() const {
    return mask_ + 1 - std::size_t(written_.load(std::memory_order_relaxed) - read_.load(std::memory_order_acquire));
}

void PlayerRing::push(std::span<const float> interleaved) {
    assert(interleaved.size() <= room() * channels_);
    const auto written = written_.load(std::memory_order_relaxed);
    const auto size = samples_.size();
    const auto at = std::size_t(written & mask_) * channels_;
    const auto first = std::min(interleaved.size(), size - at);
    std::ranges::copy(interleaved.first(first), samples_.begin() + std::ptrdiff_t(at));
    std::ranges::copy(interleaved.subspan(first), samples_.begin());
    written_.store(written + interleaved.size() / channels_, std::memory_order_release);
}

void PlayerRing::endSegment() {
    end_.store(written_.load(std::memory_order_relaxed), std::memory_order_release);
}

bool PlayerRing::enterSegmentRt() noexcept {
    const auto latest = segment_.load(std::memory_order_acquire);
    if (latest == heardSegment_.load(std::memory_order_relaxed))
        return true;
    const auto& segment = segments_[latest % segments_.size()];
    const auto begin = segment.begin.load(std::memory_order_relaxed);
    const auto firstFrame = segment.firstFrame.load(std::memory_order_relaxed);
    // The slot may be overwritten while it is read: after seven more jumps the decoder reuses it. Try again then.
    if (segment_.load(std::memory_order_acquire) - latest >= segments_.size() - 1)
        return false;
    read_.store(begin, std::memory_order_release);
    position_.store(firstFrame, std::memory_order_relaxed);
    atEnd_.store(false, std::memory_order_relaxed);
    flowed_ = false;
    heardSegment_.store(latest, std::memory_order_release);
    return true;
}

std::size_t PlayerRing::popRt(std::span<float> out) noexcept {
    std::size_t frames = 0;
    const bool entered = enterSegmentRt();
    const bool current =
        heardSegment_.load(std::memory_order_relaxed) == jumpsRequested_.load(std::memory_order_relaxed);
    if (entered && current) {
        const auto read = read_.load(std::memory_order_relaxed);
        // Load the end before the write index: otherwise a frame written between the two loads would be missed.
        const auto end = end_.load(std::memory_order_acquire);
        const auto written = written_.load(std::memory_order_acquire);
        frames = std::size_t(std::min<std::uint64_t>(written - read, out.size() / channels_));
        const auto at = std::size_t(read & mask_) * channels_;
        const auto first = std::min(frames * channels_, samples_.size() - at);
        std::copy_n(samples_.begin() + std::ptrdiff_t(at), first, out.begin());
        std::copy_n(samples_.begin(), frames * channels_ - first, out.begin() + std::ptrdiff_t(first));
        read_.store(read + frames, std::memory_order_release);
        position_.fetch_add(std::int64_t(frames), std::memory_order_relaxed);
        atEnd_.store(read + frames == end, std::memory_order_relaxed);
        flowed_ = flowed_ || frames > 0;
    }
    std::fill(out.begin() + std::ptrdiff_t(frames * channels_), out.end(), 0.0F);
    return frames;
}

bool PlayerRing::starvedRt() const noexcept {
    return flowed_ && !atEnd_.load(std::memory_order_relaxed);
}

} // namespace Platform
