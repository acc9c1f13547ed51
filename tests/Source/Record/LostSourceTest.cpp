// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Recordings in which a device or the sound server is lost: the audio so far becomes the recording, and the user is
// informed.
#include "tests/Source/Record/RecordFixture.h"

using namespace Qt::StringLiterals;
using Event = Platform::InputUnit::Event;

namespace {

class LostSourceTest : public RecordFixture {
protected:
    void tell(AudioObjectID device, Event event) { hardware.unitOf(device)->tell(event); }
    [[nodiscard]] int notices(const QString& words) const { return int(controller->notices().filter(words).size()); }
};

} // namespace

TEST_F(LostSourceTest, TheFilterDoesNotMeasureASourceThatWentAwayAndStayedAway) {
    beginWithBoth();
    controller->startAndStopRecord();
    playBoth(0.5F, 2);
    tell(Microphone, Event::DeviceLost);
    play(ComputerAudio, 0.5F, 60);
    controller->startAndStopRecord();
    ASSERT_TRUE(queueDone());
    EXPECT_EQ(controller->droppedRecordings(), 0);
    EXPECT_EQ(delegate.paths, QStringList{track(0)});
    EXPECT_EQ(media.mixes().size(), 1U) << "the two seconds of the lost source are in it";
}

TEST_F(LostSourceTest, TheFilterDoesNotMeasureASourceThatCameBack) {
    beginWithBoth();
    controller->startAndStopRecord();
    playBoth(0.5F, 2);
    tell(ComputerAudio, Event::DeviceLost);
    play(Microphone, 0.5F, 8);
    tell(ComputerAudio, Event::DeviceReturned);
    playBoth(0.5F, 1);
    controller->startAndStopRecord();
    ASSERT_TRUE(queueDone());
    EXPECT_EQ(delegate.paths, QStringList{track(0)});
}

TEST_F(LostSourceTest, AShortRecordingWhoseOnlyDeviceWasLostIsKept) {
    addMicrophone();
    begin();
    media.seconds = 2;
    controller->startAndStopRecord();
    play(Microphone, 0.5F, 2);
    tell(Microphone, Event::DeviceLost);
    controller->startAndStopRecord();
    ASSERT_TRUE(queueDone());
    EXPECT_EQ(controller->droppedRecordings(), 0);
    EXPECT_EQ(delegate.paths, QStringList{track(0)}) << "it reaches the library too";
}

TEST_F(LostSourceTest, ARecordingEndedByTheServerIsKept) {
    beginWithBoth();
    media.seconds = 2;
    controller->startAndStopRecord();
    playBoth(0.5F, 2);
    tell(Microphone, Event::ServerLost);
    tell(ComputerAudio, Event::ServerLost);
    controller->startAndStopRecord();
    ASSERT_TRUE(queueDone());
    EXPECT_EQ(delegate.paths, QStringList{track(0)});
}

TEST_F(LostSourceTest, TheFilterStillMeasuresTheRemainingSource) {
    beginWithBoth();
    controller->startAndStopRecord();
    playBoth(0.5F, 1);
    tell(Microphone, Event::DeviceLost);
    play(ComputerAudio, 0.5F, 2);
    controller->startAndStopRecord();
    EXPECT_EQ(controller->droppedRecordings(), 1) << "the user ended it before the filter's time";
    EXPECT_EQ(controller->jobsInQueue(), 0);
}

TEST_F(LostSourceTest, ASourceWithoutAFrameIsLeftOut) {
    beginWithBoth();
    controller->startAndStopRecord();
    play(ComputerAudio, 0.5F, 6);
    controller->startAndStopRecord();
    ASSERT_TRUE(queueDone());
    EXPECT_EQ(controller->droppedRecordings(), 0);
    EXPECT_EQ(delegate.paths, QStringList{track(0)});
    EXPECT_TRUE(media.mixes().empty()) << "there is nothing to mix";
    EXPECT_EQ(notices(u"could not be read"_s), 0) << controller->notices().join(u'\n').toStdString();
    EXPECT_TRUE(rawFiles().isEmpty());
}

TEST_F(LostSourceTest, ARecordingWithoutAFrameIsDropped) {
    beginWithBoth();
    controller->startAndStopRecord();
    controller->startAndStopRecord();
    EXPECT_EQ(controller->droppedRecordings(), 1);
    EXPECT_EQ(controller->jobsInQueue(), 0);
    EXPECT_TRUE(waitFor([this] { return rawFiles().isEmpty(); }));
    EXPECT_EQ(controller->getAudioRecordPath(), track(0));
}

