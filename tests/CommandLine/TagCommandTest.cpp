// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Media/BasicID3Change.h"
#include "tests/support/Mpeg4Files.h"

#include <QDir>
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
        return runTool(QStringLiteral(SONAPHEX_PROGRAM), QStringList{u"tag"_s} + arguments);
    }
    static QJsonObject json(const ToolResult& result) { return QJsonDocument::fromJson(result.output).object(); }

    QTemporaryDir folder_;
};

} // namespace

TEST_F(TagCommand, WritesWhatIsGivenAndLeavesTheRest) {
    const QString cover = path(u"cover.jpg"_s);
    ASSERT_TRUE(Mpeg4Files::noise(20).save(cover, "JPEG"));
    const ToolResult first = tag({path(), u"--title"_s, u"$(x) \"日本\""_s, u"--artist"_s, u"A"_s, u"--year"_s,
                                  u"1984"_s, u"--artwork"_s, cover});
    EXPECT_EQ(first.status, 0);
    EXPECT_TRUE(first.output.isEmpty() && first.errors.isEmpty()) << first.errors.constData();
    const ToolResult second = tag({path(), u"--album"_s, u"B"_s, u"--artist"_s, u""_s, u"--json"_s});
    EXPECT_EQ(second.status, 0);
    const QJsonObject told = json(second);
    EXPECT_EQ(told[u"title"_s], u"$(x) \"日本\""_s);
    EXPECT_EQ(told[u"artist"_s], u""_s);
    EXPECT_EQ(told[u"album"_s], u"B"_s);
    EXPECT_EQ(told[u"year"_s], 1984);
    EXPECT_EQ(told[u"artwork"_s][u"type"_s], u"image/jpeg"_s);
    EXPECT_EQ(told[u"artwork"_s][u"bytes"_s], Mpeg4Files::contentOf(cover).size());
    EXPECT_EQ(Mpeg4Files::probe(path())[u"title"_s].toString(), u"$(x) \"日本\""_s);
}

TEST_F(TagCommand, LeavesAFullDateWhereOnlyTheTitleIsGiven) {
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

TEST_F(TagCommand, SaysInOneLineWhatWentWrong) {
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

TEST_F(TagCommand, RefusesWrongUsageWithTheRightOne) {
    for (const QStringList& arguments : {QStringList{}, QStringList{path(), path()}, QStringList{path(), u"--colour"_s},
                                         QStringList{path(), u"--year"_s, u"soon"_s}}) {
        const ToolResult result = tag(arguments);
        EXPECT_EQ(result.status, 2);
        EXPECT_TRUE(result.errors.contains("usage: sonaphex tag FILE")) << result.errors.constData();
    }
}
