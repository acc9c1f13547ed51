// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/WndController/AudioTableModel.h"

#include "Source/Model/MissingFiles.h"
#include "Source/WndController/AudioTags.h"
#include "tests/Source/WndController/LibraryWorld.h"
#include "tests/support/WaitFor.h"

#include <QAbstractItemModelTester>
#include <QCollator>
#include <QGuiApplication>
#include <QIcon>
#include <QPalette>
#include <QRandomGenerator>
#include <QScrollBar>
#include <QSet>
#include <QSignalSpy>
#include <QTableView>
#include <algorithm>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QStringList titles(const AudioTableModel& model) {
    QStringList result;
    for (int row = 0; row < model.rowCount(); ++row)
        result.append(model.index(row, AudioTableModel::Title).data().toString());
    return result;
}

class AudioTable : public testing::Test {
protected:
    void show(const QString& leaf = u"all-record"_s) { model.setNode(LibraryWorld::leaf(library, leaf)); }
    Dictionary add(const QString& title, double seconds = 1) {
        const Dictionary entry = world.made(title, seconds);
        library.addRecordFile(entry);
        return entry;
    }
    /// Adds a list of many entries to the library in one call.
    void fill(int count) {
        QVariantList many;
        many.reserve(count);
        for (int i = 0; i < count; ++i)
            many.append(LibraryWorld::entry(u"key%1"_s.arg(i), u"Track %1"_s.arg((i * 7919) % count),
                                            world.folder.filePath(u"none%1.m4a"_s.arg(i)), i % 4000));
        library.setRecords(many);
        library.loadMediaLibraryNode(library.rootNode());
    }

    LibraryWorld world;
    MediaLibrary library;
    MissingFiles missing;
    AudioTableModel model{library, missing};
};

} // namespace

TEST(AudioTags, ColumnsReadTheirKeysAndOtherNamesAreKeys) {
    EXPECT_EQ(AudioTags::audioTagKeyTranslate(u"title"_s), u"ID3TitleKey"_s);
    EXPECT_EQ(AudioTags::audioTagKeyTranslate(u"artist"_s), u"ID3ArtistKey"_s);
    EXPECT_EQ(AudioTags::audioTagKeyTranslate(u"album"_s), u"ID3AlbumKey"_s);
    EXPECT_EQ(AudioTags::audioTagKeyTranslate(u"date"_s), u"AddAudioDate"_s);
    EXPECT_EQ(AudioTags::audioTagKeyTranslate(u"time"_s), u"AddAudioLength"_s);
    EXPECT_EQ(AudioTags::audioTagKeyTranslate(u"path"_s), u"AudioSavePath"_s);
    EXPECT_EQ(AudioTags::audioTagKeyTranslate(u"ID3GenreKey"_s), u"ID3GenreKey"_s);
}

TEST(AudioTags, FormatsAnHourTwoMinutesAndFiveSeconds) {
    const Dictionary entry{{AudioRecordEntry::Length, 3725.9F}};
    EXPECT_EQ(AudioTags::audioTag(entry, u"time"_s).toString(), u"01:02:05"_s);
    EXPECT_EQ(AudioTags::audioTag(entry, u"AddAudioLength"_s).toString(), u"01:02:05"_s);
}

TEST(AudioTags, ALengthIsReadFromTheFile) {
    LibraryWorld world;
    world.sounds.lengths.insert(u"/a.m4a"_s, 3725.5);
    EXPECT_EQ(AudioTags::audioLibraryNodeTimeString(u"/a.m4a"_s), u"01:02:05"_s);
    EXPECT_EQ(AudioTags::audioLibraryNodeTimeString(u"/missing.m4a"_s), u"00:00:00"_s);
}

TEST_F(AudioTable, ShowsTheEntriesOfItsNodeAndPassesTheModelTester) {
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    add(u"One"_s);
    show();
    add(u"Two"_s, 3725);
    EXPECT_EQ(titles(model), (QStringList{u"Two"_s, u"One"_s}));
    EXPECT_EQ(model.index(0, AudioTableModel::Time).data().toString(), u"01:02:05"_s);
    EXPECT_EQ(model.index(0, AudioTableModel::Artist).data().toString(), u"NO Artist"_s);
    EXPECT_EQ(model.index(0, AudioTableModel::Date).data().toString(), u"2026/11/21"_s);
    model.setNode(nullptr);
    EXPECT_EQ(model.rowCount(), 0);
    EXPECT_TRUE(model.entry(0).isEmpty());
    EXPECT_TRUE(model.entry(-1).isEmpty());
}

