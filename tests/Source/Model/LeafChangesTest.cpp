// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/Model/LeafChanges.h"

#include "Platform/Foundation/Dictionary.h"
#include "Source/Model/AudioRecordEntry.h"

#include <QRandomGenerator>
#include <gtest/gtest.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// "a" is an entry with the key "a", "a1" another version of it; "-1" has no key.
QVariantList list(const char* words) {
    QVariantList entries;
    for (const QString& word : QString::fromLatin1(words).split(u' ', Qt::SkipEmptyParts)) {
        Dictionary entry{{AudioRecordEntry::Title, word.mid(1)}};
        if (!word.startsWith(u'-'))
            entry.insert(AudioRecordEntry::NodeDataKey, word.left(1));
        entries.append(entry);
    }
    return entries;
}

void note(QStringList& words, QChar sign, const std::vector<LeafChange::Rows>& ranges) {
    for (const auto& [first, last] : ranges)
        words += sign + QString::number(first) + (last > first ? u'.' + QString::number(last) : QString());
}

/// Result notation: "-2.4" removes the third to fifth row, "+0" inserts and "=0" replaces the first, "~1,0" swaps two
/// rows.
QString stepsOf(const QVariantList& before, const QVariantList& after) {
    const LeafChange change = LeafChanges::between(before, after);
    EXPECT_EQ(change.entries, after);
    QStringList words;
    note(words, u'-', change.removed);
    QStringList places;
    for (const int row : change.moved)
        places += QString::number(row);
    if (!places.isEmpty())
        words += u'~' + places.join(u',');
    note(words, u'+', change.inserted);
    note(words, u'=', change.replaced);
    return words.join(u' ');
}

/// The rows of a view after it applied the steps.
QVariantList applied(const QVariantList& before, const LeafChange& change) {
    QVariantList shown = before;
    for (const auto& [first, last] : change.removed)
        shown.remove(first, last - first + 1);
    if (!change.moved.empty()) {
        const QVariantList old = shown;
        EXPECT_EQ(static_cast<qsizetype>(change.moved.size()), old.size());
        for (qsizetype place = 0; place < old.size(); ++place)
            shown[place] = old[change.moved[static_cast<std::size_t>(place)]];
    }
    for (const auto& [first, last] : change.inserted)
        for (int row = first; row <= last; ++row)
            shown.insert(row, change.entries[row]);
    for (const auto& [first, last] : change.replaced)
        for (int row = first; row <= last; ++row)
            shown[row] = change.entries[row];
    return shown;
}

} // namespace

TEST(LeafChanges, AreTheRowsThatDiffer) {
    const auto stepsOf = [](const char* before, const char* after) { return ::stepsOf(list(before), list(after)); };
    EXPECT_EQ(stepsOf("", ""), QString());
    EXPECT_EQ(stepsOf("a b c", "a b c"), QString());
    EXPECT_EQ(stepsOf("a b c", "x a b c"), u"+0"_s);
    EXPECT_EQ(stepsOf("a b c", "a b x c y"), u"+2 +4"_s);
    EXPECT_EQ(stepsOf("a b c", "a b1 c"), u"=1"_s);
    EXPECT_EQ(stepsOf("a b c", "b"), u"-2 -0"_s);
    EXPECT_EQ(stepsOf("a b c d", "x y b1 d"), u"-2 -0 +0.1 =2"_s);
    EXPECT_EQ(stepsOf("a b", "c d"), u"-0.1 +0.1"_s);
    EXPECT_EQ(stepsOf("-1 a -2", "-1 -2 -3"), u"-1 +2"_s);
    EXPECT_EQ(stepsOf("a1 a2 a3", "a1 a3"), u"-1"_s);
    EXPECT_EQ(stepsOf("a1 a2", "a3"), u"-1 =0"_s);
    EXPECT_EQ(stepsOf("a b", "b a"), u"~1,0"_s);
    EXPECT_EQ(stepsOf("x a b c y", "x c n a b1 y"), u"~0,3,1,2,4 +2 =4"_s);
}

TEST(LeafChanges, AreRangesHoweverManyRowsDiffer) {
    QVariantList many;
    for (int i = 0; i < 200; ++i)
        many.append(Dictionary{{AudioRecordEntry::NodeDataKey, QString::number(i)}});
    EXPECT_EQ(stepsOf(many, many.mid(0, 100)), u"-100.199"_s);
    EXPECT_EQ(stepsOf(many.mid(0, 100), many), u"+100.199"_s);
    QVariantList others = many;
    for (int i = 0; i < 100; ++i)
        others[i] = Dictionary{{AudioRecordEntry::NodeDataKey, QString::number(i)}, {AudioRecordEntry::Title, u"x"_s}};
    EXPECT_EQ(stepsOf(many, others), u"=0.99"_s);
    EXPECT_EQ(stepsOf(many, {}), u"-0.199"_s);
}

TEST(LeafChanges, TransformOneListIntoTheOther) {
    QRandomGenerator random(5);
    for (int round = 0; round < 3000; ++round) {
        const auto some = [&] {
            QVariantList entries;
            for (int i = 0; i < 9; ++i)
                if (random.bounded(3) > 0)
                    entries.append(Dictionary{{AudioRecordEntry::NodeDataKey, random.bounded(20) == 0 ? 0 : i},
                                              {AudioRecordEntry::Year, random.bounded(2)}});
            if (random.bounded(2) == 0)
                std::shuffle(entries.begin(), entries.end(), random);
            return entries;
        };
        const QVariantList before = some();
        const QVariantList after = some();
        ASSERT_EQ(applied(before, LeafChanges::between(before, after)), after);
    }
}
