// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/View/MediaNodeListTableView.h"

#include "tests/support/WaitFor.h"

#include <QContextMenuEvent>
#include <QMenu>
#include <QStandardItemModel>
#include <QTest>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class MenuDelegate : public MediaNodeListTableViewDelegate {
public:
    QMenu* menuForEvent(QContextMenuEvent&) override {
        ++asked;
        return nullptr;
    }
    int asked = 0;
};

class ListTable : public testing::Test {
protected:
    ListTable() {
        for (int row = 0; row < 5; ++row)
            model.appendRow({new QStandardItem(QString::number(row)), new QStandardItem(u"x"_s)});
        view.setModel(&model);
        view.setMenuDelegate(&delegate);
        view.resize(300, 400);
        view.show();
        (void)QTest::qWaitForWindowExposed(&view, 30000);
    }
    void rightClick(int row) {
        const QPoint place = row < model.rowCount() ? view.visualRect(model.index(row, 0)).center()
                                                    : QPoint(5, view.viewport()->height() - 5);
        const QPoint inWindow = view.viewport()->mapTo(view.window(), place);
        QTest::mouseClick(view.windowHandle(), Qt::RightButton, {}, inWindow);
        // The offscreen platform does not generate a context event from a right click.
        if (delegate.asked == 0) {
            QContextMenuEvent event(QContextMenuEvent::Mouse, place, view.viewport()->mapToGlobal(place));
            QCoreApplication::sendEvent(view.viewport(), &event);
        }
    }
    [[nodiscard]] QList<int> selected() const {
        QList<int> rows;
        for (const QModelIndex& each : view.selectionModel()->selectedRows())
            rows.append(each.row());
        std::sort(rows.begin(), rows.end());
        return rows;
    }

    QStandardItemModel model;
    MediaNodeListTableView view;
    MenuDelegate delegate;
};

} // namespace

TEST_F(ListTable, ARightClickOutsideTheSelectionSelectsOnlyThatRow) {
    view.selectRow(0);
    rightClick(3);
    EXPECT_EQ(selected(), QList<int>{3});
    EXPECT_EQ(delegate.asked, 1);
}

TEST_F(ListTable, ARightClickInsideTheSelectionKeepsIt) {
    view.selectRow(1);
    view.selectionModel()->select(model.index(3, 0), QItemSelectionModel::Select | QItemSelectionModel::Rows);
    rightClick(3);
    EXPECT_EQ(selected(), (QList<int>{1, 3}));
    EXPECT_EQ(delegate.asked, 1);
}

TEST_F(ListTable, ARightClickBelowTheRowsClearsTheSelection) {
    view.selectRow(1);
    rightClick(99);
    EXPECT_TRUE(selected().isEmpty());
    EXPECT_EQ(delegate.asked, 1);
}

TEST_F(ListTable, TheMenuKeyKeepsTheSelection) {
    view.selectRow(2);
    QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(1, 1), view.viewport()->mapToGlobal(QPoint(1, 1)));
    QCoreApplication::sendEvent(view.viewport(), &event);
    EXPECT_EQ(selected(), QList<int>{2});
    EXPECT_EQ(delegate.asked, 1);
}

TEST_F(ListTable, AnEmptyListShowsItsSentence) {
    model.clear();
    view.setEmptyText(u"Nothing here yet"_s);
    const QImage with = view.grab().toImage();
    view.setEmptyText({});
    EXPECT_NE(with, view.grab().toImage());
}
