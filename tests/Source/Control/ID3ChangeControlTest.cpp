// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/Control/ID3ChangeControl.h"

#include "Platform/Foundation/MovedFiles.h"
#include "Platform/Foundation/Services.h"
#include "Platform/Media/BasicID3Change.h"
#include "Source/Model/AudioRecordEntry.h"
#include "Source/Preferences/PreferenceStore.h"
#include "tests/fakes/FakeBundle.h"
#include "tests/support/ChildProcess.h"
#include "tests/support/Environment.h"
#include "tests/support/Mpeg4Files.h"
#include "tests/support/WaitFor.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using Platform::BasicID3Change;

namespace {

const QString toolPath = QStringLiteral(SONAPHEX_BIN_DIR "/Resources/SetArtWork");

class ID3Change : public testing::Test {
protected:
    ID3Change() : tmpBefore_(g_strTmpPath) {
        bundle_.resources = resources_.path();
        Platform::services().bundle = &bundle_;
        g_strTmpPath = temporary_.path();
        QFile::link(toolPath, resources_.filePath(u"SetArtWork"_s));
        QFile::copy(QStringLiteral(SONAPHEX_SOURCE_DIR "/Resources/AudioArtwork.png"),
                    resources_.filePath(u"AudioArtwork.png"_s));
        EXPECT_TRUE(Mpeg4Files::make(path()));
    }
    ~ID3Change() override { g_strTmpPath = tmpBefore_; }

    [[nodiscard]] QString path(const QString& name = u"a.m4a"_s) const { return music_.filePath(name); }
    [[nodiscard]] QString image(const char* format = "PNG") const {
        const QString name = music_.filePath(u"image"_s);
        EXPECT_TRUE(Mpeg4Files::noise(30).save(name, format));
        return name;
    }
    void removeTool() const { QFile::remove(resources_.filePath(u"SetArtWork"_s)); }
    [[nodiscard]] static QStringList filesIn(const QTemporaryDir& folder) {
        return QDir(folder.path()).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    }

    Platform::ServicesScope scope_;
    FakeBundle bundle_;
    QTemporaryDir resources_;
    QTemporaryDir temporary_;
    QTemporaryDir music_;
    QString tmpBefore_;
};

Dictionary info(const QString& title = u"Title"_s, const QVariant& year = 2012) {
    return {{AudioRecordEntry::Title, title},      {AudioRecordEntry::Artist, u"Artist"_s},
            {AudioRecordEntry::Album, u"Album"_s}, {AudioRecordEntry::Year, year},
            {AudioRecordEntry::Genre, u"Genre"_s}, {AudioRecordEntry::Artwork, QByteArray("not used here")}};
}

} // namespace

TEST_F(ID3Change, RendersImagesAsJpegUnderCountedNames) {
    const QString first = ID3ChangeControl::createPathForImage(Mpeg4Files::noise(20));
    const QString second = ID3ChangeControl::createPathForImage(Mpeg4Files::noise(20));
    static const QRegularExpression pattern(u"^/ArtworkImage(\\d+)\\.png$"_s);
    const auto number = [&](const QString& path) {
        const auto match = pattern.match(path.mid(temporary_.path().size()));
        return match.hasMatch() ? match.captured(1).toInt() : -1;
    };
    EXPECT_GE(number(first), 0);
    EXPECT_EQ(number(second), number(first) + 1);
    EXPECT_TRUE(Mpeg4Files::contentOf(first).startsWith("\xff\xd8\xff"));
    EXPECT_EQ(QImage(first).size(), QSize(20, 20));
}

TEST_F(ID3Change, ShowsWhiteThroughATransparentImage) {
    QImage clear(8, 8, QImage::Format_ARGB32);
    clear.fill(Qt::transparent);
    EXPECT_EQ(QImage(ID3ChangeControl::createPathForImage(clear)).pixelColor(4, 4), QColor(Qt::white));
}

