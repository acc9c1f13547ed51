// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Foundation/PlainText.h"

#include "tests/support/RunTool.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(PlainText, OnOneLineHasNothingThatATerminalObeys) {
    EXPECT_EQ(Platform::onOneLine(u"a\nb\x1b[2Jc\td"_s), u"a b [2Jc d"_s);
    EXPECT_EQ(Platform::onOneLine(u"Жанна – “1”"_s), u"Жанна – “1”"_s);
}

TEST(PlainText, AShellTakesAWordAsItIs) {
    for (const QString& word : {u"it's"_s, u"$(date) `date` \\ \"x\" *"_s, u"'"_s, u""_s, u"a  b\nc"_s})
        EXPECT_EQ(runTool(u"sh"_s, {u"-c"_s, u"printf %s "_s + Platform::shellWord(word)}).output, word.toUtf8());
}
