// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/BuiltInAudioRecord/PreRoll.h"

#include <algorithm>

void PreRoll::allocate(std::uint32_t channels, std::uint32_t frames) {
    channels_ = channels;
    capacity_ = frames;
    end_ = 0;
    count_ = 0;
    samples_ = std::vector<float>(std::size_t(channels) * frames);
}

void PreRoll::append(const AudioBufferList& cycle, std::uint32_t frames) {
    // Of a cycle longer than the ring only the end is kept.
    const std::uint32_t kept = std::min(frames, capacity_);
    if (kept == 0 || cycle.mNumberBuffers < channels_)
        return;
    const std::uint32_t untilWrap = std::min(kept, capacity_ - end_);
    for (std::uint32_t i = 0; i < channels_; ++i) {
        const float* from = static_cast<const float*>(cycle.mBuffers[i].mData) + (frames - kept);
        float* to = samples_.data() + std::size_t(i) * capacity_;
        std::copy_n(from, untilWrap, to + end_);
        std::copy_n(from + untilWrap, kept - untilWrap, to);
    }
    end_ = (end_ + kept) % capacity_;
    count_ = std::min(capacity_, count_ + kept);
}

void PreRoll::copy(std::uint32_t ago, std::uint32_t frames, AudioBufferList& into) const {
    const std::uint32_t begin = (end_ + capacity_ - ago) % capacity_;
    const std::uint32_t untilWrap = std::min(frames, capacity_ - begin);
    for (std::uint32_t i = 0; i < channels_; ++i) {
        AudioBuffer& buffer = into.mBuffers[i];
        auto* to = static_cast<float*>(buffer.mData);
        std::copy_n(channel(i) + begin, untilWrap, to);
        std::copy_n(channel(i), frames - untilWrap, to + untilWrap);
        buffer.mDataByteSize = frames * 4;
    }
}
