// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The machine stays awake while an engine records, whatever state the buttons show.
#include "tests/Source/Record/RecordFixture.h"
#include "tests/fakes/FakeSleepInhibitor.h"

#include <thread>

using namespace Qt::StringLiterals;

namespace {

class RecordSleepTest : public RecordFixture {
protected:
    void SetUp() override {
        RecordFixture::SetUp();
        Platform::services().sleepInhibitor = &sleep;
    }
    /// Feeds from another thread, like the engine's I/O thread.
    void hearFromAnotherThread(float value, double seconds) {
        std::thread([&] { play(ComputerAudio, value, seconds); }).join();
    }
    FakeSleepInhibitor sleep;
};

} // namespace

TEST_F(RecordSleepTest, ARecordingInhibitsSleep) {
    addMicrophone();
    begin();
    EXPECT_FALSE(sleep.inhibited);
    controller->startAndStopRecord();
    EXPECT_TRUE(sleep.inhibited);
    EXPECT_EQ(sleep.why, u"A recording is running."_s);
    controller->pauseAndResumeRecord();
    EXPECT_TRUE(sleep.inhibited) << "the user comes back to it";
    controller->pauseAndResumeRecord();
    controller->startAndStopRecord();
    EXPECT_FALSE(sleep.inhibited);
}

TEST_F(RecordSleepTest, AnArmedWaitInhibitsSleep) {
    beginWithComputerAudioOnly();
    controller->startAndStopRecord();
    EXPECT_TRUE(sleep.inhibited) << "asleep it would miss the sound";
    hearFromAnotherThread(0.25F, 1);
    QCoreApplication::processEvents();
    EXPECT_TRUE(sleep.inhibited);
}

TEST_F(RecordSleepTest, AStoppedWaitThatStartsToRecordInhibitsSleep) {
    beginWithComputerAudioOnly();
    controller->startAndStopRecord();
    controller->startAndStopRecord();
    EXPECT_FALSE(sleep.inhibited);
    hearFromAnotherThread(0.25F, 1);
    EXPECT_TRUE(waitFor([this] { return sleep.inhibited; }));
    EXPECT_FALSE(controller->isStateAudioRecord()) << "the buttons show no recording";
    controller->finishAll();
    EXPECT_FALSE(sleep.inhibited);
}

TEST_F(RecordSleepTest, SleepIsNotInhibitedAfterTheControllerIsDestroyed) {
    addMicrophone();
    begin();
    controller->startAndStopRecord();
    controller.reset();
    EXPECT_FALSE(sleep.inhibited);
}
