// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/WndController/LibraryOutlineModel.h"

#include "Source/WndController/LibraryRowDelegates.h"
#include "tests/Source/WndController/LibraryWorld.h"

#include <QAbstractItemModelTester>
#include <QIcon>
#include <QSignalSpy>
#include <QTreeView>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class Outline : public testing::Test {
protected:
    LibraryWorld world;
    MediaLibrary library;
    LibraryOutlineModel model{library};
};

} // namespace

TEST_F(Outline, ShowsTwoGroupsWithTwoNodesEachAndNoEntries) {
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    library.addRecordFile(world.made(u"One"_s));
    ASSERT_EQ(model.rowCount(), 2);
    for (int group = 0; group < 2; ++group) {
        const QModelIndex above = model.index(group, 0);
        EXPECT_EQ(model.rowCount(above), 2);
        EXPECT_TRUE(model.isGroup(model.node(above)));
        EXPECT_FALSE(above.flags().testFlag(Qt::ItemIsSelectable)) << "groups cannot be selected";
        for (int leaf = 0; leaf < 2; ++leaf) {
            EXPECT_EQ(model.rowCount(model.index(leaf, 0, above)), 0);
            EXPECT_TRUE(model.index(leaf, 0, above).flags().testFlag(Qt::ItemIsSelectable));
        }
    }
    EXPECT_EQ(model.node({}), &library.rootNode());
}

TEST_F(Outline, AGroupsTitleIsGreyAndLarge) {
    const QModelIndex group = model.index(0, 0);
    EXPECT_EQ(group.data().toString(), u"Record Library"_s);
    EXPECT_EQ(group.data(Qt::FontRole).value<QFont>().pixelSize(), 14);
    EXPECT_TRUE(group.data(Qt::ForegroundRole).isValid());
    EXPECT_FALSE(group.data(Qt::DecorationRole).isValid());
    MediaLibraryNode nameless;
    EXPECT_EQ(LibraryOutlineModel::mediaLibraryNodeGroupTitleString(nameless).text, QString());
}

TEST_F(Outline, ANodesTitleHasTwoBlanksAndItsIcon) {
    const QModelIndex leaf = model.index(1, 0, model.index(0, 0));
    EXPECT_EQ(leaf.data().toString(), u"  All Recorded"_s);
    EXPECT_EQ(leaf.data(Qt::FontRole).value<QFont>().pixelSize(), 12);
    EXPECT_EQ(leaf.data(Qt::DecorationRole).value<QIcon>().name(), u"all-record-node-icon"_s);
    EXPECT_EQ(LibraryOutlineModel::kIconSize, 11);
}

TEST_F(Outline, CountsTheEntriesOfALeafOnly) {
    const QModelIndex group = model.index(0, 0);
    EXPECT_FALSE(model.index(0, LibraryOutlineModel::Count).data().isValid());
    EXPECT_EQ(model.index(1, LibraryOutlineModel::Count, group).data().toString(), u"0"_s);
    QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
    library.addRecordFile(world.made(u"One"_s));
    EXPECT_EQ(model.index(1, LibraryOutlineModel::Count, group).data().toString(), u"1"_s);
    EXPECT_GE(changed.count(), 1) << "the badge follows";
}

TEST_F(Outline, GroupRowsAreOneFifthHigher) {
    QTreeView view;
    view.setModel(&model);
    view.setItemDelegate(new OutlineRowDelegate(&view));
    view.expandAll();
    view.show();
    const QModelIndex group = model.index(0, 0);
    EXPECT_EQ(view.visualRect(model.index(0, 0, group)).height(), OutlineRowDelegate::kRowHeight);
    EXPECT_EQ(view.visualRect(group).height(), OutlineRowDelegate::kRowHeight * 12 / 10);
    EXPECT_EQ(OutlineRowDelegate::groupRowHeight(17), 20) << "20.4 is cut to a whole number";
}

TEST_F(Outline, ARebuiltTreeIsShown) {
    QSignalSpy reset(&model, &QAbstractItemModel::modelReset);
    const QModelIndex shown = model.index(0, 0);
    library.loadDefaultMediaLibrary();
    EXPECT_EQ(reset.count(), 1) << "the library announces new leaves, and the model looks for them";
    EXPECT_NE(model.node(model.index(0, 0)), shown.internalPointer());
    EXPECT_EQ(model.sharedNode(model.index(0, 0)).get(), library.rootNode().nonLeafNode().front().get());
    EXPECT_EQ(model.sharedNode({}), nullptr);
    EXPECT_TRUE(model.indexOfKey(u"all-ringtone"_s).isValid());
    EXPECT_EQ(model.indexOfKey(u"all-ringtone"_s).parent().row(), 1);
}
