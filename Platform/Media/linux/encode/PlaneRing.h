// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <atomic>
#include <bit>
#include <cstdint>
#include <cstring>
#include <memory>
#include <vector>

namespace Platform {

/// Carries frames from the capturing thread to the encoding thread: one row per channel, one producer, one consumer, no
/// lock. An idle side sleeps on a counter that the other side increments.
/// When the ring is empty, it starts again at the beginning of its rows. So later pages are touched only when that many
/// frames wait.
class PlaneRing {
public:
    PlaneRing(std::size_t channels, std::size_t frames) : capacity_(std::bit_ceil(frames)), rows_(channels) {
        for (auto& row : rows_)
            row = std::make_unique_for_overwrite<float[]>(capacity_);
    }

    /// Producer: copies as many of @p frames as there is room for, from rows whose samples are @p stride apart; a null
    /// row is silence. @return the number copied.
    std::size_t push(const float* const* rows, std::size_t stride, std::size_t frames) {
        const auto written = written_.load(std::memory_order_relaxed);
        const auto read = read_.load(std::memory_order_acquire);
        if (read == written) // the consumer holds nothing; it sees the new start with the next frames
            first_.store(written, std::memory_order_relaxed);
        const auto room = capacity_ - std::size_t(written - read);
        const std::size_t count = std::min(frames, room);
        const std::size_t at = place(written);
        for (std::size_t c = 0; c < rows_.size(); ++c) {
            float* const row = rows_[c].get();
            const std::size_t first = std::min(count, capacity_ - at);
            copy(row + at, rows[c], stride, first);
            copy(row, rows[c] ? rows[c] + first * stride : nullptr, stride, count - first);
        }
        written_.store(written + count, std::memory_order_release);
        return count;
    }

    /// Consumer: up to @p most contiguous frames. They stay in the ring until release().
    std::size_t peek(std::vector<const float*>& rows, std::size_t most) const {
        const auto read = read_.load(std::memory_order_relaxed);
        const auto filled = std::size_t(written_.load(std::memory_order_acquire) - read);
        const std::size_t at = place(read);
        rows.resize(rows_.size());
        for (std::size_t c = 0; c < rows_.size(); ++c)
            rows[c] = rows_[c].get() + at;
        return std::min({filled, most, capacity_ - at});
    }
    void release(std::size_t frames) {
        read_.store(read_.load(std::memory_order_relaxed) + frames, std::memory_order_release);
    }

private:
    [[nodiscard]] std::size_t place(std::uint64_t frame) const {
        return std::size_t(frame - first_.load(std::memory_order_relaxed)) & (capacity_ - 1);
    }
    static void copy(float* out, const float* in, std::size_t stride, std::size_t count) {
        if (count == 0)
            return;
        if (!in)
            std::fill_n(out, count, 0.0f);
        else if (stride == 1)
            std::memcpy(out, in, count * sizeof(float));
        else
            for (std::size_t i = 0; i < count; ++i)
                out[i] = in[i * stride];
    }

    std::size_t capacity_;
    std::vector<std::unique_ptr<float[]>> rows_;
    // The frame at the start of the rows; the producer changes it while the ring is empty.
    std::atomic<std::uint64_t> first_{0};
    alignas(64) std::atomic<std::uint64_t> written_{0}; // changed by the producer only
    alignas(64) std::atomic<std::uint64_t> read_{0};    // changed by the consumer only
};

} // namespace Platform