TEST_F(AudioTable, ANewEntryIsOneRowAndTheOthersStay) {
    add(u"One"_s);
    show();
    QSignalSpy inserted(&model, &QAbstractItemModel::rowsInserted);
    QSignalSpy reset(&model, &QAbstractItemModel::modelReset);
    const QPersistentModelIndex one = model.index(0, AudioTableModel::Title);
    library.addRecordFile(world.made(u"Two"_s));
    EXPECT_EQ(model.rowCount(), 2);
    ASSERT_EQ(inserted.count(), 1);
    EXPECT_EQ(inserted.at(0).at(1).toInt(), 0);
    EXPECT_EQ(inserted.at(0).at(2).toInt(), 0);
    EXPECT_EQ(reset.count(), 0);
    EXPECT_EQ(one.row(), 1);
}

TEST_F(AudioTable, AnEditedEntryChangesItsRowInPlace) {
    Dictionary one = add(u"One"_s);
    add(u"Two"_s);
    show();
    QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
    one.insert(AudioRecordEntry::Title, u"Uno"_s);
    library.addRecordFile(one);
    EXPECT_EQ(titles(model), (QStringList{u"Two"_s, u"Uno"_s}));
    ASSERT_GE(changed.count(), 1);
    EXPECT_EQ(changed.at(0).at(0).toModelIndex().row(), 1);
}

TEST_F(AudioTable, RemovedEntriesRemoveOnlyTheirRows) {
    const Dictionary one = add(u"One"_s);
    add(u"Two"_s);
    const Dictionary three = add(u"Three"_s);
    show();
    QSignalSpy removed(&model, &QAbstractItemModel::rowsRemoved);
    QSignalSpy reset(&model, &QAbstractItemModel::modelReset);
    library.removeMediaLibraryArray({one, three});
    EXPECT_EQ(titles(model), QStringList{u"Two"_s});
    EXPECT_EQ(removed.count(), 2);
    EXPECT_EQ(reset.count(), 0);
}

TEST_F(AudioTable, ChangesOfOtherLeavesDoNotAffectIt) {
    show();
    library.addRingtoneFile(world.made(u"Ring"_s, 10, u"m4r"_s));
    EXPECT_EQ(model.rowCount(), 0);
}

TEST_F(AudioTable, SortsByColumnAndBack) {
    add(u"b10"_s, 5);
    add(u"B9"_s, 20);
    add(u"a"_s, 1);
    show();
    model.sort(AudioTableModel::Title);
    EXPECT_EQ(titles(model), (QStringList{u"a"_s, u"B9"_s, u"b10"_s})) << "as people count, without regard of case";
    model.sort(AudioTableModel::Time, Qt::DescendingOrder);
    EXPECT_EQ(titles(model), (QStringList{u"B9"_s, u"b10"_s, u"a"_s}));
    model.sort(-1);
    EXPECT_EQ(titles(model), (QStringList{u"a"_s, u"B9"_s, u"b10"_s})) << "newest first";
}

TEST_F(AudioTable, ASortedTablePutsNewAndEditedEntriesWhereTheyBelong) {
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    Dictionary c = add(u"c"_s);
    const Dictionary a = add(u"a"_s);
    show();
    model.sort(AudioTableModel::Title);
    add(u"b"_s);
    EXPECT_EQ(titles(model), (QStringList{u"a"_s, u"b"_s, u"c"_s}));
    add(u"d"_s);
    c.insert(AudioRecordEntry::Title, u"z"_s);
    library.addRecordFile(c);
    EXPECT_EQ(titles(model), (QStringList{u"a"_s, u"b"_s, u"d"_s, u"z"_s}));
    library.removeMediaLibraryArray({a, c});
    EXPECT_EQ(titles(model), (QStringList{u"b"_s, u"d"_s}));
    model.sort(AudioTableModel::Title, Qt::DescendingOrder);
    add(u"c2"_s);
    EXPECT_EQ(titles(model), (QStringList{u"d"_s, u"c2"_s, u"b"_s}));
}

