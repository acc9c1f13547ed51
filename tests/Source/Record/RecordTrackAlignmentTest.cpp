// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/TrackAlignment.h"

TEST_F(TrackAlignment, TracksStayTogetherAlthoughTheirClocksDiffer) {
    expectAligned(40);
}

TEST_F(TrackAlignment, PartsAndPausesAreAtTheSameFrames) {
    begin(true, true);
    Ear input{Microphone, &sound, Rate, 0.0};
    Ear computer{ComputerAudio, &sound, Rate, 0.011};
    controller->startAndStopRecord();
    hearBoth(input, computer, 3);
    controller->pauseAndResumeRecord();
    hearBoth(input, computer, 4.5);
    controller->pauseAndResumeRecord();
    hearBoth(input, computer, 6);
    controller->splitTheRecord();
    hearBoth(input, computer, 9);
    controller->startAndStopRecord();
    ASSERT_TRUE(finished());
    ASSERT_EQ(delegate.paths.size(), 2);
    for (int part = 0; part < 2; ++part) {
        expectEqualLengths(part);
        const auto frames = std::uint32_t(framesOf(delegate.paths.at(part)));
        const auto one = excerpt(tracks(part).input, 0, frames);
        const auto other = excerpt(tracks(part).computer, 0, frames);
        EXPECT_LE(std::fabs(bestLag(one, other, 44100, 8000, 100)), 1) << "part " << part;
        EXPECT_LE(std::fabs(bestLag(one, other, frames - 30000, 8000, 100)), 1) << "part " << part;
    }
}
