// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Media/BasicID3Change.h"
#include "Source/Model/AudioRecordEntry.h"
#include "tests/CommandLine/ProgramHome.h"
#include "tests/support/FileContent.h"
#include "tests/support/Mpeg4Files.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class TagCommand : public testing::Test {
protected:
    TagCommand() { EXPECT_TRUE(Mpeg4Files::make(path())); }
    [[nodiscard]] QString path(const QString& name = u"a.m4a"_s) const { return folder_.filePath(name); }
    static ToolResult tag(const QStringList& arguments) {
        return ProgramHome::sonaphex(QStringList{u"tag"_s} + arguments);
    }
    static QJsonObject json(const ToolResult& result) { return QJsonDocument::fromJson(result.output).object(); }

    QTemporaryDir folder_;
};

/// Uses a separate library that lists the file.
class TagRename : public TagCommand {
protected:
    TagRename() {
        ProgramHome::store({Dictionary{{AudioRecordEntry::NodeDataKey, u"the key"_s},
                                       {AudioRecordEntry::SavePath, path()},
                                       {AudioRecordEntry::Title, u"a"_s},
                                       {AudioRecordEntry::Length, 3.0}}});
    }
    static QJsonObject listed() { return ProgramHome::library()[u"records"_s].toArray().at(0).toObject(); }
    [[nodiscard]] QStringList files() const { return FileContent::namesIn(folder_.path()); }
    static void expectKept(const ToolResult& result, const QByteArray& why) {
        EXPECT_EQ(result.status, 1);
        EXPECT_EQ(result.errors.count('\n'), 1) << result.errors.constData();
        EXPECT_TRUE(result.errors.startsWith("sonaphex: The file keeps its name ")) << result.errors.constData();
        EXPECT_TRUE(result.errors.contains(why)) << result.errors.constData();
    }

    ProgramHome home_;
};

} // namespace

TEST_F(TagCommand, WritesTheGivenTagsAndKeepsTheRest) {
    const QString cover = path(u"cover.jpg"_s);
    ASSERT_TRUE(Mpeg4Files::noise(20).save(cover, "JPEG"));
    const ToolResult first = tag({path(), u"--title"_s, u"$(x) \"日本\""_s, u"--artist"_s, u"A"_s, u"--year"_s,
                                  u"1984"_s, u"--artwork"_s, cover});
    EXPECT_EQ(first.status, 0);
    EXPECT_TRUE(first.output.isEmpty() && first.errors.isEmpty()) << first.errors.constData();
    const ToolResult second = tag({path(), u"--album"_s, u"B"_s, u"--artist"_s, u""_s, u"--json"_s});
    EXPECT_EQ(second.status, 0);
    const QJsonObject shown = json(second);
    EXPECT_EQ(shown[u"title"_s], u"$(x) \"日本\""_s);
    EXPECT_EQ(shown[u"artist"_s], u""_s);
    EXPECT_EQ(shown[u"album"_s], u"B"_s);
    EXPECT_EQ(shown[u"year"_s], 1984);
    EXPECT_EQ(shown[u"artwork"_s][u"type"_s], u"image/jpeg"_s);
    EXPECT_EQ(shown[u"artwork"_s][u"bytes"_s], Mpeg4Files::contentOf(cover).size());
    EXPECT_EQ(Mpeg4Files::probe(path())[u"title"_s].toString(), u"$(x) \"日本\""_s);
}

TEST_F(TagCommand, KeepsAFullDateWhenOnlyTheTitleIsGiven) {
    ASSERT_EQ(runTool(u"AtomicParsley"_s, {path(), u"--year"_s, u"2004-05-06"_s, u"--overWrite"_s}).status, 0);
    EXPECT_EQ(tag({path(), u"--title"_s, u"T"_s}).status, 0);
    EXPECT_EQ(Mpeg4Files::probe(path())[u"date"_s].toString(), u"2004-05-06"_s);
    EXPECT_EQ(json(tag({path(), u"--json"_s}))[u"year"_s], 2004);
}

