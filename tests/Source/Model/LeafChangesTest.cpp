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

/// Result notation: "-2" removes the third row, "+0" inserts and "=0" replaces the first; "*" means too many changes.
QString told(const QVariantList& before, const QVariantList& after) {
    const auto steps = LeafChanges::between(before, after);
    if (!steps)
        return u"*"_s;
    QStringList words;
    for (const LeafChanges::Step& step : *steps)
        words += QString(QChar(u"-+="[static_cast<int>(step.kind)])) + QString::number(step.index);
    return words.join(u' ');
}

} // namespace

TEST(LeafChanges, AreTheRowsThatDiffer) {
    const auto told = [](const char* before, const char* after) { return ::told(list(before), list(after)); };
    EXPECT_EQ(told("", ""), QString());
    EXPECT_EQ(told("a b c", "a b c"), QString());
    EXPECT_EQ(told("a b c", "x a b c"), u"+0"_s);
    EXPECT_EQ(told("a b c", "a b x c y"), u"+2 +4"_s);
    EXPECT_EQ(told("a b c", "a b1 c"), u"=1"_s);
    EXPECT_EQ(told("a b c", "b"), u"-2 -0"_s);
    EXPECT_EQ(told("a b c d", "x y b1 d"), u"-2 -0 +0 +1 =2"_s);
    EXPECT_EQ(told("a b", "c d"), u"-1 -0 +0 +1"_s);
    EXPECT_EQ(told("-1 a -2", "-1 -2 -3"), u"-1 +2"_s);
    EXPECT_EQ(told("a1 a2 a3", "a1 a3"), u"-1"_s);
    EXPECT_EQ(told("a1 a2", "a3"), u"*"_s) << "which of them is gone?";
    EXPECT_EQ(told("a b", "b a"), u"*"_s);
}

TEST(LeafChanges, AreNotToldRowByRowWhenTheyAreMany) {
    QVariantList many;
    for (int i = 0; i < 200; ++i)
        many.append(Dictionary{{AudioRecordEntry::NodeDataKey, QString::number(i)}});
    EXPECT_EQ(told(many, many.mid(0, 100)), u"*"_s);
    EXPECT_EQ(told(many.mid(0, 100), many), u"*"_s);
    QVariantList others = many;
    for (int i = 0; i < 100; ++i)
        others[i] = Dictionary{{AudioRecordEntry::NodeDataKey, QString::number(i)}, {AudioRecordEntry::Title, u"x"_s}};
    EXPECT_EQ(told(many, others), u"*"_s);
    EXPECT_EQ(told(many, many.mid(10)), u"-9 -8 -7 -6 -5 -4 -3 -2 -1 -0"_s);
}

TEST(LeafChanges, LeadFromOneListToTheOther) {
    QRandomGenerator random(5);
    for (int round = 0; round < 2000; ++round) {
        QVariantList before;
        QVariantList after;
        for (int i = 0; i < 8; ++i) {
            const auto version = [&] {
                return Dictionary{{AudioRecordEntry::NodeDataKey, i}, {AudioRecordEntry::Year, random.bounded(2)}};
            };
            if (random.bounded(3) > 0)
                before.append(version());
            if (random.bounded(3) > 0)
                after.append(version());
        }
        const auto steps = LeafChanges::between(before, after);
        ASSERT_TRUE(steps);
        QVariantList shown = before;
        for (const LeafChanges::Step& step : *steps) {
            ASSERT_GE(step.index, 0);
            ASSERT_LT(step.index, step.kind == LeafChanges::Step::Kind::Inserted ? shown.size() + 1 : shown.size());
            if (step.kind == LeafChanges::Step::Kind::Removed)
                shown.removeAt(step.index);
            else if (step.kind == LeafChanges::Step::Kind::Inserted)
                shown.insert(step.index, after[step.index]);
            else
                shown[step.index] = after[step.index];
        }
        ASSERT_EQ(shown, after);
    }
}
