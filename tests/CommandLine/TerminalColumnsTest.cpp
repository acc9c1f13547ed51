// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "CommandLine/TerminalColumns.h"

#include <clocale>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class TerminalColumnsTest : public testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(std::setlocale(LC_CTYPE, "C.UTF-8")); }
};

TEST_F(TerminalColumnsTest, CountsWideCharactersTwiceAndMarksNotAtAll) {
    EXPECT_EQ(TerminalColumns::of(u"title:"_s), 6);
    EXPECT_EQ(TerminalColumns::of(u"タイトル:"_s), 9);
    EXPECT_EQ(TerminalColumns::of(u"e\u0301"_s), 1);
    EXPECT_EQ(TerminalColumns::padded(u"年:"_s, 6), u"年:   "_s);
    EXPECT_EQ(TerminalColumns::padded(u"longer than that"_s, 6), u"longer than that"_s);
}

TEST_F(TerminalColumnsTest, WrapsBetweenWordsAndKeepsNarrowOnesWhole) {
    EXPECT_EQ(TerminalColumns::wrapped(u"usage:"_s, {u"[--one-option]"_s, u"[--two]"_s}, 2, 22),
              u"usage: [--one-option]\n  [--two]"_s);
    EXPECT_EQ(TerminalColumns::wrapped(u"a"_s, {u"word-that-is-longer-than-a-line"_s, u"b"_s}, 1, 10),
              u"a\n word-that-is-longer-than-a-line\n b"_s);
}

TEST_F(TerminalColumnsTest, BreaksTextWithoutSpacesAtTheEndOfTheLine) {
    const QString text = TerminalColumns::wrapped(u"--to"_s, {u"録音をこのフォルダーに保存します。"_s}, 5, 20);
    const QStringList lines = text.split(u'\n');
    ASSERT_GT(lines.size(), 1);
    for (const QString& line : lines)
        EXPECT_LE(TerminalColumns::of(line), 20) << qPrintable(line);
    EXPECT_EQ(QString(text).remove(u'\n').remove(u' '), u"--to録音をこのフォルダーに保存します。"_s);
    EXPECT_FALSE(lines.back().trimmed() == u"。"_s) << "a full stop does not begin a line";
}

} // namespace
