// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Foundation/linux/PropertyList.h"

#include "Platform/Foundation/linux/PropertyListReader.h"

#include <QDateTime>
#include <QRandomGenerator>
#include <QTimeZone>
#include <clocale>
#include <gtest/gtest.h>
#include <limits>

using namespace Qt::StringLiterals;
namespace PropertyList = Platform::PropertyList;

namespace {

std::optional<Dictionary> thereAndBack(const Dictionary& dictionary) {
    return PropertyList::fromXml(PropertyList::toXml(dictionary));
}

} // namespace

TEST(PropertyList, RoundTripsEveryKindOfObject) {
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

TEST(PropertyList, WritesNumbersIndependentlyOfTheLocale) {
    bool found = false;
    for (const char* name : {"de_DE.UTF-8", "fr_FR.UTF-8", "C.UTF-8"})
        found = found || std::setlocale(LC_ALL, name) != nullptr;
    ASSERT_TRUE(found);
    const Dictionary one{{u"length"_s, 5400.25}};
    EXPECT_TRUE(PropertyList::toXml(one).contains("5400.25"));
    EXPECT_EQ(thereAndBack(one), one);
    std::setlocale(LC_ALL, "C");
}

TEST(PropertyList, WritesNegativeNumbersWithTheirSign) {
    const Dictionary one{{u"least"_s, std::numeric_limits<qlonglong>::min()}, {u"one"_s, -1}};
    const QByteArray xml = PropertyList::toXml(one);
    EXPECT_TRUE(xml.contains("<integer>-1</integer>")) << xml.constData();
    EXPECT_TRUE(xml.contains("<integer>-9223372036854775808</integer>")) << xml.constData();
    EXPECT_EQ(thereAndBack(one), one);
}

TEST(PropertyList, OmitsValuesThatAPropertyListCannotHold) {
    const Dictionary dictionary{{u"nothing"_s, QVariant()}, {u"kept"_s, u"x"_s}};
    EXPECT_EQ(thereAndBack(dictionary), (Dictionary{{u"kept"_s, u"x"_s}}));
}

TEST(PropertyList, RefusesARootThatIsNotADictionary) {
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

TEST(PropertyList, RefusesNestingThatWouldOverflowTheStack) {
    const QByteArray deep = "<plist version=\"1.0\"><dict><key>k</key>" + QByteArray("<array>").repeated(300000) +
                            QByteArray("</array>").repeated(300000) + "</dict></plist>";
    EXPECT_FALSE(PropertyList::fromXml(deep));
}

namespace {

Dictionary someList(QRandomGenerator& random, int depth = 0) {
    const QStringList texts{u""_s, u"NO Artist"_s, u"<&\"'>"_s, u"Überraschung 🎵"_s, u" \n spaces\t"_s, u"a&b&amp;c"_s};
    Dictionary result;
    for (int i = random.bounded(6); i > 0; --i) {
        const auto value = [&]() -> QVariant {
            switch (random.bounded(depth < 3 ? 9 : 6)) {
            case 0:
                return random.bounded(2) == 0;
            case 1:
                return qlonglong(random.generate64());
            case 2:
                return random.bounded(2) == 0 ? 83.5 : random.generateDouble() * 1e9 - 5e8;
            case 3:
                return QByteArray("\0\1\xff\2\3", random.bounded(6));
            case 4:
            case 5:
                return texts[random.bounded(int(texts.size()))];
            case 6:
                return someList(random, depth + 1);
            default: {
                QVariantList list;
                for (int j = random.bounded(4); j > 0; --j)
                    list.append(random.bounded(2) == 0 ? QVariant(someList(random, depth + 1)) : QVariant(u"x"_s));
                return list;
            }
            }
        };
        result.insert(texts[random.bounded(int(texts.size()))] + QString::number(random.bounded(20)), value());
    }
    return result;
}

} // namespace

TEST(PropertyListReader, ReadsEverythingThatThisProgramWrites) {
    QRandomGenerator random(3);
    for (int round = 0; round < 500; ++round) {
        const Dictionary list = someList(random);
        const QByteArray xml = PropertyList::toXml(list);
        const auto read = PropertyList::fromOwnXml(xml);
        ASSERT_TRUE(read) << xml.constData();
        ASSERT_EQ(*read, PropertyList::fromAnyXml(xml)) << xml.constData();
    }
}

TEST(PropertyListReader, LeavesDatesAndOtherFormsToLibplist) {
    EXPECT_FALSE(PropertyList::fromOwnXml(PropertyList::toXml({{u"date"_s, QDateTime::currentDateTimeUtc()}})));
    const auto read = [](const QByteArray& value) {
        return PropertyList::fromOwnXml("<plist version=\"1.0\"><dict><key>a</key>" + value + "</dict></plist>");
    };
    EXPECT_EQ(read("<string>x</string>"), (Dictionary{{u"a"_s, u"x"_s}}));
    for (const char* other :
         {"<string>&#65;</string>", "<string><![CDATA[x]]></string>", "<integer>0x10</integer>",
          "<integer>010</integer>", "<integer> 1 </integer>", "<real>nan</real>", "<real>1e3</real>",
          "<!-- x --><true/>", "<string a=\"b\">x</string>", "<true />", "<data>?</data>"})
        EXPECT_FALSE(read(other)) << other;
}

TEST(PropertyListReader, ReadsDamagedListsLikeLibplist) {
    QRandomGenerator random(11);
    int readable = 0;
    for (int round = 0; round < 20000; ++round) {
        QByteArray xml = PropertyList::toXml(someList(random));
        for (int i = random.bounded(3); i >= 0; --i) {
            const qsizetype at = random.bounded(int(xml.size()));
            switch (random.bounded(4)) {
            case 0:
                xml[at] = char(random.bounded(256));
                break;
            case 1:
                xml[at] = "<>/&; 0-.aeit"[random.bounded(13)];
                break;
            case 2:
                xml.remove(at, random.bounded(1, 20));
                break;
            default:
                xml.insert(at, xml.mid(random.bounded(int(xml.size())), random.bounded(1, 30)));
            }
        }
        if (const auto read = PropertyList::fromOwnXml(xml)) {
            ++readable;
            ASSERT_EQ(read, PropertyList::fromAnyXml(xml)) << xml.constData();
        }
    }
    EXPECT_GT(readable, 100);
}
