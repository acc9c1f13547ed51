// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/WndController/LibraryRowDelegates.h"

#include "Source/WndController/AudioTableModel.h"
#include "Source/WndController/LibraryOutlineModel.h"

#include <QApplication>
#include <QPainter>
#include <QTableView>

namespace {

// A selection in a window at rest is pale: marks in the colour of selected text would vanish on it.
QIcon::Mode markMode(const QStyleOptionViewItem& cell) {
    return cell.state.testFlag(QStyle::State_Selected) && cell.state.testFlag(QStyle::State_Active) ? QIcon::Selected
                                                                                                    : QIcon::Normal;
}

} // namespace

QSize OutlineRowDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
    QSize size = QStyledItemDelegate::sizeHint(option, index);
    size.setHeight(index.data(LibraryOutlineModel::GroupRole).toBool() ? groupRowHeight(kRowHeight) : kRowHeight);
    return size;
}

void OutlineRowDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const {
    QStyledItemDelegate::initStyleOption(option, index);
    option->state &= ~QStyle::State_HasFocus;
    if (index.data(LibraryOutlineModel::GroupRole).toBool())
        option->state &= ~QStyle::State_MouseOver; // a heading answers to nothing
    option->icon =
        QIcon(option->icon.pixmap(option->decorationSize, option->widget->devicePixelRatioF(), markMode(*option)));
}

int AudioRowDelegate::rowHeight(const QTableView& table) {
    return qMax(24, table.fontMetrics().height() + 8);
}

void AudioRowDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
    QStyleOptionViewItem cell = option;
    cell.state &= ~QStyle::State_HasFocus;
    if (index.column() != AudioTableModel::State) {
        QStyledItemDelegate::paint(painter, cell, index);
        return;
    }
    // The mark of the row stands in the middle of its narrow column.
    initStyleOption(&cell, index);
    const QIcon icon = std::exchange(cell.icon, QIcon());
    cell.features &= ~QStyleOptionViewItem::HasDecoration;
    const QStyle* style = cell.widget ? cell.widget->style() : QApplication::style();
    style->drawControl(QStyle::CE_ItemViewItem, &cell, painter, cell.widget);
    QRect place(0, 0, 14, 14);
    place.moveCenter(cell.rect.center());
    icon.paint(painter, place, Qt::AlignCenter, markMode(cell));
}