TEST_F(LostSourceTest, APartThatStartsWithoutTheDeviceIsNotMeasuredByIt) {
    beginWithBoth();
    controller->startAndStopRecord();
    playBoth(0.5F, 6);
    tell(Microphone, Event::DeviceLost);
    play(ComputerAudio, 0.5F, 1);
    controller->splitTheRecord();
    play(ComputerAudio, 0.5F, 6);
    tell(Microphone, Event::DeviceReturned);
    playBoth(0.5F, 1);
    controller->splitTheRecord();
    // In the third part both devices deliver to the end.
    playBoth(0.5F, 1);
    controller->startAndStopRecord();
    ASSERT_TRUE(queueDone());
    EXPECT_EQ(delegate.paths, (QStringList{track(0), track(1)}));
    EXPECT_EQ(controller->droppedRecordings(), 1);
}

TEST_F(LostSourceTest, TheTimeContinuesWithoutTheLostSource) {
    beginWithBoth();
    controller->setRecordLimit(10);
    controller->startAndStopRecord();
    play(ComputerAudio, 0.5F, 1);
    EXPECT_DOUBLE_EQ(controller->recordedSeconds(), 1) << "the input device has given nothing yet";
    playBoth(0.5F, 2);
    EXPECT_DOUBLE_EQ(controller->recordedSeconds(), 2);
    tell(Microphone, Event::DeviceLost);
    play(ComputerAudio, 0.5F, 20);
    EXPECT_DOUBLE_EQ(controller->recordedSeconds(), 10) << "a recording with a limit would never end";
    tell(ComputerAudio, Event::DeviceLost);
    EXPECT_DOUBLE_EQ(controller->recordedSeconds(), 10);
}

TEST_F(LostSourceTest, TheNextRecordingIsMeasuredAgain) {
    addMicrophone();
    begin();
    controller->startAndStopRecord();
    play(Microphone, 0.5F, 6);
    tell(Microphone, Event::DeviceLost);
    tell(Microphone, Event::DeviceReturned);
    controller->startAndStopRecord();
    ASSERT_TRUE(queueDone());
    record(Microphone, 0.5F, 2);
    EXPECT_EQ(controller->droppedRecordings(), 1);
}

TEST_F(LostSourceTest, AnArmedWaitReportsItsDeviceLostAndReturned) {
    beginWithComputerAudioOnly();
    controller->startAndStopRecord();
    ASSERT_TRUE(controller->isWaittingForSound());
    tell(Microphone, Event::DeviceLost);
    tell(ComputerAudio, Event::DeviceLost);
    EXPECT_TRUE(noticed(u"Computer audio went away. The wait for the first sound continues when it is back."_s));
    EXPECT_EQ(notices(u"The input device"_s), 0) << "it takes no part";
    EXPECT_TRUE(controller->isWaittingForSound());
    tell(ComputerAudio, Event::DeviceReturned);
    EXPECT_TRUE(noticed(u"Computer audio is back."_s));
}

TEST_F(LostSourceTest, AnArmedWaitReportsALostServer) {
    beginWithComputerAudioOnly();
    controller->startAndStopRecord();
    tell(Microphone, Event::ServerLost);
    tell(ComputerAudio, Event::ServerLost);
    EXPECT_TRUE(noticed(u"The sound server went away. The wait for the first sound continues when it is back."_s));
    EXPECT_EQ(notices(u"went away"_s), 1);
    tell(ComputerAudio, Event::ServerReturned);
    EXPECT_TRUE(noticed(u"Computer audio is back."_s));
}

TEST_F(LostSourceTest, NothingIsReportedWhileNothingIsRecorded) {
    beginWithComputerAudioOnly();
    tell(ComputerAudio, Event::DeviceLost);
    tell(ComputerAudio, Event::DeviceReturned);
    // Stop leaves the armed wait running, and the window shows that nothing is recorded.
    controller->startAndStopRecord();
    controller->startAndStopRecord();
    tell(ComputerAudio, Event::DeviceLost);
    QCoreApplication::processEvents();
    EXPECT_TRUE(controller->notices().isEmpty()) << controller->notices().join(u'\n').toStdString();
}
