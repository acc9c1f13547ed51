// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Audio/CaptureRing.h"

#include <algorithm>
#include <bit>
#include <cstring>

namespace Platform {

namespace {
constexpr std::size_t smallestBlock = 64;
}

CaptureRing::CaptureRing(std::uint32_t channels, std::size_t frames)
    : channels_(channels), capacity_(std::bit_ceil(frames)),
      samples_(std::make_unique_for_overwrite<float[]>(capacity_ * channels)),
      blocks_(std::max<std::size_t>(16, capacity_ / smallestBlock)) {
    for (std::uint32_t channel = 0; channel < channels_; ++channel)
        std::fill_n(samples_.get() + channel * capacity_, std::min(capacity_, readyFrames), 0.0f);
}

bool CaptureRing::pushRt(std::span<const float* const> samples, const CaptureBlock& block) noexcept {
    // Counted first: who reads lostFrames() and then awayFrames() never takes this time for another loss.
    if (block.startsAnew)
        away_.fetch_add(block.lostBefore, std::memory_order_relaxed);
    if (block.lostBefore > 0)
        loseRt(block.lostBefore);
    pendingStart_ = pendingStart_ || block.startsAnew;
    const auto blocksWritten = blocksWritten_.load(std::memory_order_relaxed);
    // The reader frees the frames first and the block last: acquiring its blocks makes its frames visible too.
    const auto blocksRead = blocksRead_.load(std::memory_order_acquire);
    const auto framesRead = framesRead_.load(std::memory_order_acquire);
    if (blocksWritten - blocksRead >= blocks_.size() || block.frames > capacity_ - (framesWritten_ - framesRead)) {
        loseRt(block.frames);
        overrun_.fetch_add(block.frames, std::memory_order_relaxed);
        return false;
    }
    if (framesRead == framesWritten_)
        firstFrame_.store(framesWritten_, std::memory_order_relaxed);
    const std::size_t start = (framesWritten_ - firstFrame_.load(std::memory_order_relaxed)) & (capacity_ - 1);
    const std::size_t first = std::min<std::size_t>(block.frames, capacity_ - start);
    const std::size_t rest = block.frames - first;
    for (std::uint32_t channel = 0; channel < channels_; ++channel) {
        float* row = samples_.get() + channel * capacity_;
        const float* source = channel < samples.size() ? samples[channel] : nullptr;
        if (source) {
            std::memcpy(row + start, source, first * sizeof(float));
            std::memcpy(row, source + first, rest * sizeof(float));
        } else {
            std::fill_n(row + start, first, 0.0f);
            std::fill_n(row, rest, 0.0f);
        }
    }
    auto& slot = blocks_[blocksWritten & (blocks_.size() - 1)];
    slot = block;
    slot.lostBefore = pendingLost_;
    slot.startsAnew = pendingStart_;
    pendingLost_ = 0;
    pendingStart_ = false;
    framesWritten_ += block.frames;
    blocksWritten_.store(blocksWritten + 1, std::memory_order_release);
    return true;
}

void CaptureRing::loseRt(std::uint64_t frames) noexcept {
    pendingLost_ += frames;
    lost_.fetch_add(frames, std::memory_order_release);
}

bool CaptureRing::front(CaptureBlock& block, std::uint32_t& taken) const noexcept {
    const auto read = blocksRead_.load(std::memory_order_relaxed);
    if (read == blocksWritten_.load(std::memory_order_acquire))
        return false;
    block = blocks_[read & (blocks_.size() - 1)];
    block.frames -= takenOfFront_;
    taken = takenOfFront_;
    return true;
}

std::uint32_t CaptureRing::take(std::span<float* const> out, std::uint32_t frames) noexcept {
    CaptureBlock block;
    std::uint32_t taken = 0;
    if (!front(block, taken))
        return 0;
    frames = std::min(frames, block.frames);
    const auto framesRead = framesRead_.load(std::memory_order_relaxed);
    const std::size_t start = (framesRead - firstFrame_.load(std::memory_order_relaxed)) & (capacity_ - 1);
    const std::size_t first = std::min<std::size_t>(frames, capacity_ - start);
    for (std::uint32_t channel = 0; channel < channels_ && channel < out.size(); ++channel) {
        const float* row = samples_.get() + channel * capacity_;
        std::memcpy(out[channel], row + start, first * sizeof(float));
        std::memcpy(out[channel] + first, row, (frames - first) * sizeof(float));
    }
    framesRead_.store(framesRead + frames, std::memory_order_release);
    takenOfFront_ += frames;
    if (frames == block.frames) {
        takenOfFront_ = 0;
        blocksRead_.store(blocksRead_.load(std::memory_order_relaxed) + 1, std::memory_order_release);
    }
    return frames;
}

} // namespace Platform