TEST_F(AudioTable, SelectionsSurviveSorting) {
    add(u"b"_s);
    add(u"a"_s);
    show();
    const QPersistentModelIndex b = model.index(1, AudioTableModel::Title);
    model.sort(AudioTableModel::Title, Qt::DescendingOrder);
    EXPECT_EQ(b.row(), 0);
    EXPECT_EQ(b.data().toString(), u"b"_s);
}

TEST_F(AudioTable, TheRowThatPlaysHasTheIconAndNoOtherHas) {
    const Dictionary one = add(u"One"_s);
    add(u"Two"_s);
    show();
    const auto icon = [&](int row) { return model.index(row, AudioTableModel::State).data(Qt::DecorationRole); };
    EXPECT_FALSE(icon(0).isValid());
    model.setPlayingPath(one.value(AudioRecordEntry::SavePath).toString());
    EXPECT_FALSE(icon(0).isValid());
    EXPECT_EQ(icon(1).value<QIcon>().name(), u"audio-playing-icon"_s);
    EXPECT_EQ(model.index(1, AudioTableModel::State).data(Qt::AccessibleTextRole).toString(), u"Playing"_s);
}

TEST_F(AudioTable, AMissingFileIsGreyWithABrokenLinkUntilItReturns) {
    const Dictionary one = add(u"One"_s);
    const QString path = one.value(AudioRecordEntry::SavePath).toString();
    show();
    const auto gone = [&] {
        return model.index(0, AudioTableModel::Title).data(AudioTableModel::MissingRole).toBool();
    };
    EXPECT_FALSE(gone());
    // The first query starts to watch the folder; removals after it are noticed.
    ASSERT_TRUE(QFile::remove(path));
    ASSERT_TRUE(waitFor([&] {
        missing.forget(path);
        return gone();
    }));
    EXPECT_EQ(model.index(0, AudioTableModel::State).data(Qt::DecorationRole).value<QIcon>().name(), u"broken-link"_s);
    EXPECT_EQ(model.index(0, AudioTableModel::Title).data(Qt::ForegroundRole).value<QBrush>().color(),
              QGuiApplication::palette().color(QPalette::Active, QPalette::PlaceholderText));
    EXPECT_TRUE(model.index(0, AudioTableModel::Title).data(Qt::ToolTipRole).toString().contains(path));
    world.file(u"One.m4a"_s);
    ASSERT_TRUE(waitFor([&] { return !gone(); })) << "the folder is watched";
}

TEST_F(AudioTable, LongNamesAreWholeInTheToolTip) {
    const QString name = QString(300, u'x');
    library.addRecordFile(LibraryWorld::entry(u"k"_s, name, u"/x.m4a"_s));
    show();
    EXPECT_TRUE(model.index(0, AudioTableModel::Title).data(Qt::ToolTipRole).toString().contains(name));
}

TEST_F(AudioTable, AHundredThousandEntriesAreSortedByAWorker) {
    constexpr int kCount = 100000;
    fill(kCount);
    show();
    ASSERT_EQ(model.rowCount(), kCount);
    model.sort(AudioTableModel::Title);
    EXPECT_TRUE(model.isSorting()) << "the window goes on meanwhile";
    ASSERT_TRUE(waitFor([&] { return !model.isSorting(); }, 60000));
    ASSERT_EQ(model.index(0, AudioTableModel::Title).data().toString(), u"Track 0"_s);
    library.addRecordFile(world.made(u"A New One"_s));
    EXPECT_EQ(model.index(0, AudioTableModel::Title).data().toString(), u"A New One"_s);
    model.sort(-1);
    library.addRecordFile(world.made(u"Another New One"_s));
    EXPECT_EQ(model.rowOfPath(world.folder.filePath(u"Another New One.m4a"_s)), 0);
    library.removeMediaLibraryArray({model.entry(70000)});
    EXPECT_EQ(model.rowCount(), kCount + 1);
}

