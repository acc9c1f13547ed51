// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/View/PathText.h"

#include <QGuiApplication>
#include <QTextLayout>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// Where a part of the text stands on the line, in points from its left end.
qreal placeOf(const QString& text, const QString& part) {
    QTextLayout layout(text);
    QTextOption option;
    option.setTextDirection(text.isRightToLeft() ? Qt::RightToLeft : QGuiApplication::layoutDirection());
    layout.setTextOption(option);
    layout.beginLayout();
    const QTextLine line = layout.createLine();
    layout.endLayout();
    return line.cursorToX(int(text.indexOf(part)) + 1); // inside the part: the positions of its ends are ambiguous
}

} // namespace

TEST(PathText, LeavesOrdinaryTextsAlone) {
    for (const QString& text : {u"/home/ada/Music/Track1.m4a"_s, u"Nothing is recorded."_s, u"שלום"_s, QString()})
        EXPECT_EQ(pathText(text), text);
}

TEST(PathText, FoldersStayInTheirOrderWhateverTheirNames) {
    const QString path = u"/home/שירים/123/הקלטה 7.m4a"_s;
    const QString shown = pathText(path);
    EXPECT_LT(placeOf(shown, u"home"_s), placeOf(shown, u"שירים"_s));
    EXPECT_LT(placeOf(shown, u"שירים"_s), placeOf(shown, u"123"_s));
    EXPECT_LT(placeOf(shown, u"123"_s), placeOf(shown, u"הקלטה"_s));
    EXPECT_GT(placeOf(path, u"שירים"_s), placeOf(path, u"הקלטה"_s)) << "as it was without";
}

TEST(PathText, APathThatBeginsWithSuchANameBeginsAtTheLeftToo) {
    const QString shown = pathText(u"/שירים/home/a.m4a"_s);
    EXPECT_LT(placeOf(shown, u"שירים"_s), placeOf(shown, u"home"_s));
    EXPECT_LT(placeOf(shown, u"home"_s), placeOf(shown, u"a.m4a"_s));
}

TEST(PathText, ADotAtTheBeginningStaysThereInAWindowThatReadsFromRightToLeft) {
    const QString path = u"~/.local/share"_s;
    QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    const QString shown = pathText(path);
    EXPECT_LT(placeOf(shown, u"~"_s), placeOf(shown, u"local"_s));
    EXPECT_GT(placeOf(path, u"~"_s), placeOf(path, u"local"_s)) << "as it was without";
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
}
