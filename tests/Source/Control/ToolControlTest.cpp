// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/Control/ToolControl.h"

#include "Platform/Foundation/Services.h"
#include "tests/fakes/FakeMediaFiles.h"
#include "tests/fakes/FakeWorkspace.h"
#include "tests/support/LogCatcher.h"

#include <QDir>
#include <QFile>
#include <QLoggingCategory>
#include <QPainter>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <sys/vfs.h>

using namespace Qt::StringLiterals;

namespace {

void writeFile(const QString& path, const QByteArray& content) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << qPrintable(path);
    file.write(content);
}

/// An MPEG-4 file whose brand makes file(1) report a protected format.
const QByteArray protectedFile = QByteArray::fromHex("0000001c667479704d344120") +
                                 QByteArray::fromHex("000000004d344120") + QByteArray("mp42isom") +
                                 QByteArray(64, '\0');

class Window : public ToolControl::WindowShower {
public:
    [[nodiscard]] bool isWindowVisible() const override { return visible; }
    void showWindow() override { calls += u"show"_s; }
    void makeKeyAndOrderFront() override { calls += u"front"_s; }
    void center() override { calls += u"center"_s; }

    bool visible = false;
    QStringList calls;
};

class RedBox : public ToolControl::Drawable {
public:
    explicit RedBox(QSizeF size) : size_(size) {}
    [[nodiscard]] QSizeF size() const override { return size_; }
    void drawInRect(QPainter& painter, const QRectF& rect) const override { painter.fillRect(rect, Qt::red); }

private:
    QSizeF size_;
};

} // namespace

TEST(ToolControl, CentresAWindowWhetherItIsVisibleOrNot) {
    Window window;
    ToolControl::showWindowNib(window);
    window.visible = true;
    ToolControl::showWindowNib(window);
    EXPECT_EQ(window.calls, (QStringList{u"front"_s, u"center"_s, u"show"_s, u"center"_s}));
}

TEST(ToolControl, WritesTimesWithTwoDigitsAndAsManyHoursAsThereAre) {
    EXPECT_EQ(ToolControl::getTimeString(0), u"00:00:00"_s);
    EXPECT_EQ(ToolControl::getTimeString(59), u"00:00:59"_s);
    EXPECT_EQ(ToolControl::getTimeString(3600), u"01:00:00"_s);
    EXPECT_EQ(ToolControl::getTimeString(3661), u"01:01:01"_s);
    EXPECT_EQ(ToolControl::getTimeString(100 * 3600), u"100:00:00"_s);
}

TEST(ToolControl, ReadsTheLengthOfAnAudioFile) {
    const Platform::ServicesScope scope;
    FakeMediaFiles files;
    files.infos[u"/a.m4a"_s].seconds = 12.25;
    Platform::services().mediaFiles = &files;
    EXPECT_FLOAT_EQ(ToolControl::getAudioLength(u"/a.m4a"_s), 12.25F);
    EXPECT_EQ(ToolControl::getAudioLength(u"/missing.m4a"_s), 0.0F);
}

TEST(ToolControl, CountsSmallFilesAsOneMegabyte) {
    const QTemporaryDir folder;
    const auto sizeOf = [&](qsizetype bytes) {
        const QString path = folder.filePath(u"file"_s);
        writeFile(path, QByteArray(bytes, 'x'));
        return ToolControl::getDirectorySize(path);
    };
    EXPECT_EQ(sizeOf(0), 0);
    EXPECT_EQ(sizeOf(10), 0);
    EXPECT_EQ(sizeOf(11), 1);
    EXPECT_EQ(sizeOf(500), 1);
    EXPECT_EQ(sizeOf(999999), 1);
    EXPECT_EQ(sizeOf(1000000), 1);
    EXPECT_EQ(sizeOf(2500000), 2);
    EXPECT_EQ(ToolControl::getDirectorySize(folder.filePath(u"missing"_s)), 0);
}

