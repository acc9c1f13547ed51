// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "RingtoneMaker/RingtoneFile.h"

#include "Platform/Foundation/Services.h"
#include "Source/Control/ConverterAudioControl.h"
#include "Source/Model/AudioRecordEntry.h"
#include "tests/fakes/FakeSourceFiles.h"
#include "tests/support/FileContent.h"

#include <QDir>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using FileContent::get;
using FileContent::put;

namespace {

class RingtoneFileTest : public testing::Test {
protected:
    RingtoneFileTest() {
        Platform::services().mediaFiles = &files;
        files.addSource(task.source, 60, [](int, std::int64_t) { return 0.5F; });
    }
    RingtoneFile::Result write(const std::function<bool(double)>& progress = [](double) { return true; }) {
        return RingtoneFile::write(converter, task, progress);
    }
    [[nodiscard]] QStringList everything() const { return FileContent::namesIn(folder.path()); }

    Platform::ServicesScope scope;
    FakeSourceFiles files;
    QTemporaryDir folder;
    ConverterAudioControl converter;
    RingtoneFile::Task task{
        folder.filePath(u"source.m4a"_s), folder.path(), folder.filePath(u"Ringtone.m4r"_s), 10, 20, 5, 5};
};

TEST_F(RingtoneFileTest, IsMpeg4WithFadesAndTheLengthOfTheRange) {
    const auto result = write();
    EXPECT_EQ(result.path, task.target);
    EXPECT_EQ(result.problem + result.damage, QString());
    EXPECT_EQ(files.last().type, kAudioFileM4AType);
    const auto& samples = files.last().samples.at(0);
    EXPECT_EQ(samples.size(), 862U * 512); // ten seconds, rounded up to whole blocks
    EXPECT_EQ(samples[0], 0);
    EXPECT_NEAR(samples[44100 * 5 / 2], 0.25, 0.001);
    EXPECT_NEAR(samples[441000 - 4410 - 44100 * 5 / 2], 0.25, 0.001);
    EXPECT_EQ(everything(), (QStringList{u"Ringtone.m4r"_s, u"source.m4a"_s}));
}

TEST_F(RingtoneFileTest, ReplacesTheGivenFileAndAnOldTemporaryOne) {
    put(task.target, "old");
    put(folder.filePath(u"TempRingtoneMakerAudio.m4r"_s), "left over");
    EXPECT_EQ(write().path, task.target);
    EXPECT_NE(get(task.target), "old");
    EXPECT_EQ(everything(), (QStringList{u"Ringtone.m4r"_s, u"source.m4a"_s}));
}

TEST_F(RingtoneFileTest, KeepsAFileThatAppearsAtTheTargetMeanwhile) {
    const auto result = write([&](double) {
        put(task.target, "of another program");
        return true;
    });
    EXPECT_EQ(result.path, folder.filePath(u"Ringtone1.m4r"_s));
    EXPECT_EQ(get(task.target), "of another program");
}

TEST_F(RingtoneFileTest, LeavesNothingWhenItIsStopped) {
    const auto result = write([](double share) { return share < 0.5; });
    EXPECT_EQ(result.path + result.problem, QString());
    EXPECT_EQ(everything(), QStringList{u"source.m4a"_s});
}

TEST_F(RingtoneFileTest, ReportsWhyThereIsNone) {
    files.clientFormatStatus = -1;
    EXPECT_FALSE(write().problem.isEmpty());
    files.clientFormatStatus = noErr;
    task.target = folder.filePath(u"missing/Ringtone.m4r"_s);
    EXPECT_TRUE(write().problem.contains(task.target));
    task.target.clear();
    EXPECT_FALSE(write().problem.isEmpty());
    task.target = folder.filePath(u"Ringtone.m4r"_s);
    task.source = folder.filePath(u"gone.m4a"_s);
    EXPECT_TRUE(write().problem.contains(u"gone.m4a"_s));
    EXPECT_EQ(everything(), QStringList{u"source.m4a"_s});
}

TEST_F(RingtoneFileTest, ReportsDamageInsideTheRange) {
    files.sources[task.source].failingRead = 3;
    EXPECT_EQ(write().path, task.target);
}

TEST_F(RingtoneFileTest, TagsAreTheRecordingsWithoutItsIdentity) {
    using namespace AudioRecordEntry;
    const Dictionary recording{
        {NodeDataKey, u"key"_s}, {Title, u"Song"_s}, {Artist, u"A"_s}, {Length, 60.0}, {u"other"_s, 7}};
    const Dictionary tags = RingtoneFile::tags(recording, u"/music/Ringtone2.m4r"_s, 12.5F);
    EXPECT_EQ(tags,
              (Dictionary{{Title, u"Song"_s}, {Artist, u"A"_s}, {Length, 12.5F}, {u"other"_s, 7}, {IsNew, true}}));
}

TEST_F(RingtoneFileTest, ATitleThatBeginsWithTrackBecomesTheFilesName) {
    const auto titleOf = [](const QString& title) {
        return RingtoneFile::tags({{AudioRecordEntry::Title, title}}, u"/music/Ringtone2.m4r"_s, 1)
            .value(AudioRecordEntry::Title)
            .toString();
    };
    EXPECT_EQ(titleOf(u"Track 03"_s), u"Ringtone2"_s);
    EXPECT_EQ(titleOf(u"Trackless"_s), u"Ringtone2"_s);
    EXPECT_EQ(titleOf(u"track"_s), u"track"_s);
    EXPECT_EQ(titleOf(u"My Track"_s), u"My Track"_s);
}

} // namespace