TEST_F(TagCommand, PrintsTheTagsOnOneLineEach) {
    ASSERT_TRUE(Platform::BasicID3Change::setMpeg4ID3Information(path(), u"a\nb\x1b[31m"_s, u"A"_s, {}, 0, u"G"_s));
    const ToolResult result = tag({path()});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.output, "title:   a b [31m\nartist:  A\nalbum:   \nyear:    \ngenre:   G\nartwork: none\n");
}

TEST_F(TagCommand, ReportsAnErrorInOneLine) {
    ASSERT_TRUE(Mpeg4Files::write(path(u"text.m4a"_s), "no audio at all"));
    for (const QStringList& arguments :
         {QStringList{path(u"none.m4a"_s)}, QStringList{path(u"text.m4a"_s)}, QStringList{folder_.path()},
          QStringList{path(), u"--artwork"_s, path()}, QStringList{path(u"text.m4a"_s), u"--title"_s, u"x"_s}}) {
        const ToolResult result = tag(arguments);
        EXPECT_EQ(result.status, 1);
        EXPECT_TRUE(result.output.isEmpty());
        EXPECT_TRUE(result.errors.startsWith("sonaphex: ")) << result.errors.constData();
        EXPECT_EQ(result.errors.count('\n'), 1) << result.errors.constData();
    }
}

TEST_F(TagCommand, RefusesWrongUsageAndPrintsTheUsage) {
    for (const QStringList& arguments : {QStringList{}, QStringList{path(), path()}, QStringList{path(), u"--colour"_s},
                                         QStringList{path(), u"--year"_s, u"soon"_s}}) {
        const ToolResult result = tag(arguments);
        EXPECT_EQ(result.status, 2);
        EXPECT_TRUE(result.errors.contains("usage: sonaphex tag FILE")) << result.errors.constData();
    }
}

TEST_F(TagRename, NamesTheFileAfterItsTitleAndTheEntryFollows) {
    const QByteArray sound = Mpeg4Files::audioOf(path());
    const ToolResult result = tag({path(), u"--title"_s, u"Morning"_s, u"--rename"_s});
    EXPECT_EQ(result.status, 0) << result.errors.constData();
    EXPECT_TRUE(result.output.isEmpty());
    EXPECT_EQ(files(), QStringList{u"Morning.m4a"_s});
    EXPECT_EQ(Mpeg4Files::audioOf(path(u"Morning.m4a"_s)), sound);
    EXPECT_EQ(listed()[u"path"_s].toString(), path(u"Morning.m4a"_s));
    EXPECT_EQ(listed()[u"title"_s].toString(), u"Morning"_s);
    EXPECT_EQ(listed()[u"seconds"_s].toDouble(), 3);
    EXPECT_TRUE(home_.notes().isEmpty());
}

TEST_F(TagRename, CompletesAnInterruptedEditWithTheLengthOfTheFile) {
    ProgramHome::store({Dictionary{{AudioRecordEntry::NodeDataKey, u"the key"_s},
                                   {AudioRecordEntry::SavePath, path()},
                                   {AudioRecordEntry::Length, 99.0}}});
    const QString edits = home_.filePath(ProgramHome::identifier + u"/Edits"_s);
    ASSERT_TRUE(QDir().mkpath(edits));
    const QJsonObject note{{u"path"_s, path()}, {u"newPath"_s, path()}, {u"hidden"_s, QString()}};
    ASSERT_TRUE(Mpeg4Files::write(edits + u"/a.edit"_s, QJsonDocument(note).toJson(QJsonDocument::Compact)));
    const ToolResult result = tag({path(), u"--artist"_s, u"A"_s});
    EXPECT_EQ(result.status, 0) << result.errors.constData();
    EXPECT_TRUE(home_.notes().isEmpty());
    EXPECT_LT(listed()[u"seconds"_s].toDouble(), 20);
    EXPECT_EQ(listed()[u"artist"_s].toString(), u"A"_s);
}

