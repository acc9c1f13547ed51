// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Audio/AudioTypes.h"

#include <array>
#include <cstdint>

/// The format in which audio is edited: 44100 Hz, two channels of 32-bit float, one buffer per channel.
[[nodiscard]] AudioStreamBasicDescription clientFormat();

/// 512 frames of audio in the client format, reused for every pass of a copy. The samples are members of the object.
class ClientBlock {
public:
    static constexpr std::uint32_t kBytes = 2048;
    static constexpr std::size_t kSamples = kBytes / sizeof(float);

    ClientBlock();
    ClientBlock(const ClientBlock&) = delete;
    ClientBlock& operator=(const ClientBlock&) = delete;

    /// Resets sizes and pointers so that a reader can fill the block. @return the number of frames to ask for
    [[nodiscard]] std::uint32_t prepare(const AudioStreamBasicDescription& format);
    [[nodiscard]] AudioBufferList* list() { return &list_.head; }
    [[nodiscard]] float firstSample() const { return left_[0]; }
    /// Multiplies all samples of both channels, including those behind the frames that were read.
    void scale(float gain);

private:
    // AudioBufferList ends in an array of one buffer; the second buffer follows it in memory.
    struct TwoBuffers {
        AudioBufferList head;
        AudioBuffer second;
    };
    TwoBuffers list_{};
    std::array<float, kSamples> left_{};
    std::array<float, kSamples> right_{};
};
