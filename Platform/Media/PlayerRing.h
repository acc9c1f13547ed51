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
/// segment, and the rest of the old one is never played. `...Rt` functions belong to the audio thread; requestJump(),
/// position() and atEnd() to the main thread; the rest to the decoder. Memory is allocated once.
class PlayerRing {
public:
    PlayerRing(std::size_t frames, std::uint32_t channels);

    /// Asks the decoder for a segment that begins at @p frame of the file. Until it is decoded, the audio thread plays
    /// silence. Main thread.
    void requestJump(std::int64_t frame);
    /// The next frame of the file that will be played. Main thread.
    [[nodiscard]] std::int64_t position() const;
    /// Whether the last frame of the file was played. Main thread.
    [[nodiscard]] bool atEnd() const;

    /// Takes the newest requested jump that has not begun; false when there is none. Decoder.
    [[nodiscard]] bool takeJump(std::int64_t& frame);
    /// Begins the segment of the last takeJump(). Decoder.
    void beginSegment();
    /// Frames that fit. Decoder.
    [[nodiscard]] std::size_t room() const;
    /// At most room() frames. Decoder.
    void push(std::span<const float> interleaved);
    /// Marks the end of the file in this segment. Decoder.
    void endSegment();

    /// Fills @p out with the next frames, then silence. @return the number of frames from the file
    std::size_t popRt(std::span<float> out) noexcept;
    /// Whether the last popRt() filled in silence because frames were not decoded in time.
    [[nodiscard]] bool starvedRt() const noexcept;

private:
    struct Segment {
        std::atomic<std::uint64_t> begin{0};     ///< position in the ring
        std::atomic<std::int64_t> firstFrame{0}; ///< position in the file
    };
    static constexpr std::uint64_t kOpen = ~std::uint64_t(0);

    bool enterSegmentRt() noexcept;

    std::uint32_t channels_;
    std::size_t mask_;
    std::vector<float> samples_;
    std::atomic<std::int64_t> jumpTo_{0};
    std::atomic<std::uint32_t> jumpsRequested_{0};
    std::uint32_t jumpTaken_ = 0;                       ///< decoder only
    std::int64_t takenFrame_ = 0;                       ///< decoder only
    std::array<Segment, 8> segments_;                   ///< written by the decoder; only the latest ones are valid
    alignas(64) std::atomic<std::uint32_t> segment_{0}; ///< the number of the jump that began the latest segment
    std::atomic<std::uint64_t> end_{kOpen};
    alignas(64) std::atomic<std::uint64_t> written_{0};
    alignas(64) std::atomic<std::uint64_t> read_{0}; ///< changed by the audio thread only, like the members below
    std::atomic<std::uint32_t> heardSegment_{0};
    std::atomic<std::int64_t> position_{0};
    std::atomic<bool> atEnd_{false};
    bool flowed_ = false;
};

} // namespace Platform
