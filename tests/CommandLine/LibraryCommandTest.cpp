// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Foundation/RunningProgram.h"
#include "Platform/Foundation/Services.h"
#include "Platform/Foundation/linux/PropertyListDefaults.h"
#include "Source/Model/AudioRecordEntry.h"
#include "Source/Model/MediaLibrary.h"
#include "Source/ProcessRequests/MediaLibraryRequests.h"
#include "tests/CommandLine/ProgramHome.h"
#include "tests/Platform/Media/MediaTestSupport.h"
#include "tests/fakes/FakeClock.h"
#include "tests/support/LeafNotes.h"
#include "tests/support/Mpeg4Files.h"
#include "tests/support/WaitFor.h"

#include <QJsonArray>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class LibraryCommand : public testing::Test {
protected:
    [[nodiscard]] Dictionary entry(const QString& name) const {
        const QString path = home_.filePath(name);
        EXPECT_TRUE(Mpeg4Files::write(path, "audio"));
        return {{AudioRecordEntry::NodeDataKey, QString(path + u"_817430400.500000"_s)},
                {AudioRecordEntry::SavePath, path},
                {AudioRecordEntry::Title, u"Title of "_s + name},
                {AudioRecordEntry::AddDate, u"2026/11/21"_s},
                {AudioRecordEntry::Length, 83.9}};
    }
    static QString keyOf(const Dictionary& entry) { return entry.value(AudioRecordEntry::NodeDataKey).toString(); }
    static ToolResult library(const QStringList& arguments) {
        return ProgramHome::sonaphex(QStringList{u"library"_s} + arguments);
    }
    static ToolResult tag(const QStringList& arguments) {
        return ProgramHome::sonaphex(QStringList{u"tag"_s} + arguments);
    }
    static QJsonDocument listed() { return ProgramHome::library(); }

    ProgramHome home_;
};

} // namespace

TEST_F(LibraryCommand, ListsBothCollections) {
    const Dictionary record = entry(u"a b.m4a"_s);
    Dictionary ringtone = entry(u"r.m4r"_s);
    ProgramHome::store({record}, {ringtone});
    ASSERT_TRUE(QFile::remove(home_.filePath(u"r.m4r"_s)));
    const QJsonDocument json = listed();
    ASSERT_EQ(json[u"records"_s].toArray().size(), 1);
    const QJsonObject first = json[u"records"_s][0].toObject();
    EXPECT_EQ(first[u"key"_s], keyOf(record));
    EXPECT_EQ(first[u"path"_s], home_.filePath(u"a b.m4a"_s));
    EXPECT_EQ(first[u"title"_s], u"Title of a b.m4a"_s);
    EXPECT_EQ(first[u"seconds"_s], 83.9);
    EXPECT_EQ(first[u"exists"_s], true);
    EXPECT_EQ(json[u"ringtones"_s][0][u"exists"_s], false);
    const QByteArray plain = library({u"list"_s}).output;
    EXPECT_TRUE(plain.contains("recordings: 1\n  2026/11/21  00:01:23  Title of a b.m4a\n")) << plain.constData();
    EXPECT_TRUE(plain.contains("r.m4r (missing)\n"));
}

TEST_F(LibraryCommand, ListsAnEmptyLibrary) {
    const ToolResult result = library({});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.output, "recordings: 0\nringtones: 0\n");
}

TEST_F(LibraryCommand, RemovesEntriesAndTheirFiles) {
    const Dictionary gone = entry(u"$(x) \"gone\".m4a"_s);
    const Dictionary stays = entry(u"stays.m4a"_s);
    ProgramHome::store({gone, stays}, {});
    const ToolResult result = library({u"remove"_s, keyOf(gone), u"--json"_s});
    EXPECT_EQ(result.status, 0) << result.errors.constData();
    EXPECT_EQ(QJsonDocument::fromJson(result.output)[u"removed"_s][0], keyOf(gone));
    EXPECT_FALSE(QFile::exists(gone.value(AudioRecordEntry::SavePath).toString()));
    EXPECT_TRUE(QFile::exists(stays.value(AudioRecordEntry::SavePath).toString()));
    EXPECT_EQ(listed()[u"records"_s].toArray().size(), 1);
}