TEST_F(ID3Change, InPlaceWithoutArtworkSetsTheDefaultOneAndLeavesNothingBehind) {
    const QByteArray audio = Mpeg4Files::audioOf(path());
    ID3ChangeControl::changeID3(path(), path(), info(), QString());
    const auto tags = BasicID3Change::read(path());
    ASSERT_TRUE(tags);
    EXPECT_EQ(tags->title, u"Title"_s);
    EXPECT_EQ(tags->genre, u"Genre"_s);
    EXPECT_EQ(tags->artwork, Mpeg4Files::contentOf(resources_.filePath(u"AudioArtwork.png"_s)));
    EXPECT_EQ(Mpeg4Files::audioOf(path()), audio);
    EXPECT_EQ(filesIn(temporary_), QStringList{u"AudioImageSource.png"_s});
    EXPECT_EQ(filesIn(music_), QStringList{u"a.m4a"_s});
}

TEST_F(ID3Change, WithoutTheToolKeepsTheFileInPlace) {
    removeTool();
    const QByteArray before = Mpeg4Files::contentOf(path());
    ID3ChangeControl::changeID3(path(), path(), info(), image());
    EXPECT_EQ(Mpeg4Files::contentOf(path()), before);
    EXPECT_TRUE(filesIn(temporary_).isEmpty());
    ID3ChangeControl::changeID3(path(), path(u"b.m4a"_s), info(), image());
    EXPECT_EQ(Mpeg4Files::contentOf(path()), before);
    EXPECT_FALSE(QFile::exists(path(u"b.m4a"_s)));
}

TEST_F(ID3Change, FromOnePathToAnotherIsAMove) {
    ID3ChangeControl::changeID3(path(), path(u"New Title.m4a"_s), info(), image("JPEG"));
    EXPECT_FALSE(QFile::exists(path()));
    const auto tags = BasicID3Change::read(path(u"New Title.m4a"_s));
    ASSERT_TRUE(tags);
    EXPECT_EQ(tags->title, u"Title"_s);
    EXPECT_EQ(tags->artwork, Mpeg4Files::contentOf(music_.filePath(u"image"_s)));
}

TEST_F(ID3Change, WithAnInvalidImageKeepsTheSource) {
    const QString bad = path(u"bad.png"_s);
    ASSERT_TRUE(Mpeg4Files::write(bad, "no image"));
    const QByteArray before = Mpeg4Files::contentOf(path());
    ID3ChangeControl::changeID3(path(), path(), info(), bad);
    EXPECT_EQ(Mpeg4Files::contentOf(path()), before);
    ID3ChangeControl::changeID3(path(), path(u"b.m4a"_s), info(), bad);
    EXPECT_EQ(Mpeg4Files::contentOf(path()), before);
    EXPECT_FALSE(QFile::exists(path(u"b.m4a"_s)));
    ID3ChangeControl::changeID3ArtworkInfo(path(), bad);
    EXPECT_EQ(Mpeg4Files::contentOf(path()), before);
    EXPECT_TRUE(filesIn(temporary_).isEmpty());
}

TEST_F(ID3Change, KeepsAnotherFileAtTheDestination) {
    const QTemporaryDir data;
    const EnvironmentScope scope("XDG_DATA_HOME", data.path().toUtf8());
    ASSERT_TRUE(Mpeg4Files::write(path(u"b.m4a"_s), "someone else's recording"));
    const QString bad = path(u"bad.png"_s);
    ASSERT_TRUE(Mpeg4Files::write(bad, "no image"));
    ID3ChangeControl::changeID3(path(), path(u"b.m4a"_s), info(), bad);
    EXPECT_EQ(Mpeg4Files::contentOf(path(u"b.m4a"_s)), "someone else's recording");
    EXPECT_TRUE(QFile::exists(path()));

    ID3ChangeControl::changeID3(path(), path(u"b.m4a"_s), info(), image());
    EXPECT_EQ(BasicID3Change::read(path(u"b.m4a"_s))->title, u"Title"_s);
    const QDir unfinished(data.filePath(u"com.korvane.Sonaphex/Unfinished"_s));
    ASSERT_EQ(unfinished.entryList(QDir::Files).size(), 1);
    EXPECT_EQ(Mpeg4Files::contentOf(unfinished.filePath(unfinished.entryList(QDir::Files).first())),
              "someone else's recording");
}

