// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Foundation/RunningProgram.h"
#include "Source/Model/AudioRecordEntry.h"
#include "tests/CommandLine/ProgramHome.h"
#include "tests/support/AudioCheck.h"
#include "tests/support/FullDisk.h"
#include "tests/support/Mpeg4Files.h"
#include "tests/support/RunTool.h"
#include "tests/support/WaitFor.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QProcess>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// The real program with its own home folder.
class TrimCommand : public testing::Test {
protected:
    TrimCommand() { QDir().mkdir(home_.filePath(u"music"_s)); }
    static ToolResult trim(const QStringList& arguments) {
        return ProgramHome::sonaphex(QStringList{u"trim"_s} + arguments);
    }
    [[nodiscard]] QString at(const QString& name) const { return home_.filePath(u"music/"_s + name); }
    /// All files in the recordings' folder, including hidden ones.
    [[nodiscard]] QStringList files() const {
        return QDir(at({})).entryList(QDir::Files | QDir::Hidden | QDir::System, QDir::Name);
    }
    /// Files that a command left in the temporary folder, and the notes about unfinished edits.
    [[nodiscard]] QStringList leftovers() const { return home_.temporaries() + home_.notes(); }
    /// A tone with a title, in the library.
    QString recording(const QString& name, int seconds = 10) const {
        const QString path = at(name);
        EXPECT_TRUE(Mpeg4Files::make(path, Mpeg4Files::Shape::IndexAtEnd, seconds));
        EXPECT_EQ(runTool(QStringLiteral(SONAPHEX_PROGRAM), {u"tag"_s, path, u"--title"_s, u"Rain"_s}).status, 0);
        list(path, seconds);
        return path;
    }
    static void list(const QString& path, double seconds) {
        const Dictionary entry{{AudioRecordEntry::NodeDataKey, u"the key"_s},
                               {AudioRecordEntry::SavePath, path},
                               {AudioRecordEntry::Title, u"Rain"_s},
                               {AudioRecordEntry::Length, seconds}};
        ProgramHome::store({entry});
    }
    static QJsonArray listed() { return ProgramHome::library()[u"records"_s].toArray(); }
    static double secondsOf(const QString& path) {
        const auto channels = AudioCheck::decodedByFfmpeg(path);
        return channels.empty() ? -1 : double(channels[0].size()) / 44100;
    }
    ProgramHome home_;
};

} // namespace

TEST_F(TrimCommand, TrimsARecordingInPlaceAndUpdatesItsEntry) {
    const QString path = recording(u"One.m4a"_s);
    const auto result = trim({path, u"--from"_s, u"2.5"_s, u"--to"_s, u"6"_s});
    EXPECT_EQ(result.status, 0) << result.errors.constData();
    EXPECT_TRUE(result.output.isEmpty());
    EXPECT_NEAR(secondsOf(path), 3.5, 0.03);
    EXPECT_EQ(Mpeg4Files::probe(path)[u"title"_s].toString(), u"Rain"_s);
    EXPECT_EQ(files(), QStringList{u"One.m4a"_s});
    EXPECT_TRUE(leftovers().isEmpty()) << qPrintable(leftovers().join(u' '));
    const auto entries = listed();
    ASSERT_EQ(entries.size(), 1);
    EXPECT_EQ(entries[0][u"path"_s].toString(), path);
    EXPECT_EQ(entries[0][u"title"_s].toString(), u"Rain"_s);
    EXPECT_NEAR(entries[0][u"seconds"_s].toDouble(), 3.5, 0.001);
}

TEST_F(TrimCommand, UsesTheFilesBeginAndEndWhenTheyAreNotGiven) {
    const QString path = recording(u"One.m4a"_s);
    EXPECT_EQ(trim({path, u"--from"_s, u"4"_s}).status, 0);
    EXPECT_NEAR(secondsOf(path), 6, 0.03);
    EXPECT_EQ(trim({path, u"--to"_s, u"2"_s}).status, 0);
    EXPECT_NEAR(secondsOf(path), 2, 0.03);
    EXPECT_NEAR(listed()[0][u"seconds"_s].toDouble(), 2, 0.001);
}

