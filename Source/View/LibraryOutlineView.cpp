// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/View/LibraryOutlineView.h"

#include "Source/View/FocusFrame.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

namespace {

constexpr int kMarkInset = 14;     // from the edge of the pane to the middle of the arrow
constexpr qreal kMarkWidth = 8;    // of an arrow that points down
constexpr qreal kMarkStroke = 1.5; // of its line

bool isHeading(const QModelIndex& index) {
    return index.isValid() && !index.flags().testFlag(Qt::ItemIsSelectable);
}

} // namespace

QItemSelectionModel::SelectionFlags LibraryOutlineView::selectionCommand(const QModelIndex& index,
                                                                         const QEvent* event) const {
    if (!index.flags().testFlag(Qt::ItemIsSelectable))
        return QItemSelectionModel::NoUpdate;
    return QTreeView::selectionCommand(index, event);
}

QModelIndex LibraryOutlineView::headingAt(const QPoint& place) const {
    const QModelIndex index = indexAt(place).siblingAtColumn(0);
    return isHeading(index) ? index : QModelIndex();
}

void LibraryOutlineView::mousePressEvent(QMouseEvent* event) {
    pressed_ = event->button() == Qt::LeftButton ? headingAt(event->position().toPoint()) : QModelIndex();
    QTreeView::mousePressEvent(event);
}

void LibraryOutlineView::mouseDoubleClickEvent(QMouseEvent* event) {
    // The second click of a double click counts like the first.
    pressed_ = event->button() == Qt::LeftButton ? headingAt(event->position().toPoint()) : QModelIndex();
    QTreeView::mouseDoubleClickEvent(event);
}

void LibraryOutlineView::mouseReleaseEvent(QMouseEvent* event) {
    QTreeView::mouseReleaseEvent(event);
    const QModelIndex heading = std::exchange(pressed_, QModelIndex());
    if (heading.isValid() && event->button() == Qt::LeftButton && headingAt(event->position().toPoint()) == heading)
        setExpanded(heading, !isExpanded(heading));
}

void LibraryOutlineView::keyPressEvent(QKeyEvent* event) {
    const QModelIndex group = currentIndex().parent();
    const bool isMirrored = layoutDirection() == Qt::RightToLeft;
    const int hide = isMirrored ? Qt::Key_Right : Qt::Key_Left;
    const int show = isMirrored ? Qt::Key_Left : Qt::Key_Right;
    if (group.isValid() && (event->key() == hide || event->key() == show)) {
        setExpanded(group, event->key() == show);
        event->accept();
        return;
    }
    QTreeView::keyPressEvent(event);
}

void LibraryOutlineView::drawRow(QPainter* painter, const QStyleOptionViewItem& option,
                                 const QModelIndex& index) const {
    QTreeView::drawRow(painter, option, index);
    if (!isHeading(index.siblingAtColumn(0)))
        return;
    const bool isMirrored = layoutDirection() == Qt::RightToLeft;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(
        QPen(palette().color(QPalette::PlaceholderText), kMarkStroke, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter->translate(isMirrored ? kMarkInset : viewport()->width() - kMarkInset, option.rect.center().y() + 0.5);
    if (!isExpanded(index))
        painter->rotate(isMirrored ? 90 : -90);
    const QPointF mark[] = {{-kMarkWidth / 2, -kMarkWidth / 4}, {0, kMarkWidth / 4}, {kMarkWidth / 2, -kMarkWidth / 4}};
    painter->drawPolyline(mark, 3);
    painter->restore();
}

void LibraryOutlineView::paintEvent(QPaintEvent* event) {
    QTreeView::paintEvent(event);
    FocusFrame::draw(*this);
}

void LibraryOutlineView::scrollContentsBy(int dx, int dy) {
    QTreeView::scrollContentsBy(dx, dy);
    FocusFrame::scrolled(*this);
}