TEST_F(LibraryCommand, RemovesNothingWhenAKeyIsUnknown) {
    const Dictionary stays = entry(u"stays.m4a"_s);
    ProgramHome::store({stays}, {});
    const ToolResult result = library({u"remove"_s, keyOf(stays), u"no such key"_s});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.errors, "sonaphex: no entry has the key no such key (nothing was removed)\n");
    EXPECT_TRUE(QFile::exists(stays.value(AudioRecordEntry::SavePath).toString()));
    EXPECT_EQ(listed()[u"records"_s].toArray().size(), 1);
}

TEST_F(LibraryCommand, RefusesWrongUsageAndPrintsTheUsage) {
    for (const QStringList& arguments : {QStringList{u"remove"_s}, QStringList{u"add"_s}, QStringList{u"--colour"_s}}) {
        const ToolResult result = library(arguments);
        EXPECT_EQ(result.status, 2);
        EXPECT_TRUE(result.errors.contains("usage: sonaphex library [list | remove KEY...] [--json]"))
            << result.errors.constData();
    }
}

TEST_F(LibraryCommand, TwoProcessesAtOnceLoseNothing) {
    QVariantList records;
    for (int i = 0; i < 12; ++i)
        records.append(entry(u"%1.m4a"_s.arg(i)));
    ProgramHome::store(records, {});
    std::vector<std::unique_ptr<QProcess>> processes;
    for (int i = 0; i < 8; ++i) {
        processes.push_back(std::make_unique<QProcess>());
        processes.back()->start(QStringLiteral(SONAPHEX_PROGRAM),
                                {u"library"_s, u"remove"_s, keyOf(records[i].toMap())});
    }
    for (const auto& process : processes) {
        ASSERT_TRUE(process->waitForFinished(60000));
        EXPECT_EQ(process->exitCode(), 0) << process->readAllStandardError().constData();
    }
    EXPECT_EQ(listed()[u"records"_s].toArray().size(), 4);
}

TEST_F(LibraryCommand, ShowsTheTagsWrittenIntoItsFiles) {
    const Dictionary one = entry(u"one.m4a"_s);
    const Dictionary other = entry(u"other.m4a"_s);
    const QString path = one.value(AudioRecordEntry::SavePath).toString();
    ASSERT_TRUE(Mpeg4Files::make(path));
    ASSERT_TRUE(QDir(home_.path()).mkdir(u"links"_s));
    const QString link = home_.filePath(u"links/one.m4a"_s);
    ASSERT_TRUE(QFile::link(path, link));
    ProgramHome::store({other, one}, {one});

    const ToolResult result =
        tag({link, u"--title"_s, u"$(x) \"日本\""_s, u"--artist"_s, QString(), u"--year"_s, u"1984"_s});
    EXPECT_EQ(result.status, 0) << result.errors.constData();
    const QJsonDocument document = listed();
    EXPECT_EQ(document[u"records"_s][0][u"title"_s], u"Title of other.m4a"_s);
    for (const QJsonValue& listedEntry : {document[u"records"_s][1], document[u"ringtones"_s][0]}) {
        EXPECT_EQ(listedEntry[u"key"_s], keyOf(one));
        EXPECT_EQ(listedEntry[u"title"_s], u"$(x) \"日本\""_s);
        EXPECT_EQ(listedEntry[u"artist"_s], QString());
        EXPECT_EQ(listedEntry[u"year"_s], 1984);
        EXPECT_EQ(listedEntry[u"added"_s], u"2026/11/21"_s);
    }

    // When the file was not written, the library entry does not change either.
    EXPECT_EQ(tag({other.value(AudioRecordEntry::SavePath).toString(), u"--title"_s, u"x"_s}).status, 1);
    EXPECT_EQ(listed(), document);
}