TEST_F(TrimCommand, WritesANewFileAndKeepsTheRecordingAndItsEntry) {
    const QString path = recording(u"One.m4a"_s);
    const QByteArray before = Mpeg4Files::contentOf(path);
    const auto result =
        trim({path, u"--from"_s, u"1"_s, u"--to"_s, u"4"_s, u"--save-as"_s, at(u"Two.wav"_s), u"--json"_s});
    ASSERT_EQ(result.status, 0) << result.errors.constData();
    const auto printed = QJsonDocument::fromJson(result.output);
    EXPECT_EQ(printed[u"path"_s].toString(), at(u"Two.m4a"_s));
    EXPECT_EQ(printed[u"from"_s].toDouble(), 1);
    EXPECT_EQ(printed[u"to"_s].toDouble(), 4);
    EXPECT_EQ(printed[u"seconds"_s].toDouble(), 3);
    EXPECT_EQ(Mpeg4Files::contentOf(path), before);
    EXPECT_NEAR(secondsOf(at(u"Two.m4a"_s)), 3, 0.03);
    EXPECT_EQ(Mpeg4Files::probe(at(u"Two.m4a"_s))[u"title"_s].toString(), u"Rain"_s);
    EXPECT_EQ(files(), (QStringList{u"One.m4a"_s, u"Two.m4a"_s}));
    ASSERT_EQ(listed().size(), 1);
    EXPECT_EQ(listed()[0][u"seconds"_s].toDouble(), 10);
    EXPECT_TRUE(leftovers().isEmpty());
}

TEST_F(TrimCommand, NeverSavesAsAnExistingFile) {
    const QString path = recording(u"One.m4a"_s);
    ASSERT_TRUE(Mpeg4Files::write(at(u"Two.m4a"_s), "another"));
    ASSERT_TRUE(QFile::link(u"/nowhere/at/all"_s, at(u"Link.m4a"_s)));
    const QByteArray before = Mpeg4Files::contentOf(path);
    for (const QString& taken : {u"Two.m4a"_s, u"Two.mp3"_s, u"One.m4a"_s, u"Link.m4a"_s})
        ProgramHome::expectOneLine(trim({path, u"--from"_s, u"1"_s, u"--save-as"_s, at(taken)}),
                                   "This path exists, please change the path or name.");
    ProgramHome::expectOneLine(trim({path, u"--from"_s, u"1"_s, u"--save-as"_s, at(u"none/Two.m4a"_s)}),
                               "none: there is no such folder");
    EXPECT_EQ(Mpeg4Files::contentOf(path), before);
    EXPECT_EQ(Mpeg4Files::contentOf(at(u"Two.m4a"_s)), "another");
    EXPECT_EQ(files(), (QStringList{u"Link.m4a"_s, u"One.m4a"_s, u"Two.m4a"_s}));
    EXPECT_TRUE(leftovers().isEmpty());
}

TEST_F(TrimCommand, RefusesWithOneLineAndLeavesNothing) {
    const QString path = recording(u"One.m4a"_s);
    const QByteArray before = Mpeg4Files::contentOf(path);
    ASSERT_TRUE(Mpeg4Files::write(at(u"text.m4a"_s), "no audio at all"));
    const QString from = u"--from"_s;
    ProgramHome::expectOneLine(trim({at(u"none.m4a"_s), from, u"1"_s}), "none.m4a: there is no such file");
    ProgramHome::expectOneLine(trim({home_.path(), from, u"1"_s}), "there is no such file");
    ProgramHome::expectOneLine(trim({at(u"text.m4a"_s), from, u"1"_s}), "text.m4a");
    ProgramHome::expectOneLine(trim({path, from, u"10.5"_s}), "nothing from second 10.5 on");
    ProgramHome::expectOneLine(trim({path, from, u"1"_s, u"--to"_s, u"11"_s}), "--to is 11");
    ProgramHome::expectOneLine(trim({path, from, u"9.95"_s}), "shorter than a tenth of a second");
    for (const QStringList& wrong :
         {QStringList{path}, QStringList{from, u"1"_s}, QStringList{path, path, from, u"1"_s},
          QStringList{path, from, u"-1"_s}, QStringList{path, from, u"x"_s}, QStringList{path, from, u"nan"_s},
          QStringList{path, from, u"5"_s, u"--to"_s, u"5"_s}, QStringList{path, from, u"1"_s, u"--save-as"_s, u""_s}}) {
        const auto result = trim(wrong);
        EXPECT_EQ(result.status, 2) << qPrintable(wrong.join(u' '));
        EXPECT_TRUE(result.errors.contains("usage: sonaphex trim FILE")) << result.errors.constData();
    }
    EXPECT_EQ(Mpeg4Files::contentOf(path), before);
    EXPECT_EQ(files(), (QStringList{u"One.m4a"_s, u"text.m4a"_s}));
    EXPECT_EQ(listed()[0][u"seconds"_s].toDouble(), 10);
    EXPECT_TRUE(leftovers().isEmpty());
}