TEST_F(TagRename, UsesTheFilesTitleAndKeepsAFileOfThatName) {
    ASSERT_EQ(tag({path(), u"--title"_s, u"Rain"_s}).status, 0);
    EXPECT_EQ(files(), QStringList{u"a.m4a"_s});
    EXPECT_EQ(json(tag({path(), u"--rename"_s, u"--json"_s}))[u"title"_s], u"Rain"_s);
    EXPECT_EQ(files(), QStringList{u"Rain.m4a"_s});
    EXPECT_EQ(listed()[u"path"_s].toString(), path(u"Rain.m4a"_s));
    EXPECT_EQ(tag({path(u"Rain.m4a"_s), u"--rename"_s}).status, 0);
    EXPECT_EQ(files(), QStringList{u"Rain.m4a"_s});
}

TEST_F(TagRename, AgreesInFileTagsAndEntryWhateverTheTitleIs) {
    QString now = path();
    for (const QString& title :
         {u"$(touch x) `id` \"$HOME\""_s, u"%s%n%1%%"_s, u"a\\b'c;d&e|f>g"_s, u"..."_s, u".hidden"_s, u"~"_s,
          u"*?[a]"_s, u"שלום عليكم"_s, u"😀"_s, QString(83, u'漢'), u"back"_s}) {
        const ToolResult result = tag({now, u"--title"_s, title, u"--rename"_s});
        EXPECT_EQ(result.status, 0) << result.errors.constData();
        now = path(title + u".m4a"_s);
        EXPECT_EQ(files(), QStringList{title + u".m4a"_s});
        EXPECT_EQ(Mpeg4Files::probe(now)[u"title"_s].toString(), title);
        EXPECT_EQ(listed()[u"path"_s].toString(), now);
        EXPECT_EQ(listed()[u"title"_s].toString(), title);
    }
    EXPECT_TRUE(home_.notes().isEmpty());
}

TEST_F(TagRename, KeepsTheNameWhenTheTitleCannotBeAFileName) {
    const QByteArray sound = Mpeg4Files::audioOf(path());
    for (const auto& [title, why] : {std::pair<QString, QByteArray>{u"AC/DC"_s, "cannot contain"},
                                     {u"../a"_s, "cannot contain"},
                                     {u"/tmp/x"_s, "cannot contain"},
                                     {u""_s, "the title is empty"},
                                     {QString(300, u'漢'), "longer than a file name"},
                                     {QString(252, u'x'), "longer than a file name"}}) {
        expectKept(tag({path(), u"--title"_s, title, u"--rename"_s}), why);
        EXPECT_EQ(files(), QStringList{u"a.m4a"_s});
        EXPECT_EQ(json(tag({path(), u"--json"_s}))[u"title"_s].toString(), title) << "the tag is written all the same";
        EXPECT_EQ(listed()[u"path"_s].toString(), path());
        EXPECT_EQ(listed()[u"title"_s].toString(), title);
    }
    EXPECT_EQ(Mpeg4Files::audioOf(path()), sound);
    EXPECT_TRUE(home_.notes().isEmpty());
}

TEST_F(TagRename, NeverTakesTheNameOfAnotherFile) {
    ASSERT_TRUE(Mpeg4Files::write(path(u"Taken.m4a"_s), "another"));
    ASSERT_TRUE(QFile::link(u"/nowhere/at/all"_s, path(u"Link.m4a"_s)));
    for (const QString& title : {u"Taken"_s, u"Link"_s}) {
        expectKept(tag({path(), u"--title"_s, title, u"--rename"_s}), "there is already a file named");
        EXPECT_EQ(Mpeg4Files::probe(path())[u"title"_s].toString(), title);
        EXPECT_EQ(listed()[u"path"_s].toString(), path());
    }
    EXPECT_EQ(files(), (QStringList{u"Link.m4a"_s, u"Taken.m4a"_s, u"a.m4a"_s}));
    EXPECT_EQ(Mpeg4Files::contentOf(path(u"Taken.m4a"_s)), "another");
    EXPECT_TRUE(home_.notes().isEmpty());
}
