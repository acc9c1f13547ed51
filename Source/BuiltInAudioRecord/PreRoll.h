// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Audio/AudioTypes.h"

#include <cstdint>
#include <vector>

/// The newest frames that a device delivered, so that a recording can begin before its first sound. A ring of samples,
/// one channel after the other. Has no lock: the I/O thread appends and copies; allocate() is called while no cycle
/// runs.
class PreRoll {
public:
    /// Room for @p frames of @p channels, which are all forgotten. With 0 frames nothing is kept.
    void allocate(std::uint32_t channels, std::uint32_t frames);
    void clear() { count_ = 0; }
    /// Adds the first @p frames of a cycle, which must follow the ones added before.
    void append(const AudioBufferList& cycle, std::uint32_t frames);
    /// Frames that can be copied.
    [[nodiscard]] std::uint32_t count() const { return count_; }
    /// Copies @p frames into the buffers, which have room for them. The first of them was added @p ago frames before
    /// the end. @p ago is at most count(), @p frames at most @p ago.
    void copy(std::uint32_t ago, std::uint32_t frames, AudioBufferList& into) const;

private:
    [[nodiscard]] const float* channel(std::uint32_t index) const {
        return samples_.data() + std::size_t(index) * capacity_;
    }

    std::vector<float> samples_; ///< capacity_ of each channel
    std::uint32_t capacity_ = 0; ///< frames
    std::uint32_t channels_ = 0;
    std::uint32_t end_ = 0; ///< index behind the newest frame
    std::uint32_t count_ = 0;
};
