// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/Control/LevelScan.h"

#include <algorithm>
#include <bit>

namespace {
constexpr LevelScan::Magnitude kWithoutSign = 0x7fffffff;
constexpr std::int64_t kMostLookBack = 16; ///< blocks
} // namespace

LevelScan::Magnitude LevelScan::magnitudeOf(float sample) {
    return std::bit_cast<std::uint32_t>(sample) & kWithoutSign;
}

LevelScan::LevelScan(std::vector<Magnitude> limits, std::int64_t first, std::int64_t shortest)
    : limits_(std::move(limits)), levels_(limits_.size()), first_(first), end_(first),
      shortest_(std::max(shortest, kLeastFrames)),
      // A silence of that length contains at least this many whole blocks, and one more.
      lookBack_(std::clamp<std::int64_t>(shortest_ / kBlock - 2, 1, kMostLookBack)),
      history_(std::size_t(lookBack_) + 1) {
    for (Level& level : levels_)
        level.silentSince = first;
}

void LevelScan::add(std::span<const float> left, std::span<const float> right) {
    const std::size_t frames = std::min(left.size(), right.size());
    for (std::size_t done = 0; done < frames;) {
        Block& now = history_[std::size_t(number_) % history_.size()];
        const auto count = std::min(frames - done, std::size_t(kBlock - now.count));
        const float* const one = left.data() + done;
        const float* const other = right.data() + done;
        Magnitude* const out = now.frames.data() + now.count;
        for (std::size_t i = 0; i < count; ++i)
            out[i] = std::max(magnitudeOf(one[i]), magnitudeOf(other[i]));
        now.count += int(count);
        end_ += std::int64_t(count);
        done += count;
        if (now.count == kBlock)
            endBlock();
    }
}

void LevelScan::endBlock() {
    const Block& now = block(number_);
    const auto magnitudes = std::span(now.frames).first(std::size_t(now.count));
    Magnitude peak = 0;
    for (const Magnitude each : magnitudes)
        peak = std::max(peak, each);
    const std::int64_t begin = end_ - now.count;
    const auto loudLevels = std::size_t(std::upper_bound(limits_.begin(), limits_.end(), peak) - limits_.begin());
    for (std::size_t i = 0; i < loudLevels; ++i) {
        Level& level = levels_[i];
        const bool mayBeLong = level.firstLoud >= 0 && number_ - level.loudBlock > lookBack_;
        if (mayBeLong || level.firstLoud < 0) {
            const auto loud = std::find_if(magnitudes.begin(), magnitudes.end(),
                                           [limit = limits_[i]](Magnitude each) { return each >= limit; });
            const std::int64_t at = begin + (loud - magnitudes.begin());
            if (level.firstLoud < 0)
                level.firstLoud = at;
            else if (at - level.silentSince >= shortest_)
                level.inside.push_back({level.silentSince, at});
        }
        level.loudBlock = number_;
        level.known = false;
    }
    for (std::size_t i = loudLevels; i < levels_.size(); ++i)
        if (!levels_[i].known && number_ - levels_[i].loudBlock >= lookBack_)
            findBegin(levels_[i], limits_[i]);
    ++number_;
    history_[std::size_t(number_) % history_.size()].count = 0;
}

void LevelScan::findBegin(Level& level, Magnitude limit) const {
    const Block& last = block(level.loudBlock);
    int i = last.count;
    while (i > 0 && last.frames[std::size_t(i) - 1] < limit)
        --i;
    level.silentSince = first_ + level.loudBlock * kBlock + i;
    level.known = true;
}

void LevelScan::finish() {
    if (block(number_).count > 0)
        endBlock();
    for (std::size_t i = 0; i < levels_.size(); ++i)
        if (!levels_[i].known)
            findBegin(levels_[i], limits_[i]);
}

std::int64_t LevelScan::firstLoud(std::size_t level) const {
    return levels_[level].firstLoud < 0 ? end_ : levels_[level].firstLoud;
}

std::int64_t LevelScan::lastSilenceBegin(std::size_t level) const {
    return levels_[level].silentSince;
}
