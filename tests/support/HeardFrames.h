// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tests/support/TestSource.h"

#include <cstdint>
#include <vector>

#include <gtest/gtest.h>

/// The frame numbers that a captured ramp encodes, in order. Silence is left out and counted separately.
/// A busy machine loses whole cycles of the server, also on the way to the capture. Those losses are multiples of the
/// cycle, so they can be distinguished from errors of the code under test.
struct HeardFrames {
    static constexpr std::int64_t cycle = 1024;

    std::vector<std::int64_t> frames;
    std::size_t lostCycles = 0;
    testing::AssertionResult exact = testing::AssertionSuccess(); ///< except for whole cycles
    std::size_t longestRun = 0;                                   ///< frames without any loss
    std::size_t silentWithin = 0; ///< frames of silence between the first and the last frame that was heard

    explicit HeardFrames(const std::vector<float>& stereo) {
        std::size_t run = 0;
        std::size_t silent = 0;
        for (std::size_t i = 0; i + 1 < stereo.size(); i += 2) {
            if (stereo[i] == 0 && stereo[i + 1] == 0) {
                ++silent;
                continue;
            }
            silentWithin += frames.empty() ? 0 : silent;
            silent = 0;
            const std::int64_t frame = Signal::rampFrame(stereo[i], 0);
            if (Signal::rampFrame(stereo[i + 1], 1) != std::uint32_t(frame))
                exact = testing::AssertionFailure() << "the channels differ at frame " << frame;
            const auto step = frames.empty() ? 1 : frame - frames.back();
            if (step < 1 || (step - 1) % cycle != 0)
                exact = testing::AssertionFailure() << "frame " << frame << " after " << frames.back();
            lostCycles += std::size_t((step - 1) / cycle);
            run = step == 1 ? run + 1 : 1;
            longestRun = std::max(longestRun, run);
            frames.push_back(frame);
        }
    }
};