TEST_F(ID3Change, OfTheArtworkOnlyKeepsTheTextTags) {
    ASSERT_TRUE(ID3ChangeControl::changeID3BasicInfo(path(), info()));
    ID3ChangeControl::changeID3ArtworkInfo(path(), image());
    const auto tags = BasicID3Change::read(path());
    ASSERT_TRUE(tags);
    EXPECT_EQ(tags->title, u"Title"_s);
    EXPECT_EQ(tags->artwork, Mpeg4Files::contentOf(music_.filePath(u"image"_s)));
    EXPECT_TRUE(filesIn(temporary_).isEmpty());
}

TEST_F(ID3Change, OfALinkChangesItsTarget) {
    ASSERT_TRUE(QDir(music_.path()).mkpath(u"real"_s));
    ASSERT_TRUE(QFile::rename(path(), path(u"real/a.m4a"_s)));
    ASSERT_EQ(::symlink("real/a.m4a", QFile::encodeName(path()).constData()), 0);
    const QByteArray audio = Mpeg4Files::audioOf(path());
    ID3ChangeControl::changeID3(path(), path(), info(), image());
    EXPECT_EQ(QFileInfo(path()).symLinkTarget(), path(u"real/a.m4a"_s));
    EXPECT_EQ(BasicID3Change::read(path())->title, u"Title"_s);
    const QString other = image("JPEG");
    ID3ChangeControl::changeID3ArtworkInfo(path(), other);
    EXPECT_EQ(QFileInfo(path()).symLinkTarget(), path(u"real/a.m4a"_s));
    EXPECT_EQ(BasicID3Change::read(path())->artwork, Mpeg4Files::contentOf(other));
    EXPECT_EQ(Mpeg4Files::audioOf(path()), audio);
}

TEST_F(ID3Change, IgnoresFilesLeftInTheTemporaryFolder) {
    const QByteArray audio = Mpeg4Files::audioOf(path());
    for (int number = 0; number < 300; ++number)
        for (const QString& name : {u"tempID3Audio%1.m4a"_s, u"tempID3AudioTT%1.m4a"_s})
            ASSERT_TRUE(Mpeg4Files::write(temporary_.filePath(name.arg(number)), "another recording"));
    ID3ChangeControl::changeID3(path(), path(), info(), image());
    ID3ChangeControl::changeID3ArtworkInfo(path(), image("JPEG"));
    EXPECT_EQ(Mpeg4Files::audioOf(path()), audio);
    EXPECT_EQ(BasicID3Change::read(path())->title, u"Title"_s);
    EXPECT_EQ(filesIn(temporary_).size(), 600);
}

TEST_F(ID3Change, AcceptsAYearAsTextOrNumber) {
    ASSERT_TRUE(ID3ChangeControl::changeID3Info(path(), info(u"x"_s, u"2012"_s)));
    const QByteArray asText = Mpeg4Files::contentOf(path());
    ASSERT_TRUE(ID3ChangeControl::changeID3Info(path(), info(u"x"_s, 2012)));
    EXPECT_EQ(Mpeg4Files::contentOf(path()), asText);
    EXPECT_EQ(BasicID3Change::read(path())->year, 2012);
}

TEST_F(ID3Change, WithoutAnyKeyClearsTheTags) {
    ASSERT_TRUE(ID3ChangeControl::changeID3Info(path(), info()));
    ASSERT_TRUE(ID3ChangeControl::changeID3Info(path(), {}));
    const auto tags = BasicID3Change::read(path());
    EXPECT_TRUE(tags->title.isNull() || tags->title.isEmpty());
    EXPECT_EQ(tags->year, 0);
}

TEST_F(ID3Change, OfAMissingFileFailsAndCreatesNone) {
    EXPECT_FALSE(ID3ChangeControl::changeID3BasicInfo(path(u"none.m4a"_s), info()));
    ID3ChangeControl::changeID3(path(u"none.m4a"_s), path(u"none.m4a"_s), info(), QString());
    ID3ChangeControl::changeID3(path(u"none.m4a"_s), path(u"other.m4a"_s), info(), QString());
    ID3ChangeControl::changeID3ArtworkInfo(path(u"none.m4a"_s), QString());
    EXPECT_EQ(filesIn(music_), QStringList{u"a.m4a"_s});
}

