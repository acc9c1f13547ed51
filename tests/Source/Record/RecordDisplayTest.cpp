// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/Record/RecordDisplay.h"

#include "Source/Record/RecordStateController.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(RecordDisplay, ShowsReadyWhileNothingIsRecorded) {
    const auto on = RecordDisplay::of(0, 83, true);
    EXPECT_EQ(on.stateString, QStringLiteral("Ready"));
    EXPECT_EQ(on.timeString, QStringLiteral("00:00"));
    EXPECT_EQ(on.stateColor, Qt::black);
    const auto off = RecordDisplay::of(0, 83, false);
    EXPECT_EQ(off.stateString, QStringLiteral("Ready"));
    EXPECT_EQ(off.timeString, QStringLiteral("00:"));
}

TEST(RecordDisplay, BlinksTheDotsInRedWhileItRecords) {
    const auto on = RecordDisplay::of(1, 83.5F, true);
    EXPECT_EQ(on.stateString, QStringLiteral("Rec.."));
    EXPECT_EQ(on.timeString, QStringLiteral("01:23"));
    EXPECT_EQ(on.stateColor, Qt::red);
    const auto off = RecordDisplay::of(1, 83.5F, false);
    EXPECT_EQ(off.stateString, QStringLiteral("Rec"));
    EXPECT_EQ(off.timeString, QStringLiteral("01:23"));
}

TEST(RecordDisplay, BlinksTheSecondsWhilePaused) {
    const auto on = RecordDisplay::of(2, 83.5F, true);
    EXPECT_EQ(on.stateString, QStringLiteral("Pause"));
    EXPECT_EQ(on.timeString, QStringLiteral("01:23"));
    EXPECT_EQ(on.stateColor, Qt::black);
    const auto off = RecordDisplay::of(2, 83.5F, false);
    EXPECT_EQ(off.stateString, QStringLiteral("Pause"));
    EXPECT_EQ(off.timeString, QStringLiteral("01:"));
}

TEST(RecordDisplay, RestartsTheMinutesAfterAnHour) {
    EXPECT_EQ(RecordDisplay::of(1, 3599.5F, true).timeString, QStringLiteral("59:59"));
    EXPECT_EQ(RecordDisplay::of(1, 3600, true).timeString, QStringLiteral("00:00"));
    EXPECT_EQ(RecordDisplay::of(1, 3661, true).timeString, QStringLiteral("01:01"));
}

TEST(RecordDisplay, ChangesItsPhaseEveryHalfSecond) {
    EXPECT_TRUE(RecordDisplay::blinkOn(0));
    EXPECT_TRUE(RecordDisplay::blinkOn(0.4499));
    EXPECT_FALSE(RecordDisplay::blinkOn(0.45));
    EXPECT_FALSE(RecordDisplay::blinkOn(0.9499));
    EXPECT_TRUE(RecordDisplay::blinkOn(0.95));
    EXPECT_TRUE(RecordDisplay::blinkOn(817430400.0));
    EXPECT_FALSE(RecordDisplay::blinkOn(817430400.5));
}

TEST(RecordDisplay, BlinksTheConvertingNotice) {
    EXPECT_EQ(RecordDisplay::convertingTip(true),
              QStringLiteral("         Audio File Converting\n         Please Wait .."));
    EXPECT_EQ(RecordDisplay::convertingTip(false),
              QStringLiteral("         Audio File Converting\n         Please Wait "));
}

TEST(RecordDisplay, HeadlineShowsStateAndTimeWithHours) {
    EXPECT_EQ(RecordDisplay::headline(RecordState::Idle, 5), QString());
    EXPECT_EQ(RecordDisplay::headline(RecordState::Armed, 0), u"Waiting for the first sound"_s);
    EXPECT_EQ(RecordDisplay::headline(RecordState::Recording, 192.5), u"Recording 03:12"_s);
    EXPECT_EQ(RecordDisplay::headline(RecordState::Recording, 3725), u"Recording 1:02:05"_s);
    EXPECT_EQ(RecordDisplay::headline(RecordState::Paused, 59.5), u"Paused 00:59"_s);
    EXPECT_EQ(RecordDisplay::headline(RecordState::Finishing, 1), u"Finishing the recording"_s);
}