TEST_F(LibraryCommand, KeepsTheTagsOfSeveralProcessesAtOnce) {
    const Dictionary one = entry(u"one.m4a"_s);
    const QString path = one.value(AudioRecordEntry::SavePath).toString();
    ASSERT_TRUE(Mpeg4Files::make(path));
    ProgramHome::store({one}, {});
    for (int round = 0; round < 5; ++round) {
        const QString text = u"round %1"_s.arg(round);
        std::vector<std::unique_ptr<QProcess>> processes;
        for (const QString& option : {u"--title"_s, u"--artist"_s, u"--album"_s}) {
            processes.push_back(std::make_unique<QProcess>());
            processes.back()->start(QStringLiteral(SONAPHEX_PROGRAM), {u"tag"_s, path, option, text});
        }
        for (const auto& process : processes) {
            ASSERT_TRUE(process->waitForFinished(60000));
            EXPECT_EQ(process->exitCode(), 0) << process->readAllStandardError().constData();
        }
        const QJsonDocument inFile = QJsonDocument::fromJson(tag({path, u"--json"_s}).output);
        const QJsonDocument document = listed();
        for (const QString& name : {u"title"_s, u"artist"_s, u"album"_s}) {
            EXPECT_EQ(inFile[name], text) << qPrintable(name);
            EXPECT_EQ(document[u"records"_s][0][name], text) << qPrintable(name);
        }
    }
}

/// This process plays the role of the window's process.
class LibraryCommandBesideAWindow : public LibraryCommand {
protected:
    void open(const QVariantList& records) {
        ProgramHome::store(records, {});
        defaults_ = Platform::createUserDefaults(ProgramHome::identifier);
        Platform::services().userDefaults = defaults_.get();
        shared_.loadMediaLibraryList();
        shared_.loadDefaultMediaLibrary();
        ASSERT_TRUE(running_->acquire());
        ASSERT_TRUE(running_->listen(
            [](const QByteArray& request) { return MediaLibraryRequests::answer(request).value_or("what?"); }));
    }
    /// Runs the program while this process answers its requests.
    static QByteArray ask(const QStringList& arguments) {
        QProcess process;
        process.start(QStringLiteral(SONAPHEX_PROGRAM), arguments);
        EXPECT_TRUE(waitFor([&] { return process.state() == QProcess::NotRunning; }, 60000));
        EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().constData();
        return process.readAllStandardOutput();
    }

    /// Changes the library as a subcommand does when it cannot reach the window.
    void addBesideTheWindow(const Dictionary& entry) {
        const auto defaults = Platform::createUserDefaults(ProgramHome::identifier);
        Platform::services().userDefaults = defaults.get();
        MediaLibrary().addRecordFile(entry);
        EXPECT_TRUE(defaults->flush());
        Platform::services().userDefaults = defaults_.get();
    }

    const Platform::ServicesScope scope_;
    std::unique_ptr<Platform::UserDefaults> defaults_;
    MediaLibrary& shared_ = MediaLibrary::shareLibrary();
    std::unique_ptr<Platform::RunningProgram> running_ = Platform::RunningProgram::create(ProgramHome::identifier);
};

TEST_F(LibraryCommandBesideAWindow, MakesItRemoveEntries) {
    const Dictionary gone = entry(u"gone\nwith a new line.m4a"_s);
    const Dictionary stays = entry(u"stays.m4a"_s);
    open({gone, stays});
    const LeafNotes notes(shared_);
    const QByteArray output = ask({u"library"_s, u"remove"_s, keyOf(gone), u"--json"_s});
    EXPECT_EQ(QJsonDocument::fromJson(output)[u"removed"_s][0], keyOf(gone));
    EXPECT_EQ(shared_.records(), QVariantList{stays});
    EXPECT_EQ(notes.lines, QStringList{u"-all-record 0"_s});
    EXPECT_FALSE(QFile::exists(gone.value(AudioRecordEntry::SavePath).toString()));
    EXPECT_EQ(listed()[u"records"_s].toArray().size(), 1);
}