TEST_F(ID3Change, NeverLetsTheShellInterpretAPath) {
    const QStringList names{u"$(touch x)"_s,   u"`touch x`"_s, u"a\"b"_s,         u"a\\"_s,    u"\\\"; touch x; \""_s,
                            u"$HOME"_s,        u"${HOME}"_s,   u"a\nb"_s,         u"a\\\nb"_s, u"!!"_s,
                            u"a'b"_s,          u"* ?[a]"_s,    u"a;b&c|d<e>f"_s,  u"-rf"_s,    u"~"_s,
                            u"#a"_s,           u"%s%n"_s,      u"\r\t\x01\x7f"_s, u"日本 🎵"_s, u"$"_s,
                            u"\\$(touch x)"_s, u"a  b   "_s,   u"\"\""_s,         u"\\n"_s,    u"$((1+1))"_s,
                            u"{a,b}"_s,        u"(a)"_s,       u"a=b"_s,          u"%@"_s};
    QDir::setCurrent(music_.path()); // where a command "touch" would create its file
    int round = 0;
    for (const QString& name : names) {
        const QString source = path(name + u".m4a"_s);
        const QString cover = path(name + u".png"_s);
        const QString destination = path(name + u" new.m4a"_s);
        ASSERT_TRUE(QFile::copy(path(), source)) << qPrintable(name);
        ASSERT_TRUE(Mpeg4Files::noise(5 + round++ % 5).save(cover, "PNG"));
        ID3ChangeControl::changeID3(source, destination, info(name), cover);
        const auto tags = BasicID3Change::read(destination);
        ASSERT_TRUE(tags) << qPrintable(name);
        EXPECT_EQ(tags->title, name);
        EXPECT_EQ(tags->artwork, Mpeg4Files::contentOf(cover)) << qPrintable(name);
        EXPECT_FALSE(QFile::exists(source));
        QFile::remove(cover);
        QFile::remove(destination);
    }
    EXPECT_EQ(filesIn(music_), QStringList{u"a.m4a"_s});
    QDir::setCurrent(u"/"_s);
}

TEST_F(ID3Change, KeepsTheFormOfTheCommandLineForOrdinaryPaths) {
    EXPECT_EQ(ID3ChangeControl::artworkCommandLine(u"/tool"_s, u"/a b.m4a"_s, u"/c.png"_s, u"/d.m4a"_s),
              u"\"/tool\"   \"/a b.m4a\"   \"/c.png\"  \"/d.m4a\""_s);
    EXPECT_EQ(ID3ChangeControl::artworkCommandLine(u"/t"_s, u"/%1 %2"_s, u"/$`"_s, u"/\\\""_s),
              u"\"/t\"   \"/%1 %2\"   \"/\\$\\`\"  \"/\\\\\\\"\""_s);
}

