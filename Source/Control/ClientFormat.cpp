// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/Control/ClientFormat.h"

#include <algorithm>
#include <cstddef>

namespace {
constexpr double kShortestFade = 0.99;
}

AudioStreamBasicDescription clientFormat() {
    return planarFloatFormat(44100, 2);
}

ClientBlock::ClientBlock() {
    static_assert(offsetof(TwoBuffers, second) == offsetof(AudioBufferList, mBuffers) + sizeof(AudioBuffer));
    list_.head.mNumberBuffers = 2;
}

std::uint32_t ClientBlock::prepare(const AudioStreamBasicDescription& format) {
    // The first buffer is labelled with the channels of the format although it holds one, as it has always been.
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

double Fades::gainAt(double source, double written) const {
    const double time = source - rangeBegin;
    const double outStart = (rangeEnd - rangeBegin) - fadeOut;
    double gain = 1;
    if (fadeIn >= kShortestFade && time <= fadeIn)
        gain = time / fadeIn;
    if (fadeOut >= kShortestFade && time >= outStart)
        gain = 1 - (time - outStart) / fadeOut;
    if (gain >= 0.99 && fadeOut >= kShortestFade && written >= length - fadeOut)
        gain = (length - written) / fadeOut;
    return std::clamp(gain, 0.0, 1.0);
}
