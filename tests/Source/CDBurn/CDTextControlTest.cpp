// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/CDBurn/CDTextControl.h"

#include "Platform/Foundation/Services.h"
#include "Platform/Media/ExtAudioFile.h"
#include "Source/CDBurn/TrackEntry.h"
#include "Source/Model/AudioRecordEntry.h"
#include "tests/Platform/Media/MediaTestSupport.h"
#include "tests/fakes/FakeMediaFiles.h"
#include "tests/support/RunTool.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

class TrackEntries : public testing::Test {
protected:
    TrackEntries() { Platform::services().mediaFiles = &MediaTest::media(); }
    /// A real audio file of @p seconds; its extension chooses codec and container.
    QString sound(const QString& name, double seconds, const QStringList& options = {}) {
        const QString path = folder.filePath(name);
        QStringList arguments{u"-v"_s, u"error"_s,
                              u"-f"_s, u"lavfi"_s,
                              u"-i"_s, u"sine=frequency=440:sample_rate=44100:duration=%1"_s.arg(seconds)};
        const ToolResult made = runTool(u"ffmpeg"_s, arguments + options + QStringList{u"file:"_s + path});
        EXPECT_EQ(made.status, 0) << made.errors.constData();
        return path;
    }
    static int storedSeconds(const Dictionary& entry) { return entry.value(TrackEntry::FileTimeLong).toInt(); }
    static Dictionary recording(const QVariant& length) {
        return {{AudioRecordEntry::SavePath, u"/music/Track 1.m4a"_s}, {AudioRecordEntry::Length, length}};
    }

    const Platform::ServicesScope scope;
    QTemporaryDir folder;
};

} // namespace

TEST_F(TrackEntries, AFileOfLessThanTwoWholeSecondsIsRefused) {
    EXPECT_TRUE(CDTextControl::setAudioInfoForDic(sound(u"short.wav"_s, 1.9)).isEmpty());
    EXPECT_EQ(CAGetLengthOfAudioFile(folder.filePath(u"short.wav"_s)), 1U);
}

TEST_F(TrackEntries, AFileOfTwoSecondsCountsAsThree) {
    const QString path = sound(u"two.wav"_s, 2.0);
    const Dictionary entry = CDTextControl::setAudioInfoForDic(path);
    EXPECT_EQ(storedSeconds(entry), 3);
    EXPECT_EQ(entry.value(TrackEntry::FileTimeLong).typeId(), QMetaType::LongLong);
    EXPECT_EQ(entry.value(TrackEntry::FileSize).typeId(), QMetaType::Float);
    EXPECT_FLOAT_EQ(entry.value(TrackEntry::FileSize).toFloat(), 0.54F);
    EXPECT_EQ(entry.value(TrackEntry::FilePath).toString(), path);
    EXPECT_EQ(entry.value(TrackEntry::FileName).toString(), u"two.wav"_s);
    EXPECT_EQ(entry.value(TrackEntry::ChooseTheAudio), QVariant(true));
    EXPECT_FALSE(entry.contains(TrackEntry::NumberForMusic)) << "the list numbers its rows";
}

TEST_F(TrackEntries, AnyNameAndFormatIsMeasured) {
    for (const QString& ending : {u"m4a"_s, u"flac"_s, u"mp3"_s, u"ogg"_s, u"opus"_s, u"aiff"_s}) {
        const QString name = u"a; $(rm -rf x) 'é' %s\n."_s + ending;
        const Dictionary entry = CDTextControl::setAudioInfoForDic(sound(name, 10.4));
        EXPECT_EQ(storedSeconds(entry), 11) << qPrintable(ending);
        EXPECT_EQ(entry.value(TrackEntry::FileName).toString(), name);
    }
}

