// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Which recordings are too short to be kept.
#include "tests/Source/Record/RecordFixture.h"

using namespace Qt::StringLiterals;

namespace {
class ShortRecordingTest : public RecordFixture {};
} // namespace

TEST_F(ShortRecordingTest, AShortRecordingIsDroppedAndItsNameFreed) {
    addMicrophone();
    begin();
    record(Microphone, 0.5F, 3);
    EXPECT_EQ(controller->jobsInQueue(), 0);
    EXPECT_EQ(controller->droppedRecordings(), 1);
    EXPECT_TRUE(waitFor([this] { return rawFiles().isEmpty(); }));
    EXPECT_TRUE(delegate.paths.isEmpty());
    EXPECT_FALSE(QFileInfo::exists(track(0)));
    EXPECT_EQ(controller->getAudioRecordPath(), track(0));
}

TEST_F(ShortRecordingTest, ARecordingOfExactlyTheFilterTimeIsKept) {
    addMicrophone();
    begin();
    record(Microphone, 0.5F, 5);
    ASSERT_TRUE(queueDone());
    EXPECT_EQ(delegate.paths, QStringList{track(0)});
}

TEST_F(ShortRecordingTest, TheFilterReadsTheLeadingDigitsOfItsTime) {
    addMicrophone();
    setFilter(true, u"8 seconds"_s);
    begin();
    record(Microphone, 0.5F, 7.9);
    EXPECT_EQ(controller->droppedRecordings(), 1);
}

TEST_F(ShortRecordingTest, WithTheFilterOffEveryLengthIsKept) {
    addMicrophone();
    setFilter(false);
    begin();
    record(Microphone, 0.5F, 0.1);
    ASSERT_TRUE(queueDone());
    EXPECT_EQ(delegate.paths, QStringList{track(0)});
}

TEST_F(ShortRecordingTest, OneShortSourceDropsTheWholeRecording) {
    beginWithBoth();
    controller->startAndStopRecord();
    playBoth(0.5F, 3);
    play(Microphone, 0.5F, 4); // the computer-audio device delivers less
    controller->startAndStopRecord();
    EXPECT_EQ(controller->jobsInQueue(), 0);
    EXPECT_EQ(controller->droppedRecordings(), 1);
    // The raw file of the source that was long enough is kept until the next launch.
    ASSERT_TRUE(waitFor([this] { return rawFiles().size() == 1; }));
    EXPECT_TRUE(rawFiles().front().startsWith(u"BuiltInA"_s));
    EXPECT_EQ(controller->getAudioRecordPath(), track(0));
}
