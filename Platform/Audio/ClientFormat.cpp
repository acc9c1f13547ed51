// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Audio/ClientFormat.h"

#include <cstddef>

AudioStreamBasicDescription clientFormat() {
    return planarFloatFormat(44100, 2);
}

ClientBlock::ClientBlock() {
    static_assert(offsetof(TwoBuffers, second) == offsetof(AudioBufferList, mBuffers) + sizeof(AudioBuffer));
    list_.head.mNumberBuffers = 2;
}

std::uint32_t ClientBlock::prepare(const AudioStreamBasicDescription& format) {
    // The first buffer states the channel count of the format although it holds one channel. Readers of the list expect
    // this.
    list_.head.mBuffers[0] = {format.mChannelsPerFrame, kBytes, left_.data()};
    list_.second = {1, kBytes, right_.data()};
    return kBytes / format.mBytesPerFrame;
}

void ClientBlock::scale(float gain) {
    for (auto& sample : right_)
        sample *= gain;
    for (auto& sample : left_)
        sample *= gain;
}
