// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <atomic>
#include <cstdint>
#include <span>
#include <vector>

namespace Platform {

/// Carries a file's frames from the decoder's thread to the audio thread, in segments: a jump in the file begins a new
/// one, and what is left of the old one is never heard. `...Rt` belongs to the audio thread, requestJump(), position()
/// and the like to the main thread, the rest to the decoder. Memory is taken once.
class PlayerRing {
public:
    PlayerRing(std::size_t frames, std::uint32_t channels);

    /// Asks the decoder for a segment that begins at @p frame of the file. Until it is there, the audio thread hears
    /// silence. Main thread.
    void requestJump(std::int64_t frame);
    /// The next frame of the file that will be heard. Main thread.
    [[nodiscard]] std::int64_t position() const;
    /// Whether the last frame of the file was heard. Main thread.
    [[nodiscard]] bool atEnd() const;

    /// The jump that was asked for last and has not begun; false when there is none. Decoder.
    [[nodiscard]] bool takeJump(std::int64_t& frame);
    /// Begins the segment that takeJump() told of. Decoder.
    void beginSegment();
    /// Frames that fit. Decoder.
    [[nodiscard]] std::size_t room() const;
    /// No more than room() frames. Decoder.
    void push(std::span<const float> interleaved);
    /// No frame follows in this segment. Decoder.
    void endSegment();

    /// Fills @p out with the next frames and with silence behind them. @return the frames that came from the file
    std::size_t popRt(std::span<float> out) noexcept;
    /// Whether silence stands for frames that are to come and were not decoded in time.
    [[nodiscard]] bool starvedRt() const noexcept;

private:
    struct Segment {
        std::atomic<std::uint64_t> begin{0};     ///< where in the ring
        std::atomic<std::int64_t> firstFrame{0}; ///< where in the file
    };
    static constexpr std::uint64_t kOpen = ~std::uint64_t(0);

    bool enterSegmentRt() noexcept;

    std::uint32_t channels_;
    std::size_t mask_;
    std::vector<float> samples_;
    std::atomic<std::int64_t> jumpTo_{0};
    std::atomic<std::uint32_t> jumpsRequested_{0};
    std::uint32_t jumpTaken_ = 0;                       ///< decoder
    std::int64_t takenFrame_ = 0;                       ///< decoder
    std::array<Segment, 8> segments_;                   ///< written by the decoder, the latest ones are valid
    alignas(64) std::atomic<std::uint32_t> segment_{0}; ///< the number of the jump that began the latest one
    std::atomic<std::uint64_t> end_{kOpen};
    alignas(64) std::atomic<std::uint64_t> written_{0};
    alignas(64) std::atomic<std::uint64_t> read_{0}; ///< changed by the audio thread only, as the members below
    std::atomic<std::uint32_t> heardSegment_{0};
    std::atomic<std::int64_t> position_{0};
    std::atomic<bool> atEnd_{false};
    bool flowed_ = false;
};

} // namespace Platform