TEST(ToolControl, AddsUpAFolderWithItsWholeContent) {
    const QTemporaryDir folder;
    ASSERT_TRUE(QDir(folder.path()).mkpath(u"deep/deeper"_s));
    writeFile(folder.filePath(u"deep/.hidden"_s), QByteArray(1'600'000, 'x'));
    writeFile(folder.filePath(u"deep/deeper/file"_s), QByteArray(1'600'000, 'x'));
    // A circular link counts as itself, not as its target.
    ASSERT_TRUE(QFile::link(folder.path(), folder.filePath(u"deep/circle"_s)));
    EXPECT_EQ(ToolControl::getDirectorySize(folder.path()), 3);
}

TEST(ToolControl, ReportsFreeSpaceInBinaryMegabytes) {
    struct statfs status {};
    ASSERT_EQ(::statfs("/tmp", &status), 0);
    const auto expected = static_cast<double>(status.f_bfree) * static_cast<double>(status.f_bsize) / 1048576.0;
    const auto megabytes = static_cast<double>(ToolControl::getLocalSize(u"/tmp"_s));
    EXPECT_NEAR(megabytes, expected, expected / 20 + 2); // other processes write to the disk, too
    EXPECT_EQ(ToolControl::getLocalSize(u"/no/such/folder"_s), 0);
}

TEST(ToolControl, AcceptsNamesWithoutSeparators) {
    EXPECT_TRUE(ToolControl::isAvailable(u"My song 1.m4a"_s));
    EXPECT_TRUE(ToolControl::isAvailable(u""_s));
    EXPECT_FALSE(ToolControl::isAvailable(u"a/b"_s));
    EXPECT_FALSE(ToolControl::isAvailable(u"a\\b"_s));
    EXPECT_FALSE(ToolControl::isAvailable(u"a:b"_s));
}

TEST(ToolControl, FindsAProtectedFileInAFolderOfAnyDepth) {
    const QTemporaryDir folder;
    ASSERT_TRUE(QDir(folder.path()).mkpath(u"deep"_s));
    writeFile(folder.filePath(u"deep/song.txt"_s), "nothing of that kind");
    EXPECT_FALSE(ToolControl::hasDRMFile(folder.path()));
    writeFile(folder.filePath(u"deep/a $(song) \"x\".m4p"_s), protectedFile);
    ASSERT_TRUE(
        ToolControl::getFileInfoForFileCMD(folder.filePath(u"deep/a $(song) \"x\".m4p"_s)).contains(u" iTunes "_s));
    {
        const LogCatcher log;
        EXPECT_TRUE(ToolControl::findDRMForExtension(folder.path(), u"*.m4p"_s));
        EXPECT_TRUE(log.lines().join(u'\n').contains(u"taskOutput    =   "_s + folder.path() + u"/deep/a $(song)"_s));
    }
    EXPECT_FALSE(ToolControl::findDRMForExtension(folder.path(), u"*.m4a"_s));
    EXPECT_TRUE(ToolControl::hasDRMFile(folder.path()));
    EXPECT_TRUE(ToolControl::hasDRMFile(folder.filePath(u"deep/a $(song) \"x\".m4p"_s)));
}

TEST(ToolControl, SearchesOnlyMatchingFilesForProtection) {
    const QTemporaryDir folder;
    for (const QString& name : {u"song.M4A"_s, u"song.mp3"_s, u"song.m4r"_s}) {
        writeFile(folder.filePath(name), protectedFile);
        EXPECT_FALSE(ToolControl::hasDRMFile(folder.filePath(name))) << qPrintable(name);
    }
}