TEST_F(LibraryCommandBesideAWindow, MakesItShowTheWrittenTags) {
    const Dictionary one = entry(u"one\nwith a new line.m4a"_s);
    const Dictionary other = entry(u"other.m4a"_s);
    ASSERT_TRUE(Mpeg4Files::make(one.value(AudioRecordEntry::SavePath).toString()));
    open({other, one});
    const LeafNotes notes(shared_);
    (void)ask({u"tag"_s, one.value(AudioRecordEntry::SavePath).toString(), u"--title"_s, u"new\nline"_s, u"--year"_s,
               u"1984"_s});
    Dictionary expected = one;
    expected.insert(AudioRecordEntry::Title, u"new\nline"_s);
    expected.insert(AudioRecordEntry::Year, 1984);
    EXPECT_EQ(shared_.records(), (QVariantList{other, expected}));
    EXPECT_EQ(notes.lines, QStringList{u"=all-record 1"_s});
    EXPECT_EQ(listed()[u"records"_s][1][u"title"_s], u"new\nline"_s);
}

TEST_F(LibraryCommandBesideAWindow, MakesItRemoveEntriesThatAnotherProcessStored) {
    const Dictionary stays = entry(u"stays.m4a"_s);
    const Dictionary gone = entry(u"gone.m4a"_s);
    open({stays});
    addBesideTheWindow(gone);
    (void)ask({u"library"_s, u"remove"_s, keyOf(gone)});
    EXPECT_EQ(shared_.records(), QVariantList{stays});
    EXPECT_FALSE(QFile::exists(gone.value(AudioRecordEntry::SavePath).toString()));
    EXPECT_EQ(listed()[u"records"_s].toArray().size(), 1);
}

TEST_F(LibraryCommandBesideAWindow, MakesItShowTheTagsOfEntriesThatAnotherProcessStored) {
    const Dictionary known = entry(u"known.m4a"_s);
    const Dictionary one = entry(u"one.m4a"_s);
    const QString path = one.value(AudioRecordEntry::SavePath).toString();
    ASSERT_TRUE(Mpeg4Files::make(path));
    open({known});
    addBesideTheWindow(one);
    const LeafNotes notes(shared_);
    (void)ask({u"tag"_s, path, u"--title"_s, u"new"_s});
    EXPECT_EQ(notes.lines, (QStringList{u"+all-record 0"_s, u"=all-record 0"_s}));
    EXPECT_EQ(listed()[u"records"_s].toArray().size(), 2);
    EXPECT_EQ(listed()[u"records"_s][0][u"title"_s], u"new"_s);
}

TEST_F(LibraryCommandBesideAWindow, MakesItAddARingtone) {
    const Dictionary song = entry(u"Track 1.m4a"_s);
    const QString path = song.value(AudioRecordEntry::SavePath).toString();
    MediaTest::writeFile(path, kAudioFileM4AType, MediaTest::tones(7 * 44100));
    open({song});
    FakeClock clock;
    Platform::services().clock = &clock;
    const LeafNotes notes(shared_);
    const auto before = shared_.ringtones().size();
    const QString made =
        QString::fromLocal8Bit(ask({u"ringtone"_s, path, u"--from"_s, u"1"_s, u"--to"_s, u"6"_s}).trimmed());
    ASSERT_EQ(shared_.ringtones().size(), before + 1);
    const Dictionary ringtone = shared_.ringtones().first().toMap();
    EXPECT_EQ(ringtone.value(AudioRecordEntry::SavePath).toString(), made);
    EXPECT_EQ(ringtone.value(AudioRecordEntry::Title).toString(), u"Title of Track 1.m4a"_s);
    EXPECT_EQ(ringtone.value(AudioRecordEntry::Length).toDouble(), 5);
    EXPECT_EQ(notes.lines, (QStringList{u"+new-ringtone 0"_s, u"+all-ringtone 0"_s}));
    EXPECT_EQ(shared_.records(), QVariantList{song});
}
