// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/Record/SilenceSplitter.h"

#include <limits>

namespace {

constexpr std::uint64_t Millisecond = 1'000'000;

/// A splitter that has received the first sound, one millisecond after the epoch.
SilenceSplitter recordingSplitter() {
    SilenceSplitter splitter;
    splitter.arm();
    splitter.measure(0.5F, Millisecond, false);
    EXPECT_TRUE(splitter.soundBegins(0.5F));
    return splitter;
}

} // namespace

TEST(SilenceSplitter, WaitsForASoundAboveTheThreshold) {
    SilenceSplitter splitter;
    splitter.arm();
    EXPECT_FALSE(splitter.soundBegins(0));
    EXPECT_FALSE(splitter.soundBegins(1e-6F));
    EXPECT_FALSE(splitter.soundBegins(std::numeric_limits<float>::quiet_NaN()));
    EXPECT_TRUE(splitter.isWaitting());
    EXPECT_TRUE(splitter.soundBegins(1.1e-6F));
    EXPECT_FALSE(splitter.isWaitting());
    EXPECT_TRUE(splitter.isOnlyComputerAudioRecording());
}

TEST(SilenceSplitter, CutsWhenASilenceHasLastedTheSplitTime) {
    auto splitter = recordingSplitter();
    for (int ms = 10; ms < 300; ms += 10) {
        splitter.measure(0, Millisecond + ms * Millisecond, true);
        EXPECT_FALSE(splitter.wantsCut(300, false)) << ms;
    }
    splitter.measure(0, Millisecond + 300 * Millisecond, true);
    EXPECT_EQ(splitter.computerAudioNullTimeMs(), 300);
    EXPECT_TRUE(splitter.wantsCut(300, false));
}

TEST(SilenceSplitter, CountsWholeMillisecondsOfEachCycle) {
    auto splitter = recordingSplitter();
    std::uint64_t now = Millisecond;
    for (int cycle = 0; cycle < 10; ++cycle)
        splitter.measure(0, now += 21'333'333, true);
    EXPECT_EQ(splitter.computerAudioNullTimeMs(), 210);
}

TEST(SilenceSplitter, CountsCyclesShorterThanAMillisecond) {
    auto splitter = recordingSplitter();
    std::uint64_t now = Millisecond;
    for (int cycle = 0; cycle < 3000; ++cycle)
        splitter.measure(0, now += Millisecond / 4, true);
    EXPECT_EQ(splitter.computerAudioNullTimeMs(), 750);
}

TEST(SilenceSplitter, EverySoundRestartsTheCount) {
    auto splitter = recordingSplitter();
    splitter.measure(0, 200 * Millisecond, true);
    splitter.measure(1e-6F, 210 * Millisecond, true);
    EXPECT_EQ(splitter.computerAudioNullTimeMs(), 0);
    splitter.measure(0, 500 * Millisecond, true);
    EXPECT_EQ(splitter.computerAudioNullTimeMs(), 290);
}

TEST(SilenceSplitter, DoesNotCountWhilePaused) {
    auto splitter = recordingSplitter();
    splitter.measure(0, 100 * Millisecond, true);
    splitter.measure(0, 5000 * Millisecond, false);
    splitter.measure(0, 5010 * Millisecond, true);
    EXPECT_EQ(splitter.computerAudioNullTimeMs(), 99 + 10);
}

TEST(SilenceSplitter, TimeWithoutTheDeviceDoesNotCountAsSilence) {
    auto splitter = recordingSplitter();
    splitter.measure(0, 100 * Millisecond, true);
    splitter.restartClock();
    splitter.measure(0, 9000 * Millisecond, true);
    splitter.measure(0, 9020 * Millisecond, true);
    EXPECT_EQ(splitter.computerAudioNullTimeMs(), 99 + 20);
}

TEST(SilenceSplitter, NeverCutsWhenSplittingIsOffOrTheInputIsOn) {
    auto splitter = recordingSplitter();
    splitter.measure(0, 60'000 * Millisecond, true);
    EXPECT_FALSE(splitter.wantsCut(-1, false));
    EXPECT_FALSE(splitter.wantsCut(300, true));
    EXPECT_TRUE(splitter.wantsCut(300, false));
}

TEST(SilenceSplitter, ASplitTimeOfZeroCutsAtEverySilentCycle) {
    auto splitter = recordingSplitter();
    splitter.measure(0, 2 * Millisecond, true);
    EXPECT_TRUE(splitter.wantsCut(0, false));
}

TEST(SilenceSplitter, CutsEachSilenceOnce) {
    auto splitter = recordingSplitter();
    splitter.measure(0, 301 * Millisecond, true);
    ASSERT_TRUE(splitter.wantsCut(300, false));
    splitter.clear();
    splitter.arm();
    splitter.measure(0, 900 * Millisecond, true);
    EXPECT_FALSE(splitter.wantsCut(300, false));
    splitter.measure(0.1F, 910 * Millisecond, true);
    EXPECT_TRUE(splitter.soundBegins(0.1F));
    splitter.measure(0, 1210 * Millisecond, true);
    EXPECT_TRUE(splitter.wantsCut(300, false));
}