TEST(ToolControl, SearchesOnlyTheFirstTwentyThousandCharacters) {
    QLoggingCategory::setFilterRules(u"sonaphex.control.info=false"_s); // the line is as long as the output
    const QTemporaryDir folder;
    // Folders match the pattern, too, and are listed before their content: the file comes last.
    const auto protectedBelow = [&](int levels) {
        QString path = folder.path() + u'/' + QString::number(levels);
        for (int level = 0; level < levels; ++level)
            path += u'/' + QString(180, u'a') + u".m4a"_s;
        EXPECT_TRUE(QDir().mkpath(path));
        writeFile(path + u"/song.m4a"_s, protectedFile);
        return ToolControl::findDRMForExtension(folder.path() + u'/' + QString::number(levels), u"*.m4a"_s);
    };
    EXPECT_TRUE(protectedBelow(5));
    EXPECT_FALSE(protectedBelow(18));
    QLoggingCategory::setFilterRules({});
}

TEST(ToolControl, ReturnsTheDescriptionBehindTheFirstColon) {
    const QTemporaryDir folder;
    writeFile(folder.filePath(u"a.txt"_s), "plain words\n");
    EXPECT_EQ(ToolControl::getFileInfoForFileCMD(folder.filePath(u"a.txt"_s)), u" ASCII text\n"_s);
}

TEST(ToolControl, FindsTheFolderOfADvd) {
    const QTemporaryDir folder;
    EXPECT_EQ(ToolControl::isVIDEO_TS(u"/some/VIDEO_TS"_s), u"/some/VIDEO_TS"_s);
    EXPECT_EQ(ToolControl::isVIDEO_TS(u"/some/VIDEO_TS/"_s), u"/some/VIDEO_TS/"_s);
    EXPECT_TRUE(ToolControl::isVIDEO_TS(folder.path()).isNull());
    ASSERT_TRUE(QDir(folder.path()).mkdir(u"VIDEO_TS"_s));
    EXPECT_EQ(ToolControl::isVIDEO_TS(folder.path()), folder.filePath(u"VIDEO_TS"_s));
}

TEST(ToolControl, RecognisesDiscImagesByTheirExtension) {
    EXPECT_EQ(ToolControl::isISO(u"/a/disc.ISO"_s), u"/a/disc.ISO"_s);
    EXPECT_TRUE(ToolControl::isISO(u"/a/disc.dmg"_s).isNull());
    EXPECT_TRUE(ToolControl::isISO(u"/a.iso/disc"_s).isNull());
    EXPECT_TRUE(ToolControl::isISO(u"/a/.iso"_s).isNull());
    EXPECT_EQ(ToolControl::isDMG(u"disc.DmG"_s), u"disc.DmG"_s);
    EXPECT_EQ(ToolControl::getFirstImageFile({u"/a.txt"_s, u"/b.DMG"_s, u"/c.iso"_s}), u"/b.DMG"_s);
    EXPECT_TRUE(ToolControl::getFirstImageFile({u"/a.txt"_s}).isNull());
    EXPECT_TRUE(ToolControl::isDVDpath(u"/Volumes/Film"_s));
    EXPECT_FALSE(ToolControl::isDVDpath(u"/home/Volumes"_s));
}

TEST(ToolControl, MakesAPictureOfADrawable) {
    const QImage image = ToolControl::creatorImageFromStr(RedBox(QSizeF(20, 10)));
    EXPECT_EQ(image.size(), QSize(20, 10));
    EXPECT_EQ(image.pixelColor(0, 0), QColor(Qt::red));
    EXPECT_EQ(image.pixelColor(19, 9), QColor(Qt::red));
    EXPECT_TRUE(ToolControl::creatorImageFromStr(RedBox(QSizeF(0, 0))).isNull());
}

TEST(ToolControl, ShowsAFileInTheFileManager) {
    const Platform::ServicesScope scope;
    FakeWorkspace workspace;
    Platform::services().workspace = &workspace;
    ToolControl::openFile(u"/a b.m4a"_s);
    EXPECT_EQ(workspace.selected, QStringList{u"/a b.m4a"_s});
}
