// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Foundation/linux/PropertyList.h"

#include <QDateTime>
#include <QTimeZone>
#include <clocale>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
namespace PropertyList = Platform::PropertyList;

namespace {

std::optional<Dictionary> thereAndBack(const Dictionary& dictionary) {
    return PropertyList::fromXml(PropertyList::toXml(dictionary));
}

} // namespace

TEST(PropertyList, GivesEveryKindOfObjectBack) {
    const Dictionary all{
        {u"text"_s, u"Überraschung 日本語 🎵"_s},
        {u"empty"_s, u""_s},
        {u"number"_s, qlonglong(-2012)},
        {u"large"_s, std::numeric_limits<qlonglong>::max()},
        {u"real"_s, 0.1 + 0.2},
        {u"yes"_s, true},
        {u"no"_s, false},
        {u"data"_s, QByteArray("\0\1\xff", 3)},
        {u"date"_s, QDateTime(QDate(2026, 2, 3), QTime(4, 5, 6), QTimeZone::utc())},
        {u"list"_s, QVariantList{u"a"_s, qlonglong(1), QVariantList{}, QVariantMap{{u"deep"_s, 1.5}}}},
        {u"<&\"'>]]>"_s, u"<&\"'>]]>&amp;&#65;"_s},
    };
    EXPECT_EQ(thereAndBack(all), all);
}

TEST(PropertyList, KeepsTheOrderOfALongList) {
    for (const int count : {1999, 2000, 5001}) {
        QVariantList entries;
        for (int i = 0; i < count; ++i)
            entries.append(QVariantMap{{u"number"_s, qlonglong(i)}, {u"path"_s, u"/m/Track%1.m4a"_s.arg(i)}});
        const Dictionary all{{u"records"_s, entries}};
        EXPECT_EQ(thereAndBack(all), all) << count;
    }
}

TEST(PropertyList, KeepsEveryCharacterThatAFileNameMayHave) {
    for (char16_t character = 1; character < 0x800; ++character) {
        const Dictionary one{{u"path"_s, QString(u"/tmp/a"_s + QChar(character) + u'b')}};
        ASSERT_EQ(thereAndBack(one), one) << int(character);
    }
    const Dictionary edges{{u"path"_s, u" \r\n leading and trailing \t\r\n"_s}};
    EXPECT_EQ(thereAndBack(edges), edges);
}

TEST(PropertyList, WritesNumbersTheSameInEveryCountry) {
    bool found = false;
    for (const char* name : {"de_DE.UTF-8", "fr_FR.UTF-8", "C.UTF-8"})
        found = found || std::setlocale(LC_ALL, name) != nullptr;
    ASSERT_TRUE(found);
    const Dictionary one{{u"length"_s, 5400.25}};
    EXPECT_TRUE(PropertyList::toXml(one).contains("5400.25"));
    EXPECT_EQ(thereAndBack(one), one);
    std::setlocale(LC_ALL, "C");
}

TEST(PropertyList, LeavesOutWhatNoPropertyListHolds) {
    const Dictionary dictionary{{u"nothing"_s, QVariant()}, {u"kept"_s, u"x"_s}};
    EXPECT_EQ(thereAndBack(dictionary), (Dictionary{{u"kept"_s, u"x"_s}}));
}

TEST(PropertyList, RefusesWhatIsNoDictionary) {
    EXPECT_FALSE(PropertyList::fromXml({}));
    EXPECT_FALSE(PropertyList::fromXml("no list at all"));
    EXPECT_FALSE(PropertyList::fromXml("<plist version=\"1.0\"><array/></plist>"));
    EXPECT_FALSE(PropertyList::fromXml(QByteArray(4096, '\0')));
}

TEST(PropertyList, RefusesEveryTruncation) {
    const QByteArray xml = PropertyList::toXml({{u"a"_s, QVariantList{u"b"_s, 1, 2.5, QVariantMap{{u"c"_s, true}}}}});
    const qsizetype wholeAt = xml.indexOf("</dict>\n</plist>");
    ASSERT_GT(wholeAt, 0);
    for (qsizetype length = 0; length < wholeAt; ++length)
        EXPECT_FALSE(PropertyList::fromXml(xml.left(length))) << length;
}

TEST(PropertyList, RefusesANestingThatWouldEatTheStack) {
    const QByteArray deep = "<plist version=\"1.0\"><dict><key>k</key>" + QByteArray("<array>").repeated(300000) +
                            QByteArray("</array>").repeated(300000) + "</dict></plist>";
    EXPECT_FALSE(PropertyList::fromXml(deep));
}
