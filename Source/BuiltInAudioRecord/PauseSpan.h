// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <atomic>
#include <cmath>
#include <cstdint>

/// The capture times at which a pause begins and ends inside the cycles of one device. The cycles of two devices do not
/// end together: without these times each pause would shift one source against the other by up to a cycle. Set times
/// other than 0 while cycles are held. The I/O thread calls of().
class PauseSpan {
public:
    /// Frames captured before @p hostTime are still written. 0 pauses at once.
    void begin(std::uint64_t hostTime) {
        begin_ = hostTime;
        end_ = 0;
    }
    /// Frames captured from @p hostTime on are written again. 0 resumes at once.
    void end(std::uint64_t hostTime) { end_ = hostTime; }

    /// The frames of a cycle to write: those before head and those from tail on.
    struct Parts {
        std::uint32_t head = 0;
        std::uint32_t tail = 0;
    };
    [[nodiscard]] Parts of(bool paused, std::uint64_t hostTime, std::uint32_t frames, double sampleRate) const {
        const std::uint32_t head = framesUntil(begin_, hostTime, frames, sampleRate);
        if (paused)
            return {head, frames};
        return {head, std::max(head, framesUntil(end_, hostTime, frames, sampleRate))};
    }

private:
    [[nodiscard]] static std::uint32_t framesUntil(std::uint64_t time, std::uint64_t from, std::uint32_t frames,
                                                   double sampleRate) {
        if (time <= from)
            return 0;
        return std::uint32_t(std::min<std::int64_t>(frames, std::llround(double(time - from) * 1e-9 * sampleRate)));
    }

    std::atomic<std::uint64_t> begin_{0};
    std::atomic<std::uint64_t> end_{0};
};
