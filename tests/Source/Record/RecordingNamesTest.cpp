// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/Record/RecordingNames.h"

#include "tests/support/Environment.h"

#include <QTemporaryDir>

namespace {

class RecordingNamesTest : public testing::Test {
protected:
    QString track(int n) const { return folder() + QStringLiteral("/Track%1.m4a").arg(n); }
    QString folder() const { return home.filePath(QStringLiteral("Music/here")); }
    void make(const QString& path) const {
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    }

    QTemporaryDir home;
    EnvironmentScope runtime{"XDG_RUNTIME_DIR", home.path().toUtf8()};
};

} // namespace

TEST_F(RecordingNamesTest, CreatesTheFolderAndStartsWithZero) {
    RecordingNames names;
    EXPECT_EQ(names.getAudioRecordPath(folder()), track(0));
    EXPECT_TRUE(QFileInfo(folder()).isDir());
}

TEST_F(RecordingNamesTest, SkipsFilesAndReservedNames) {
    make(track(0));
    RecordingNames names;
    EXPECT_EQ(names.getAudioRecordPath(folder()), track(1));
    EXPECT_EQ(names.getAudioRecordPath(folder()), track(2));
}

TEST_F(RecordingNamesTest, UsesFreedNumbersAgain) {
    make(track(0));
    RecordingNames names;
    const QString second = names.getAudioRecordPath(folder());
    names.release(second);
    EXPECT_EQ(names.getAudioRecordPath(folder()), track(1));
    QFile::remove(track(0));
    EXPECT_EQ(names.getAudioRecordPath(folder()), track(0));
}

TEST_F(RecordingNamesTest, RespectsNamesReservedByAnotherObject) {
    RecordingNames ours;
    RecordingNames theirs;
    EXPECT_EQ(theirs.getAudioRecordPath(folder()), track(0));
    EXPECT_EQ(ours.getAudioRecordPath(folder()), track(1));
    theirs.release(track(0));
    EXPECT_EQ(ours.getAudioRecordPath(folder()), track(0));
}

TEST_F(RecordingNamesTest, CountsABrokenLinkAsTaken) {
    QDir().mkpath(folder());
    ASSERT_TRUE(QFile::link(home.filePath(QStringLiteral("nowhere")), track(0)));
    RecordingNames names;
    EXPECT_EQ(names.getAudioRecordPath(folder()), track(1));
}

TEST_F(RecordingNamesTest, AcceptsAnyCharacterInTheFolderName) {
    RecordingNames names;
    const QString odd = home.filePath(QStringLiteral("a%1 $(b) 'c' ü"));
    EXPECT_EQ(names.getAudioRecordPath(odd + u'/'), odd + QStringLiteral("/Track0.m4a"));
}

TEST_F(RecordingNamesTest, ReturnsANameEvenWhenTheFolderCannotBeCreated) {
    make(home.filePath(QStringLiteral("file")));
    RecordingNames names;
    const QString within = home.filePath(QStringLiteral("file/folder"));
    EXPECT_EQ(names.getAudioRecordPath(within), within + QStringLiteral("/Track0.m4a"));
}

TEST_F(RecordingNamesTest, ReservesTheNextNameWithoutReadingTheFolder) {
    RecordingNames names;
    EXPECT_EQ(names.getAudioRecordPath(folder()), track(0));
    make(track(1));
    EXPECT_EQ(names.nextAudioRecordPath(folder()), track(1)) << "a look would have found the file";
    EXPECT_EQ(names.nextAudioRecordPath(folder()), track(2));
    const QString other = home.filePath(QStringLiteral("other"));
    EXPECT_EQ(names.nextAudioRecordPath(other), other + QStringLiteral("/Track0.m4a"));
    EXPECT_FALSE(QFileInfo::exists(other));
}

TEST_F(RecordingNamesTest, ReturnsItsOwnReservedNameWhenItIsTheFirstFreeOne) {
    RecordingNames names;
    EXPECT_EQ(names.getAudioRecordPath(folder()), track(0));
    const QString own = names.nextAudioRecordPath(folder());
    EXPECT_EQ(names.getAudioRecordPath(folder(), own), own);
    make(own);
    EXPECT_EQ(names.getAudioRecordPath(folder(), own), track(2)) << "a file came to stand there";
    names.release(track(0));
    EXPECT_EQ(names.getAudioRecordPath(folder(), own), track(0)) << "a freed number comes first";
}

TEST_F(RecordingNamesTest, ANameGivenBackIsUsedNext) {
    RecordingNames names;
    const QString first = names.getAudioRecordPath(folder());
    const QString second = names.nextAudioRecordPath(folder());
    names.giveBack(first);
    EXPECT_EQ(names.nextAudioRecordPath(folder()), first);
    EXPECT_EQ(names.nextAudioRecordPath(folder()), track(2)) << second.toStdString() << " is still reserved";
    names.giveBack(track(7));
    EXPECT_EQ(names.nextAudioRecordPath(folder()), track(3));
}

TEST_F(RecordingNamesTest, CountsOnlyNumbersInItsOwnNotation) {
    for (const char* name : {"Track0.m4a", "Track02.m4a", "Track1x.m4a", "Track1.m4r", "Track-1.m4a", "Track.m4a",
                             "Track99999999999999999999.m4a"})
        make(folder() + u'/' + QString::fromLatin1(name));
    QDir().mkpath(track(2));
    RecordingNames names;
    EXPECT_EQ(names.getAudioRecordPath(folder()), track(1));
    EXPECT_EQ(names.getAudioRecordPath(folder()), track(3)) << "a folder takes its name as well";
}

TEST_F(RecordingNamesTest, NumbersRingtonesFromTheSecondOn) {
    EXPECT_EQ(RecordingNames::nextRingtoneMakerFilePath(folder()), folder() + QStringLiteral("/Ringtone.m4r"));
    make(folder() + QStringLiteral("/Ringtone.m4r"));
    EXPECT_EQ(RecordingNames::nextRingtoneMakerFilePath(folder()), folder() + QStringLiteral("/Ringtone1.m4r"));
    EXPECT_EQ(RecordingNames::nextRingtoneMakerFilePath(folder()), folder() + QStringLiteral("/Ringtone1.m4r"));
    make(folder() + QStringLiteral("/Ringtone1.m4r"));
    EXPECT_EQ(RecordingNames::nextRingtoneMakerFilePath(folder()), folder() + QStringLiteral("/Ringtone2.m4r"));
}