TEST_F(TrackEntries, TheLengthIsComputedFromThePackets) {
    FakeMediaFiles media;
    Platform::services().mediaFiles = &media;
    Platform::AudioFileInfo info;
    info.dataFormat.mSampleRate = 44100;
    info.dataFormat.mFramesPerPacket = 1024;
    info.packetCount = 87; // 2.02 s of packets contain 1.98 s of audio
    info.frameCount = 87318;
    media.infos.insert(u"/a.m4a"_s, info);
    EXPECT_EQ(CAGetLengthOfAudioFile(u"/a.m4a"_s), 2U);
    info.packetCount = 86;
    media.infos.insert(u"/a.m4a"_s, info);
    EXPECT_EQ(CAGetLengthOfAudioFile(u"/a.m4a"_s), 1U);
    info.dataFormat.mSampleRate = 0;
    media.infos.insert(u"/a.m4a"_s, info);
    EXPECT_EQ(CAGetLengthOfAudioFile(u"/a.m4a"_s), 0U) << "a header without a rate";
}

TEST_F(TrackEntries, AnUnreadableFileIsRefused) {
    EXPECT_TRUE(CDTextControl::setAudioInfoForDic(folder.path()).isEmpty()) << "a folder";
    EXPECT_TRUE(CDTextControl::setAudioInfoForDic(folder.filePath(u"gone.wav"_s)).isEmpty());
    QFile text(folder.filePath(u"text.wav"_s));
    ASSERT_TRUE(text.open(QIODevice::WriteOnly));
    text.write("This is not a sound.");
    text.close();
    EXPECT_TRUE(CDTextControl::setAudioInfoForDic(text.fileName()).isEmpty());

    Platform::AudioFileInfo file;
    EXPECT_NE(CreateAudioFileFromPath(folder.filePath(u"gone.wav"_s), file), noErr);
    EXPECT_NE(CreateAudioFileFromPath(folder.path(), file), noErr);
    EXPECT_EQ(CreateAudioFileFromPath(sound(u"a.wav"_s, 3), file), noErr);
    EXPECT_EQ(file.packetCount, 3 * 44100);
}

TEST_F(TrackEntries, ARecordingUsesItsStoredLength) {
    const Dictionary entry = CDTextControl::addRecordAudioInfoForDic(recording(125.9F));
    EXPECT_EQ(storedSeconds(entry), 126);
    EXPECT_FLOAT_EQ(entry.value(TrackEntry::FileSize).toFloat(), 22.68F);
    EXPECT_EQ(entry.value(TrackEntry::FilePath).toString(), u"/music/Track 1.m4a"_s);
    EXPECT_EQ(entry.value(TrackEntry::FileName).toString(), u"Track 1.m4a"_s);
    EXPECT_EQ(entry.value(TrackEntry::ChooseTheAudio), QVariant(true));
    EXPECT_TRUE(CDTextControl::addRecordAudioInfoForDic(recording(1.9F)).isEmpty());
    EXPECT_EQ(storedSeconds(CDTextControl::addRecordAudioInfoForDic(recording(2.0F))), 3);
}

TEST_F(TrackEntries, ARecordingWithoutALengthIsRefused) {
    EXPECT_TRUE(CDTextControl::addRecordAudioInfoForDic({{AudioRecordEntry::SavePath, u"/music/a.m4a"_s}}).isEmpty());
    EXPECT_TRUE(CDTextControl::addRecordAudioInfoForDic(recording(u"long"_s)).isEmpty());
    EXPECT_TRUE(CDTextControl::addRecordAudioInfoForDic(recording(-100.0)).isEmpty());
}

TEST_F(TrackEntries, AnImpossibleLengthDoesNotOverflow) {
    for (const double length : {1e30, -1e30, std::numeric_limits<double>::quiet_NaN()}) {
        const Dictionary entry = CDTextControl::addRecordAudioInfoForDic(recording(length));
        EXPECT_EQ(entry.isEmpty(), !(length > 0)) << length;
        EXPECT_GE(storedSeconds(entry), 0);
    }
}