TEST_F(ID3Change, MovesAFileBackThatACrashLeftInTheTemporaryFolder) {
    // A tool that never ends simulates the moment of the crash.
    removeTool();
    const QString tool = resources_.filePath(u"SetArtWork"_s);
    ASSERT_TRUE(Mpeg4Files::write(tool, "#!/bin/sh\nexec sleep 600\n"));
    QFile::setPermissions(tool, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    const QByteArray before = Mpeg4Files::contentOf(path());
    const QString cover = image();
    {
        ChildProcess child([&] {
            ::setpgid(0, 0);
            ID3ChangeControl::changeID3(path(), path(), info(), cover);
            return 0;
        });
        ASSERT_TRUE(waitFor([this] { return !QFile::exists(path()); }));
        child.killGroup();
    }
    Platform::MovedFiles::bringBack(temporary_.path());
    EXPECT_EQ(Mpeg4Files::contentOf(path()), before);
    EXPECT_TRUE(filesIn(temporary_).isEmpty());
}

TEST_F(ID3Change, AFileThatCannotBeMovedBackStaysInTheTemporaryFolder) {
    // The tool removes the folder, and nothing can be set aside either.
    const QString data = resources_.filePath(u"data"_s);
    ASSERT_TRUE(Mpeg4Files::write(data, {}));
    const EnvironmentScope noData("XDG_DATA_HOME", data.toUtf8());
    removeTool();
    const QString tool = resources_.filePath(u"SetArtWork"_s);
    ASSERT_TRUE(Mpeg4Files::write(tool, "#!/bin/sh\nexec rm -r '" + music_.path().toUtf8() + "'\n"));
    QFile::setPermissions(tool, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    const QByteArray before = Mpeg4Files::contentOf(path());
    const QString cover = resources_.filePath(u"cover.png"_s);
    ASSERT_TRUE(Mpeg4Files::noise(5).save(cover));
    ID3ChangeControl::changeID3(path(), path(), info(), cover);
    ASSERT_FALSE(QFileInfo::exists(music_.path()));

    EXPECT_FALSE(Platform::MovedFiles::bringBack(temporary_.path()).isEmpty());
    ASSERT_TRUE(QDir().mkpath(music_.path()));
    EXPECT_TRUE(Platform::MovedFiles::bringBack(temporary_.path()).isEmpty());
    EXPECT_EQ(Mpeg4Files::contentOf(path()), before);
}

TEST(SetArtWork, PrintsItsUsage) {
    const ToolResult help = runTool(toolPath, {u"--help"_s});
    EXPECT_EQ(help.status, 0);
    EXPECT_TRUE(help.output.startsWith("usage: SetArtWork SOURCE IMAGE DESTINATION"));
    const ToolResult wrong = runTool(toolPath, {u"a"_s, u"b"_s});
    EXPECT_EQ(wrong.status, 2);
    EXPECT_EQ(wrong.errors, help.output);
}

TEST(SetArtWork, ReportsAnErrorInOneLine) {
    const QTemporaryDir folder;
    const ToolResult result = runTool(
        toolPath, {folder.filePath(u"none.m4a"_s), folder.filePath(u"none.png"_s), folder.filePath(u"out.m4a"_s)});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.errors.count('\n'), 1);
    EXPECT_TRUE(result.errors.startsWith("SetArtWork: cannot read the image"));
    EXPECT_FALSE(QFile::exists(folder.filePath(u"out.m4a"_s)));
}

TEST(SetArtWork, CreatesNothingWhenTheFolderIsMissingOrTheDiskFull) {
    const QTemporaryDir folder;
    const QString source = folder.filePath(u"a.m4a"_s);
    const QString image = folder.filePath(u"a.png"_s);
    ASSERT_TRUE(Mpeg4Files::make(source));
    ASSERT_TRUE(Mpeg4Files::noise(400).save(image));
    EXPECT_EQ(runTool(toolPath, {source, image, folder.filePath(u"no/out.m4a"_s)}).status, 1);
    const QString destination = folder.filePath(u"out.m4a"_s);
    // The shell's file size limit (in blocks of 512 bytes) simulates a full disk; the signal is ignored.
    EXPECT_NE(runTool(u"/bin/sh"_s, {u"-c"_s, u"trap '' XFSZ; ulimit -f 100; exec \"$0\" \"$@\""_s, toolPath, source,
                                     image, destination})
                  .status,
              0);
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden, QDir::Name),
              (QStringList{u"a.m4a"_s, u"a.png"_s}));
}

TEST(SetArtWork, MayWriteOntoItsSource) {
    const QTemporaryDir folder;
    const QString source = folder.filePath(u"a.m4a"_s);
    const QString image = folder.filePath(u"a.jpg"_s);
    ASSERT_TRUE(Mpeg4Files::make(source));
    ASSERT_TRUE(Mpeg4Files::noise(30).save(image, "JPEG"));
    ASSERT_EQ(runTool(toolPath, {source, image, source}).status, 0);
    EXPECT_EQ(BasicID3Change::read(source)->artwork, Mpeg4Files::contentOf(image));
}

TEST(AudioArtwork, IsARealPicture) {
    const QImage picture(QStringLiteral(SONAPHEX_SOURCE_DIR "/Resources/AudioArtwork.png"));
    EXPECT_EQ(picture.size(), QSize(600, 600));
}
