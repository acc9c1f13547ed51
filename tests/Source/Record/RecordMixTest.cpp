// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Two sources with different clocks, the real encoders and the real mix: how far apart are they in the finished file?
#include "tests/support/RecordMix.h"
#include "Source/Model/AudioRecordEntry.h"
#include "tests/support/DiskCalls.h"

TEST_F(RecordMix, SourcesStayAlignedAlthoughTheirClocksDiffer) {
    expectTogether(40);
}

TEST_F(RecordMix, PartsOfTwoSourcesFitEndToEnd) {
    begin(true, true);
    Ear input{Microphone, &sound, Rate, 0.0};
    Ear computer{ComputerAudio, &otherSound, Rate, 0.011};
    controller->startAndStopRecord();
    for (int part = 1; part <= 4; ++part) {
        hearBoth(input, computer, part * 1.7);
        if (part < 4)
            controller->splitTheRecord();
    }
    controller->startAndStopRecord();
    ASSERT_TRUE(waitFor([this] { return controller->jobsInQueue() == 0; }, 120000));
    ASSERT_EQ(delegate.paths.size(), 4);
    AudioCheck::Channels all(2);
    std::vector<std::size_t> cuts;
    for (const QString& path : delegate.paths) {
        const auto part = decoded(path);
        ASSERT_EQ(part.size(), 2U);
        for (std::size_t channel = 0; channel < 2; ++channel)
            all[channel].insert(all[channel].end(), part[channel].begin(), part[channel].end());
        cuts.push_back(all[0].size());
    }
    for (const KnownSound* one : {&sound, &otherSound}) {
        std::vector<float> expected(all[0].size());
        for (std::size_t i = 0; i < expected.size(); ++i)
            expected[i] = one->at(double(i) / 44100);
        for (std::size_t i = 0; i + 1 < cuts.size(); ++i)
            for (const auto& channel : all) {
                // A cut is rounded to a frame, and so is each part's length.
                EXPECT_LE(std::fabs(bestLag(expected, channel, cuts[i] - 6000, 4000, 60)), 3) << "before cut " << i;
                EXPECT_LE(std::fabs(bestLag(expected, channel, cuts[i] + 2000, 4000, 60)), 3) << "after cut " << i;
            }
    }
}

TEST_F(RecordMix, TheMainThreadTouchesNoFileOfAFinishedRecording) {
    for (const bool both : {false, true}) {
        begin(true, both);
        Ear input{Microphone, &sound, Rate, 0.0};
        Ear computer{ComputerAudio, &sound, Rate, 0.0};
        controller->startAndStopRecord();
        hearBoth(input, computer, 2);
        const DiskCalls disk;
        controller->startAndStopRecord();
        ASSERT_TRUE(waitFor([this] { return controller->jobsInQueue() == 0; }, 120000));
        const auto calls = disk.calls();
        EXPECT_TRUE(std::ranges::any_of(calls, [](const auto& call) {
            return call.kind == DiskCalls::Call::Kind::Write;
        })) << "the tags are written in place";
        for (const auto& call : calls)
            EXPECT_NE(call.thread, std::this_thread::get_id()) << "call " << int(call.kind) << " waits for the disk";
        ASSERT_EQ(delegate.paths.size(), both ? 2 : 1);
        EXPECT_EQ(delegate.entries.back().value(AudioRecordEntry::Title).toString(),
                  QFileInfo(delegate.paths.back()).completeBaseName());
    }
}