TEST_F(TrimCommand, RefusesAFileThatTheRunningWindowPlays) {
    const QString path = recording(u"One.m4a"_s);
    const QByteArray before = Mpeg4Files::contentOf(path);
    ASSERT_TRUE(QFile::link(path, at(u"Link.m4a"_s)));
    // A window process that plays the file. It answers in this thread, so the commands run on others.
    const auto window = Platform::RunningProgram::create(ProgramHome::identifier);
    ASSERT_TRUE(window->acquire());
    QString played = path;
    ASSERT_TRUE(window->listen([&](const QByteArray& request) -> QByteArray {
        if (request != "playing")
            return "error: unexpected";
        return "ok " + QJsonDocument(QJsonObject{{u"path"_s, played}}).toJson(QJsonDocument::Compact);
    }));
    const auto beside = [](const QStringList& arguments) {
        QProcess program;
        program.start(QStringLiteral(SONAPHEX_PROGRAM), QStringList{u"trim"_s} + arguments);
        EXPECT_TRUE(waitFor([&] { return program.state() == QProcess::NotRunning; }, 60000));
        return ToolResult{program.exitCode(), program.readAllStandardOutput(), program.readAllStandardError()};
    };
    for (const QString& name : {u"One.m4a"_s, u"Link.m4a"_s})
        ProgramHome::expectOneLine(beside({at(name), u"--from"_s, u"1"_s}), "the file is being played");
    EXPECT_EQ(Mpeg4Files::contentOf(path), before);
    // A copy does not interrupt the player; neither does trimming another file.
    EXPECT_EQ(beside({path, u"--from"_s, u"1"_s, u"--save-as"_s, at(u"Two.m4a"_s)}).status, 0);
    EXPECT_EQ(files(), (QStringList{u"Link.m4a"_s, u"One.m4a"_s, u"Two.m4a"_s}));
    EXPECT_TRUE(leftovers().isEmpty());
}

TEST_F(TrimCommand, AcceptsFileNamesWithShellFormatAndOptionCharacters) {
    const QString plain = recording(u"plain.m4a"_s, 3);
    const QByteArray content = Mpeg4Files::contentOf(plain);
    ASSERT_TRUE(QFile::remove(plain));
    for (const QString& name :
         {u"$(touch x) `id` \"$HOME\".m4a"_s, u"%s%n%1%%.m4a"_s, u"a\\b'c;d&e|f.m4a"_s, u"-rf --to.m4a"_s,
          u"שלום عليكم.m4a"_s, QString(83, u'漢') + u".m4a"_s, u"new\nline\ttab.m4a"_s, u"*?[a].m4a"_s}) {
        ASSERT_TRUE(Mpeg4Files::write(at(name), content));
        list(at(name), 3);
        const auto result = trim({at(name), u"--from"_s, u"1"_s});
        EXPECT_EQ(result.status, 0) << result.errors.constData();
        EXPECT_EQ(files(), QStringList{name});
        EXPECT_NEAR(secondsOf(at(name)), 2, 0.03);
        EXPECT_NEAR(listed()[0][u"seconds"_s].toDouble(), 2, 0.01) << qPrintable(name);
        ASSERT_TRUE(QFile::remove(at(name)));
    }
    EXPECT_TRUE(leftovers().isEmpty());
}

TEST_F(TrimCommand, KeepsTheRecordingOnAFullDisk) {
    const QString path = recording(u"One.m4a"_s, 20);
    const QByteArray before = Mpeg4Files::contentOf(path);
    {
        const FullDisk full(30000);
        ProgramHome::expectOneLine(trim({path, u"--from"_s, u"1"_s}), "One.m4a");
    }
    EXPECT_EQ(Mpeg4Files::contentOf(path), before);
    EXPECT_EQ(files(), QStringList{u"One.m4a"_s});
    EXPECT_EQ(listed()[0][u"seconds"_s].toDouble(), 20);
    EXPECT_TRUE(leftovers().isEmpty());
}
