// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/Record/CutOffRecordings.h"

#include "Platform/Foundation/FileManager.h"
#include "tests/Source/Record/RecordFixture.h"

using namespace Qt::StringLiterals;

namespace {

class CutOffRecordingsTest : public RecordFixture {
protected:
    /// Every raw file has a header from the start, as real ones have.
    void giveRawFilesAHeader() const {
        for (const QString& name : rawFiles()) {
            QFile file(g_strTmpPath + u'/' + name);
            ASSERT_TRUE(file.open(QIODevice::Append));
            file.write("header");
        }
    }
    [[nodiscard]] static QStringList kept() {
        return QDir(Platform::FileManager::unfinishedFolder()).entryList(QDir::Files, QDir::Name);
    }
};

} // namespace

TEST_F(CutOffRecordingsTest, KeepsARunningRecording) {
    beginWithBoth();
    controller->startAndStopRecord();
    playBoth(0.5F, 1);
    giveRawFilesAHeader();
    const QStringList raws = rawFiles();
    ASSERT_EQ(raws.size(), 2);
    CutOffRecordings::keep();
    EXPECT_EQ(kept(), raws);
    EXPECT_TRUE(rawFiles().isEmpty());
    CutOffRecordings::keep();
    EXPECT_EQ(kept(), raws) << "once";
}

TEST_F(CutOffRecordingsTest, LeavesAStoppedWait) {
    beginWithComputerAudioOnly();
    controller->startAndStopRecord();
    play(ComputerAudio, 0, 1);
    giveRawFilesAHeader();
    CutOffRecordings::keep();
    EXPECT_TRUE(kept().isEmpty()) << "nothing was recorded yet";
    controller->startAndStopRecord();
    CutOffRecordings::keep();
    EXPECT_TRUE(kept().isEmpty());
    EXPECT_EQ(rawFiles().size(), 1);
}

TEST_F(CutOffRecordingsTest, LeavesARecordingWithoutAFrame) {
    addMicrophone();
    begin();
    controller->startAndStopRecord();
    giveRawFilesAHeader();
    CutOffRecordings::keep();
    EXPECT_TRUE(kept().isEmpty());
}

TEST_F(CutOffRecordingsTest, LeavesTheRawFileThatTheFilterDropped) {
    beginWithBoth();
    controller->startAndStopRecord();
    playBoth(0.5F, 3);
    play(Microphone, 0.5F, 4);
    giveRawFilesAHeader();
    controller->startAndStopRecord();
    ASSERT_EQ(controller->droppedRecordings(), 1);
    ASSERT_TRUE(waitFor([this] { return rawFiles().size() == 1; }));
    CutOffRecordings::keep();
    EXPECT_TRUE(kept().isEmpty());
    EXPECT_EQ(rawFiles().size(), 1) << "the next launch deletes it";
}

TEST_F(CutOffRecordingsTest, LeavesADeliveredRecording) {
    beginWithBoth();
    setFilter(false);
    controller->startAndStopRecord();
    playBoth(0.5F, 1);
    controller->splitTheRecord();
    playBoth(0.5F, 1);
    controller->finishAll();
    ASSERT_EQ(delegate.paths.size(), 2);
    CutOffRecordings::keep();
    EXPECT_TRUE(kept().isEmpty());
    EXPECT_TRUE(QFileInfo::exists(track(0)));
}

TEST_F(CutOffRecordingsTest, LeavesTheRawFilesOfAnInterruptedMixToTheNextStart) {
    beginWithBoth();
    setFilter(false);
    media.holdMix = true;
    controller->startAndStopRecord();
    playBoth(0.5F, 1);
    const QStringList raws = rawFiles();
    controller->startAndStopRecord();
    ASSERT_TRUE(waitFor([this] { return media.mixesStarted == 1; }));
    CutOffRecordings::keep();
    EXPECT_TRUE(kept().isEmpty());
    EXPECT_EQ(rawFiles(), raws) << "the next start finishes the recording";
    media.holdMix = false;
    ASSERT_TRUE(queueDone());
}

TEST_F(CutOffRecordingsTest, AKeeperKeepsFilesWhenItIsDestroyed) {
    addMicrophone();
    begin();
    {
        const CutOffRecordings::Keeper keeper;
        controller->startAndStopRecord();
        play(Microphone, 0.5F, 1);
    }
    EXPECT_EQ(kept().size(), 1);
}

TEST_F(CutOffRecordingsTest, AnExitKeepsFilesBeforeTheNextLaunchCanDeleteThem) {
    // exit() does not run the caller's destructors: its objects, such as the lock of the running program, stay until
    // the end.
    const QString raw = g_strTmpPath + u"/BuiltInA0.m4a"_s;
    EXPECT_TRUE(QFile(raw).open(QIODevice::WriteOnly));
    EXPECT_EXIT(
        {
            const CutOffRecordings::Keeper keeper;
            CutOffRecordings::add(raw);
            std::exit(7);
        },
        testing::ExitedWithCode(7), "ended in the middle of a recording");
    EXPECT_EQ(kept(), QStringList{u"BuiltInA0.m4a"_s});
}
