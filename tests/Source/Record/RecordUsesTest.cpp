// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// What the captured devices are needed for in each state of the recorder.
#include "tests/Source/Record/RecordFixture.h"

namespace {

using Use = Platform::InputUnit::Use;

class RecordUsesTest : public RecordFixture {
protected:
    [[nodiscard]] Use use(AudioObjectID device) { return hardware.stateOf(device)->use; }
};

} // namespace

TEST_F(RecordUsesTest, OnlyCheckedSourcesAreCaptured) {
    addMicrophone();
    addComputerAudio();
    begin();
    EXPECT_EQ(use(Microphone), Use::Now);
    EXPECT_EQ(use(ComputerAudio), Use::Nothing);
    controller->chooseRecordComputerAudio(true);
    controller->chooseRecordBuiltIn(false);
    EXPECT_EQ(use(Microphone), Use::Nothing);
    EXPECT_EQ(use(ComputerAudio), Use::Now);
}

TEST_F(RecordUsesTest, AnotherDeviceIsUsedLikeTheOneBefore) {
    addMicrophone();
    addHeadset();
    begin();
    controller->chooseRecordBuiltIn(false);
    controller->chooseBuiltInDevice(1);
    EXPECT_EQ(use(Headset), Use::Nothing);
    controller->chooseRecordBuiltIn(true);
    EXPECT_EQ(use(Headset), Use::Now);
}

TEST_F(RecordUsesTest, ALevelThatNobodySeesComesLaterUnlessItIsRecorded) {
    beginWithBoth();
    controller->setLevelSeen(false);
    EXPECT_EQ(use(Microphone), Use::Later);
    EXPECT_EQ(use(ComputerAudio), Use::Later);
    controller->startAndStopRecord();
    EXPECT_EQ(use(Microphone), Use::Now);
    EXPECT_EQ(use(ComputerAudio), Use::Now);
    playBoth(0.5F, 0.1);
    controller->pauseAndResumeRecord();
    EXPECT_EQ(use(Microphone), Use::Now);
    controller->startAndStopRecord();
    EXPECT_EQ(use(Microphone), Use::Later);
    controller->setLevelSeen(true);
    EXPECT_EQ(use(Microphone), Use::Now);
}

TEST_F(RecordUsesTest, ARecordingDoesNotWakeASourceThatDoesNotTakePart) {
    addMicrophone();
    addComputerAudio();
    begin();
    controller->startAndStopRecord();
    EXPECT_EQ(use(Microphone), Use::Now);
    EXPECT_EQ(use(ComputerAudio), Use::Nothing);
    controller->startAndStopRecord();
}

TEST_F(RecordUsesTest, AWaitThatRunsOnWithoutItsBoxIsStillHeard) {
    beginWithComputerAudioOnly();
    controller->setLevelSeen(false);
    controller->startAndStopRecord();
    EXPECT_EQ(use(ComputerAudio), Use::Now);
    controller->startAndStopRecord(); // before the first sound: the wait continues
    ASSERT_TRUE(controller->isWaittingForSound());
    controller->chooseRecordComputerAudio(false);
    EXPECT_EQ(use(ComputerAudio), Use::Later);
    play(ComputerAudio, 0.5F, 0.1);
    EXPECT_TRUE(waitFor([&] { return use(ComputerAudio) == Use::Now; })) << "it records";
}

TEST_F(RecordUsesTest, WhatCameBeforeTheFirstSoundIsKeptWithoutTheBoxToo) {
    defaults.setObject(PreferenceStore::PreferencePreRollMSKey, 2000);
    addMicrophone();
    addComputerAudio();
    begin();
    EXPECT_EQ(use(ComputerAudio), Use::Now);
}
