// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What a save of tags writes to the disk, and what it does not touch.
#include "Platform/Media/BasicID3Change.h"
#include "Platform/Media/linux/MediaFilesLinux.h"
#include "tests/support/ChildProcess.h"
#include "tests/support/Mpeg4Files.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using Platform::BasicID3Change;

namespace {

class InPlaceSave : public testing::Test {
protected:
    [[nodiscard]] QString path(const QString& name = u"a.m4a"_s) const { return folder_.filePath(name); }
    [[nodiscard]] QStringList hidden() const {
        return QDir(folder_.path()).entryList({u".*"_s}, QDir::Files | QDir::Hidden);
    }
    static quint64 inodeOf(const QString& file) {
        struct stat status {};
        EXPECT_EQ(::stat(QFile::encodeName(file).constData(), &status), 0);
        return status.st_ino;
    }
    /// Bytes that this process has passed to the kernel for writing.
    static qint64 bytesWritten() {
        QFile io(u"/proc/self/io"_s);
        EXPECT_TRUE(io.open(QIODevice::ReadOnly));
        for (const QByteArray& line : io.readAll().split('\n'))
            if (line.startsWith("wchar: "))
                return line.mid(7).toLongLong();
        ADD_FAILURE() << "the kernel does not say what was written";
        return 0;
    }

    QTemporaryDir folder_;
};

} // namespace

TEST_F(InPlaceSave, WritesNoAudioOfAFileWithItsIndexAtTheEnd) {
    ASSERT_TRUE(Mpeg4Files::make(path(), Mpeg4Files::Shape::IndexAtEnd, 600));
    const qint64 size = QFileInfo(path()).size();
    ASSERT_GT(size, 4'000'000);
    const QByteArray audio = Mpeg4Files::audioOf(path());
    const QString cover = path(u"cover.png"_s);
    ASSERT_TRUE(Mpeg4Files::noise(20).save(cover));
    ASSERT_EQ(::link(QFile::encodeName(path()).constData(), QFile::encodeName(path(u"second.m4a"_s)).constData()), 0);
    const bool hasAttributes = ::setxattr(QFile::encodeName(path()).constData(), "user.note", "kept", 4, 0) == 0;

    const qint64 before = bytesWritten();
    ASSERT_TRUE(BasicID3Change::writeTexts(path(), {.title = QString(2000, u'x')}));
    ASSERT_TRUE(BasicID3Change::copyWithArtwork(path(), cover, path()));
    EXPECT_LT(bytesWritten() - before, size / 4) << "only the index is written";

    EXPECT_EQ(BasicID3Change::read(path())->title.size(), 2000);
    EXPECT_EQ(BasicID3Change::read(path())->artwork, Mpeg4Files::contentOf(cover));
    EXPECT_EQ(Mpeg4Files::audioOf(path()), audio);
    EXPECT_EQ(inodeOf(path()), inodeOf(path(u"second.m4a"_s)));
    if (hasAttributes) {
        char note[5] = {};
        EXPECT_EQ(::getxattr(QFile::encodeName(path()).constData(), "user.note", note, 4), 4);
    }
    EXPECT_TRUE(hidden().isEmpty());
}

TEST_F(InPlaceSave, MakesReadersWaitForIt) {
    ASSERT_TRUE(Mpeg4Files::make(path(), Mpeg4Files::Shape::IndexAtEnd, 5));
    ChildProcess writer([this] {
        for (int i = 0;; ++i)
            if (!BasicID3Change::writeTexts(path(), {.title = QString(1 + i * 997 % 9000, u'x')}))
                return 1;
    });
    for (int i = 0; i < 1000; ++i) {
        const auto tags = BasicID3Change::read(path());
        ASSERT_TRUE(tags) << i << ": " << qPrintable(tags.error().text);
    }
    writer.kill();
}

TEST_F(InPlaceSave, NeverReplacesAnythingButAFile) {
    ASSERT_TRUE(Mpeg4Files::make(path()));
    const QString cover = path(u"cover.png"_s);
    ASSERT_TRUE(Mpeg4Files::noise(20).save(cover));
    const QString pipe = path(u"pipe.m4a"_s);
    ASSERT_EQ(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    EXPECT_FALSE(BasicID3Change::copyWithArtwork(path(), cover, pipe));
    EXPECT_FALSE(BasicID3Change::copyWithArtwork(path(), cover, folder_.path()));
    struct stat status {};
    ASSERT_EQ(::stat(QFile::encodeName(pipe).constData(), &status), 0);
    EXPECT_TRUE(S_ISFIFO(status.st_mode));
}

TEST_F(InPlaceSave, IgnoresHiddenFilesBesideTheRecording) {
    ASSERT_TRUE(Mpeg4Files::make(path(), Mpeg4Files::Shape::IndexAtEnd, 2));
    ASSERT_TRUE(BasicID3Change::writeTexts(path(), {.title = u"Before"_s}));
    const QByteArray before = Mpeg4Files::contentOf(path());
    // File names of an early version, created by another user who may write to the folder: a pipe, and arbitrary
    // content.
    const QString undo = path(u".sonaphex-%1.undo"_s.arg(inodeOf(path()), 0, 16));
    ASSERT_EQ(::mkfifo(QFile::encodeName(undo).constData(), 0666), 0);
    const auto media = Platform::createMediaFiles();
    EXPECT_EQ(BasicID3Change::read(path())->title, u"Before"_s);
    EXPECT_TRUE(media->info(path()));
    EXPECT_EQ(Mpeg4Files::contentOf(path()), before);
    EXPECT_TRUE(BasicID3Change::writeTexts(path(), {.title = u"After"_s}));
    EXPECT_EQ(BasicID3Change::read(path())->title, u"After"_s);
    ASSERT_TRUE(QFile::remove(undo));
    ASSERT_TRUE(Mpeg4Files::write(undo, before));
    EXPECT_EQ(BasicID3Change::read(path())->title, u"After"_s);
    EXPECT_EQ(Mpeg4Files::contentOf(undo), before) << "a file of somebody else is not removed either";
}
