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

/// What the ring knows of a run of frames besides their samples.
struct CaptureBlock {
    std::uint64_t hostTime = 0;   ///< steady nanoseconds at which its first frame was captured
    std::uint64_t lostBefore = 0; ///< frames that are missing between the block before and this one
    std::uint32_t frames = 0;
    bool startsAnew = false; ///< the first of a new connection to the device: its times do not follow the ones before
};

/// Carries blocks of captured audio from the sound server's data thread to one I/O thread. `...Rt` belongs to the data
/// thread, the rest to the I/O thread, but for lostFrames(). Memory is taken once, when it is built.
///
/// An empty ring begins anew at the start of its memory: what it occupies is as deep as it ever was, not as it may
/// become.
class CaptureRing {
public:
    /// Room for at least @p frames frames, in blocks of 64 frames or more. The pages of the first readyFrames are there
    /// from the beginning: a reader that is no further behind never makes the data thread wait for one.
    CaptureRing(std::uint32_t channels, std::size_t frames);
    static constexpr std::size_t readyFrames = 1 << 16;

    /// Stores the block or, when there is no room, counts it as lost. The next block that finds room says how many
    /// frames are missing before it. @p samples holds one pointer a channel; a null pointer is a silent channel.
    bool pushRt(std::span<const float* const> samples, const CaptureBlock& block) noexcept REC_NONBLOCKING;
    /// Counts @p frames as lost at this place without a block at hand.
    void loseRt(std::uint64_t frames) noexcept REC_NONBLOCKING;

    /// The oldest block, what is left of it: frames taken from it are gone from its count, its time and lostBefore stay
    /// as they were when it was new. False when the ring is empty.
    [[nodiscard]] bool front(CaptureBlock& block, std::uint32_t& taken) const noexcept;
    /// Takes up to @p frames frames of the oldest block into @p out (one pointer a channel). Returns how many.
    std::uint32_t take(std::span<float* const> out, std::uint32_t frames) noexcept;

    [[nodiscard]] std::uint32_t channels() const noexcept { return channels_; }
    /// All frames counted as lost: by the ring being full, and by lostBefore and loseRt(). Any thread.
    [[nodiscard]] std::uint64_t lostFrames() const noexcept { return lost_.load(std::memory_order_relaxed); }
    /// Those of them for which there was no room: the reader was too slow. Any thread.
    [[nodiscard]] std::uint64_t overrunFrames() const noexcept { return overrun_.load(std::memory_order_relaxed); }

private:
    const std::uint32_t channels_;
    const std::size_t capacity_;             ///< frames, a power of two
    const std::unique_ptr<float[]> samples_; ///< one stretch of capacity_ samples a channel
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
    std::atomic<std::uint64_t> overrun_{0};
    // Changed by the I/O thread only.
    alignas(64) std::atomic<std::uint64_t> blocksRead_{0};
    alignas(64) std::atomic<std::uint64_t> framesRead_{0};
    std::uint32_t takenOfFront_ = 0;
};

} // namespace Platform