/// The library's list changes completely in one step, as when another process has changed it.
TEST_F(AudioTable, AnyChangeOfTheListKeepsSelectionScrollPositionAndSorting) {
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    QRandomGenerator random(7);
    const QSignalSpy resets(&model, &QAbstractItemModel::modelReset);
    for (int round = 0; round < 60; ++round) {
        const bool isSorted = round % 2 == 1;
        const int most = round % 3 == 0 ? 600 : 12; // more ranges than are signalled one by one, or few
        const auto some = [&] {
            QVariantList entries;
            for (int i = 0; i < most; ++i)
                if (random.bounded(3) > 0)
                    entries.append(LibraryWorld::entry(QString::number(i),
                                                       u"Track %1"_s.arg(i * 37 % 100 + random.bounded(2) * 1000),
                                                       u"/none%1.m4a"_s.arg(i)));
            if (random.bounded(2) == 0)
                std::shuffle(entries.begin(), entries.end(), random);
            return entries;
        };
        const auto give = [&](const QVariantList& entries) {
            library.setRecords(entries);
            library.loadMediaLibraryNode(library.rootNode());
        };
        give(some());
        model.sort(isSorted ? AudioTableModel::Title : -1);
        show();
        const auto resetsBefore = resets.count();
        QMap<QString, QPersistentModelIndex> marks;
        for (int row = 0; row < model.rowCount(); ++row)
            marks.insert(Platform::stringForm(AudioRecordEntry::keyOf(model.entry(row))), model.index(row, 1));

        const QVariantList after = some();
        give(after);
        EXPECT_EQ(resets.count(), resetsBefore);
        ASSERT_EQ(model.rowCount(), after.size());
        QSet<QString> keysAfter;
        for (const QVariant& entry : after)
            keysAfter.insert(Platform::stringForm(AudioRecordEntry::keyOf(entry)));
        for (auto mark = marks.cbegin(); mark != marks.cend(); ++mark) {
            ASSERT_EQ(mark->isValid(), keysAfter.contains(mark.key())) << qPrintable(mark.key());
            if (mark->isValid()) {
                ASSERT_EQ(Platform::stringForm(AudioRecordEntry::keyOf(model.entry(mark->row()))), mark.key());
            }
        }
        if (!isSorted) {
            for (int row = 0; row < model.rowCount(); ++row)
                ASSERT_EQ(QVariant(model.entry(row)), after[row]);
            continue;
        }
        ASSERT_TRUE(waitFor([&] { return !model.isSorting(); }));
        QCollator collator{QLocale(QLocale::English)};
        collator.setNumericMode(true);
        const QStringList shown = titles(model);
        EXPECT_TRUE(std::is_sorted(shown.begin(), shown.end(), [&](const QString& a, const QString& b) {
            return collator.compare(a, b) < 0;
        })) << round;
    }
}

TEST_F(AudioTable, AViewKeepsSelectionAndScrollPositionWhileManyRowsAreRemoved) {
    fill(1000);
    show();
    QTableView view;
    view.setSelectionBehavior(QAbstractItemView::SelectRows);
    view.setModel(&model);
    view.resize(600, 300);
    view.show();
    const QString kept = model.entry(500).value(AudioRecordEntry::NodeDataKey).toString();
    view.selectRow(500);
    view.verticalScrollBar()->setValue(400);
    QVariantList fewer;
    for (int i = 0; i < library.records().size(); ++i)
        if (i % 3 != 0)
            fewer.append(library.records().at(i));
    library.setRecords(fewer);
    library.loadMediaLibraryNode(library.rootNode());
    ASSERT_EQ(model.rowCount(), 666);
    const QModelIndexList selected = view.selectionModel()->selectedRows();
    ASSERT_EQ(selected.size(), 1);
    EXPECT_EQ(model.entry(selected.front().row()).value(AudioRecordEntry::NodeDataKey).toString(), kept);
    EXPECT_EQ(view.verticalScrollBar()->value(), 400);
}

TEST_F(AudioTable, AHundredThousandRowsCanBeRemovedAtOnce) {
    fill(100000);
    show();
    library.setRecords({});
    library.loadMediaLibraryNode(library.rootNode());
    EXPECT_EQ(model.rowCount(), 0);
}
