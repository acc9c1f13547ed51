// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Foundation/Services.h"
#include "Source/BuiltInAudioRecord/BuildInAudioRecord.h"
#include "tests/fakes/FakeAudioHardware.h"

#include <gtest/gtest.h>

#include <vector>

TEST(ClippedCycles, AreThoseWithThreeFullSamplesInARow) {
    const Platform::ServicesScope scope;
    FakeAudioHardware hardware;
    Platform::services().audioHardware = &hardware;
    BuildInAudioRecord engine;
    ASSERT_TRUE(engine.configureAudioUnit(7));
    const std::vector<float> quiet(9, 0.2F);
    constexpr float full16Bit = 32767.0F / 32768;
    hardware.unit()->feed({{1, 1, 0.9F, 1, -1, 0.9F, 1, 1, 0.9F}, {0.2F, 0.2F, 0.2F, 0.2F, 0.2F, 0.2F, 0.2F, 1, 1}});
    EXPECT_EQ(engine.clippedCycles(), 0U) << "two samples can be a peak";
    std::uint64_t expected = 0;
    for (std::size_t at = 0; at + 3 <= quiet.size(); ++at)
        for (const bool isLeft : {true, false}) {
            std::vector<float> clipped = quiet;
            clipped[at] = full16Bit;
            clipped[at + 1] = -1.5F;
            clipped[at + 2] = -full16Bit;
            hardware.unit()->feed(isLeft ? std::vector{clipped, quiet} : std::vector{quiet, clipped});
            EXPECT_EQ(engine.clippedCycles(), ++expected) << "from sample " << at << ", left " << isLeft;
        }
    hardware.unit()->feed({{}, {}});
    hardware.unit()->feed({{1}, {1}});
    EXPECT_EQ(engine.clippedCycles(), expected);
}
