// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/CDBurn/TrackListModel.h"

#include "Source/CDBurn/TrackEntry.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

Dictionary track(const QString& name, qlonglong seconds) {
    return {{TrackEntry::FilePath, u"/music/"_s + name},
            {TrackEntry::FileName, name},
            {TrackEntry::FileTimeLong, seconds},
            {TrackEntry::FileSize, 0.18F * float(seconds)},
            {TrackEntry::ChooseTheAudio, true}};
}

class TrackList : public testing::Test {
protected:
    TrackList() {
        model.setEntries(
            {track(u"a"_s, 10), track(u"b"_s, 100), track(u"c"_s, 1000), track(u"d"_s, 3661), track(u"e"_s, 5)});
    }
    [[nodiscard]] QString order() const {
        QString names;
        for (int row = 0; row < model.rowCount(); ++row)
            names += model.objectValue(u"Audio Name"_s, row).toString();
        return names;
    }
    [[nodiscard]] QString moved(const QList<int>& rows, int before) {
        model.move(rows, before);
        return order();
    }

    TrackListModel model;
    QAbstractItemModelTester tester{&model, QAbstractItemModelTester::FailureReportingMode::Fatal};
};

} // namespace

TEST_F(TrackList, ShowsNameTimeAndTickByColumn) {
    EXPECT_EQ(model.objectValue(u"Audio Name"_s, 3), u"d"_s);
    EXPECT_EQ(model.objectValue(u"Time"_s, 3), u"01:01:01"_s);
    EXPECT_EQ(model.objectValue(u"Choose"_s, 3), true);
    EXPECT_FALSE(model.objectValue(u"Size"_s, 3).isValid());
    EXPECT_EQ(model.index(3, TrackListModel::AudioName).data(), u"d"_s);
    EXPECT_EQ(model.index(3, TrackListModel::Time).data(), u"01:01:01"_s);
    EXPECT_EQ(model.index(3, TrackListModel::Choose).data(Qt::CheckStateRole), Qt::Checked);
    EXPECT_EQ(model.index(3, TrackListModel::AudioName).data(Qt::ToolTipRole), u"/music/d"_s);
}

TEST_F(TrackList, ARowHasItsNumberWhenItIsRead) {
    EXPECT_EQ(model.child(2).value(TrackEntry::NumberForMusic), 2);
    EXPECT_EQ(model.entries().at(2).value(TrackEntry::NumberForMusic), 2);
    model.move({2}, 0);
    EXPECT_EQ(model.child(0).value(TrackEntry::NumberForMusic), 0);
    EXPECT_EQ(model.child(0).value(TrackEntry::FileName), u"c"_s);
}

TEST_F(TrackList, OnlyTheTickCanBeEdited) {
    EXPECT_FALSE(model.shouldEdit(u"Audio Name"_s, 0));
    EXPECT_FALSE(model.shouldEdit(u"Time"_s, 0));
    EXPECT_FALSE(model.shouldEdit(u"Choose"_s, 5)) << "no such row";
    EXPECT_FALSE(model.setData(model.index(0, TrackListModel::AudioName), u"x"_s));
    const QSignalSpy ticks(&model, &TrackListModel::ticksChanged);
    EXPECT_TRUE(model.shouldEdit(u"Choose"_s, 1));
    EXPECT_EQ(model.objectValue(u"Choose"_s, 1), false);
    EXPECT_TRUE(model.setData(model.index(1, TrackListModel::Choose), Qt::Checked, Qt::CheckStateRole));
    EXPECT_EQ(model.objectValue(u"Choose"_s, 1), true);
    EXPECT_EQ(ticks.count(), 2);
}

TEST_F(TrackList, OnlyTickedEntriesAreCounted) {
    EXPECT_EQ(model.tickedCount(), 5);
    EXPECT_EQ(model.tickedSeconds(), 4776);
    EXPECT_EQ(model.tickedSize(), 859); // 859.68
    model.shouldEdit(u"Choose"_s, 3);
    EXPECT_EQ(model.tickedCount(), 4);
    EXPECT_EQ(model.tickedSeconds(), 1115);
    EXPECT_EQ(model.tickedSize(), 200); // 200.70
    EXPECT_EQ(model.rowCount(), 5);
}

TEST_F(TrackList, TheSizeIsTruncatedOnceAtTheEnd) {
    model.setEntries({track(u"a"_s, 3), track(u"b"_s, 3)});
    EXPECT_EQ(model.tickedSize(), 1) << "0.54 and 0.54";
    model.setEntries(QList<Dictionary>(100, track(u"a"_s, 4'000'000'000)));
    EXPECT_EQ(model.tickedSize(), std::numeric_limits<int>::max());
}

TEST_F(TrackList, RowsMoveTogetherInTheirOrder) {
    EXPECT_EQ(moved({0}, 2), u"bacde"_s);
    EXPECT_EQ(moved({4}, 0), u"ebacd"_s);
    EXPECT_EQ(moved({0, 2, 4}, 2), u"beadc"_s);
    EXPECT_EQ(moved({1, 3}, 5), u"baced"_s);
}

TEST_F(TrackList, AMoveToTheSamePlaceChangesNothing) {
    const QSignalSpy moves(&model, &TrackListModel::rowsMoved);
    for (const int before : {1, 2})
        EXPECT_EQ(moved({1}, before), u"abcde"_s);
    EXPECT_EQ(moved({0, 1, 2}, 1), u"abcde"_s);
    EXPECT_EQ(moved({-1, 9}, 2), u"abcde"_s) << "rows that are not there";
    EXPECT_EQ(moves.count(), 0);
}

TEST_F(TrackList, EveryMoveOfEverySelectionKeepsAllRows) {
    for (int selection = 0; selection < 32; ++selection) {
        for (int before = 0; before <= 5; ++before) {
            model.setEntries(
                {track(u"a"_s, 3), track(u"b"_s, 3), track(u"c"_s, 3), track(u"d"_s, 3), track(u"e"_s, 3)});
            const QString names = u"abcde"_s;
            QList<int> rows;
            QString above, taken, below;
            for (int row = 0; row < 5; ++row) {
                if (selection >> row & 1) {
                    rows.prepend(row); // the order of the selection does not change the list
                    taken += names.at(row);
                } else {
                    (row < before ? above : below) += names.at(row);
                }
            }
            EXPECT_EQ(moved(rows, before), above + taken + below) << selection << " to " << before;
        }
    }
}

TEST_F(TrackList, RemovesRows) {
    model.remove({1, 3, 3, 7});
    EXPECT_EQ(order(), u"ace"_s);
    model.append({track(u"f"_s, 3)});
    EXPECT_EQ(order(), u"acef"_s);
}
