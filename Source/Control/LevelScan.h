// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Source/Control/SilenceFinder.h"

#include <array>
#include <cstdint>
#include <span>
#include <vector>

/// Finds the silences of a stretch of frames at many levels at once. It compares whole blocks by their peak and looks
/// at single frames only where a silence ends. One thread.
class LevelScan {
public:
    /// The sign-free bit pattern of a sample. Its order is that of the magnitudes, and NaN lies above all of them, so
    /// that a broken sample counts as loud.
    using Magnitude = std::uint32_t;
    [[nodiscard]] static Magnitude magnitudeOf(float sample);

    /// @p limits in ascending order: a frame is silent at a level while its magnitude lies below. @p first: number of
    /// the first frame. @p shortest: frames of the shortest silence to keep, at least kLeastFrames.
    LevelScan(std::vector<Magnitude> limits, std::int64_t first, std::int64_t shortest);

    static constexpr int kBlock = 256; ///< frames
    static constexpr std::int64_t kLeastFrames = std::int64_t(3) * kBlock;

    /// The next frames of both channels.
    void add(std::span<const float> left, std::span<const float> right);
    /// To be called behind the last frame.
    void finish();

    /// The silences of one level with loud frames at both sides, in order.
    [[nodiscard]] const std::vector<SilenceFinder::Silence>& inside(std::size_t level) const {
        return levels_[level].inside;
    }
    /// The first loud frame of the level; end() when there is none.
    [[nodiscard]] std::int64_t firstLoud(std::size_t level) const;
    /// The frame behind the last loud one; first() when there is none.
    [[nodiscard]] std::int64_t lastSilenceBegin(std::size_t level) const;
    [[nodiscard]] std::int64_t first() const { return first_; }
    [[nodiscard]] std::int64_t end() const { return end_; }

private:
    struct Level {
        std::vector<SilenceFinder::Silence> inside;
        std::int64_t firstLoud = -1;   ///< -1: no loud frame yet
        std::int64_t silentSince = -1; ///< exact when `known`
        std::int64_t loudBlock = -1;   ///< number of the last block with a loud frame
        bool known = true;
    };
    /// The magnitudes of a block, kept until the silences that begin in it are known to be long enough.
    struct Block {
        std::array<Magnitude, kBlock> frames{};
        int count = 0;
    };

    void endBlock();
    void findBegin(Level& level, Magnitude limit) const;
    [[nodiscard]] const Block& block(std::int64_t number) const {
        return history_[std::size_t(number) % history_.size()];
    }

    std::vector<Magnitude> limits_;
    std::vector<Level> levels_;
    std::int64_t first_;
    std::int64_t end_;
    std::int64_t shortest_;
    std::int64_t lookBack_; ///< blocks after which the begin of a silence is looked up
    std::vector<Block> history_;
    std::int64_t number_ = 0; ///< of the block that is being filled
};
