// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Audio/Mixdown.h"

#include <cmath>
#include <gtest/gtest.h>

using namespace Platform;

namespace {

const float minus3dB = float(std::sqrt(0.5));

TEST(Mixdown, KeepsTheLevelOfFrontLeftAndRight) {
    EXPECT_EQ(stereoGainsOf("FL", 0), (StereoGains{1, 0}));
    EXPECT_EQ(stereoGainsOf("FR", 1), (StereoGains{0, 1}));
    EXPECT_EQ(stereoGainsOf("MONO", 0), (StereoGains{1, 1}));
}

TEST(Mixdown, LowersCentreAndSurroundsByThreeDecibels) {
    EXPECT_EQ(stereoGainsOf("FC", 2), (StereoGains{minus3dB, minus3dB}));
    for (const char* left : {"SL", "RL", "FLC", "RLC", "TFL", "TSL", "TRL", "FLW", "FLH"})
        EXPECT_EQ(stereoGainsOf(left, 5), (StereoGains{minus3dB, 0})) << left;
    for (const char* right : {"SR", "RR", "FRC", "RRC", "TFR", "TSR", "TRR", "FRW", "FRH"})
        EXPECT_EQ(stereoGainsOf(right, 4), (StereoGains{0, minus3dB})) << right;
}

TEST(Mixdown, MixesCentreChannelsToBothSides) {
    for (const char* middle : {"LFE", "RC", "TC", "TFC", "TRC"})
        EXPECT_EQ(stereoGainsOf(middle, 3), (StereoGains{0.5F, 0.5F})) << middle;
}

TEST(Mixdown, SpreadsChannelsWithoutAPositionOverBothSides) {
    EXPECT_EQ(stereoGainsOf("AUX0", 0), (StereoGains{1, 0}));
    EXPECT_EQ(stereoGainsOf("AUX1", 1), (StereoGains{0, 1}));
    EXPECT_EQ(stereoGainsOf("AUX2", 2), (StereoGains{minus3dB, 0}));
    EXPECT_EQ(stereoGainsOf("AUX7", 7), (StereoGains{0, minus3dB}));
    EXPECT_EQ(stereoGainsOf("", 3), (StereoGains{0, minus3dB}));
}

} // namespace
