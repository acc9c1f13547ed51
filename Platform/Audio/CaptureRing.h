// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Audio/RealTime.h"

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <vector>

namespace Platform {

/// Describes a run of frames in the ring, apart from its samples.
struct CaptureBlock {
    std::uint64_t hostTime = 0;   ///< steady nanoseconds at which its first frame was captured
    std::uint64_t lostBefore = 0; ///< frames that were lost between the previous block and this one
    std::uint32_t frames = 0;
    bool startsAnew =
        false; ///< first block of a new connection to the device: its times do not continue those of earlier blocks
};

/// Carries blocks of captured audio from the sound server's data thread to one I/O thread. `...Rt` functions belong to
/// the data thread, all others to the I/O thread, except lostFrames(). Memory is allocated once, in the constructor.
/// When the ring is empty, it starts again at the beginning of its memory. So it only touches as much memory as its
/// fullest moment needed.
class CaptureRing {
public:
    /// Room for at least @p frames frames, in blocks of 64 frames or more. The pages of the first readyFrames frames
    /// are mapped at once: as long as the reader is no further behind, the data thread never waits for a page.
    CaptureRing(std::uint32_t channels, std::size_t frames);
    static constexpr std::size_t readyFrames = 1 << 16;

    /// Stores the block, or counts it as lost when there is no room. The next block that is stored says how many frames
    /// are missing before it. @p samples holds one pointer per channel; a null pointer is a silent channel.
    bool pushRt(std::span<const float* const> samples, const CaptureBlock& block) noexcept REC_NONBLOCKING;
    /// Counts @p frames as lost at this position, without a block.
    void loseRt(std::uint64_t frames) noexcept REC_NONBLOCKING;

    /// Describes the rest of the oldest block: its frame count lacks the frames already taken, its time and lostBefore
    /// are those of the whole block. False when the ring is empty.
    [[nodiscard]] bool front(CaptureBlock& block, std::uint32_t& taken) const noexcept;
    /// Takes up to @p frames frames of the oldest block into @p out (one pointer a channel). Returns how many.
    std::uint32_t take(std::span<float* const> out, std::uint32_t frames) noexcept;

    [[nodiscard]] std::uint32_t channels() const noexcept { return channels_; }
    /// All frames counted as lost: by the ring being full, and by lostBefore and loseRt(). Any thread.
    [[nodiscard]] std::uint64_t lostFrames() const noexcept { return lost_.load(std::memory_order_acquire); }
    /// The part of lostFrames() before blocks that start anew: the time between two connections. Any thread.
    [[nodiscard]] std::uint64_t awayFrames() const noexcept { return away_.load(std::memory_order_relaxed); }
    /// The part of lostFrames() that was lost because the ring was full: the reader was too slow. Any thread.
    [[nodiscard]] std::uint64_t overrunFrames() const noexcept { return overrun_.load(std::memory_order_relaxed); }

private:
    const std::uint32_t channels_;
    const std::size_t capacity_;             ///< frames, a power of two
    const std::unique_ptr<float[]> samples_; ///< one row of capacity_ samples per channel
    std::vector<CaptureBlock> blocks_;       ///< a power of two

    // Changed by the data thread only.
    std::uint64_t pendingLost_ = 0;
    bool pendingStart_ = false;
    std::uint64_t framesWritten_ = 0;
    /// The frame that lies at the start of the memory. It changes only while the ring is empty; the reader sees the
    /// change with the next block.
    std::atomic<std::uint64_t> firstFrame_{0};
    alignas(64) std::atomic<std::uint64_t> blocksWritten_{0};
    alignas(64) std::atomic<std::uint64_t> lost_{0};
    std::atomic<std::uint64_t> away_{0};
    std::atomic<std::uint64_t> overrun_{0};
    // Changed by the I/O thread only.
    alignas(64) std::atomic<std::uint64_t> blocksRead_{0};
    alignas(64) std::atomic<std::uint64_t> framesRead_{0};
    std::uint32_t takenOfFront_ = 0;
};

} // namespace Platform
