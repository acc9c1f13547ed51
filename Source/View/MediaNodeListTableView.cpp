// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/View/MediaNodeListTableView.h"

#include "Source/View/FocusFrame.h"
#include "Source/View/NamedImages.h"

#include <QContextMenuEvent>
#include <QHeaderView>
#include <QMenu>
#include <QPainter>

#include <utility>

MediaNodeListTableView::MediaNodeListTableView(QWidget* parent) : QTableView(parent) {
    setSelectionBehavior(SelectRows);
    setSelectionMode(ExtendedSelection);
    setEditTriggers(SelectedClicked);
    setShowGrid(false);
    setAlternatingRowColors(true);
    setWordWrap(false);
    setTextElideMode(Qt::ElideMiddle);
    setTabKeyNavigation(false);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollMode(ScrollPerPixel);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setHighlightSections(false);
}

void MediaNodeListTableView::setEmptyText(const QString& text, const QString& image) {
    if (text == emptyText_ && image == emptyImage_)
        return;
    emptyText_ = text;
    emptyImage_ = image;
    viewport()->update();
}

QMenu* MediaNodeListTableView::menuForEvent(QContextMenuEvent& event) {
    // The menu key refers to the selected rows, wherever the pointer is.
    if (event.reason() != QContextMenuEvent::Keyboard) {
        const QModelIndex under = indexAt(viewport()->mapFromGlobal(event.globalPos()));
        if (!under.isValid())
            clearSelection();
        else if (!selectionModel()->isRowSelected(under.row()))
            selectionModel()->setCurrentIndex(under, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    }
    return delegate_ ? delegate_->menuForEvent(event) : nullptr;
}

void MediaNodeListTableView::keyboardSearch(const QString& search) {
    // The base class searches in the column of the current cell.
    const QModelIndex current = currentIndex();
    if (current.isValid() && current.column() != searchColumn_)
        selectionModel()->setCurrentIndex(current.siblingAtColumn(searchColumn_), QItemSelectionModel::NoUpdate);
    QTableView::keyboardSearch(search);
}

QModelIndex MediaNodeListTableView::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) {
    if (action != MoveHome && action != MoveEnd)
        return QTableView::moveCursor(action, modifiers);
    // Whole rows are selected, so the first and the last cell of a row do not matter.
    const QModelIndex row = QTableView::moveCursor(action, modifiers | Qt::ControlModifier);
    return row.isValid() ? row.siblingAtColumn(currentIndex().isValid() ? currentIndex().column() : searchColumn_)
                         : row;
}

QWidget* MediaNodeListTableView::editCell(const QModelIndex& cell) {
    if (!QTableView::edit(cell, AllEditTriggers, nullptr))
        return nullptr;
    isFresh_ = false; // closing the editor returns the focus to the table, but not by a click
    return indexWidget(cell);
}

bool MediaNodeListTableView::edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) {
    // A click that reduces a selection to one row, or that only returns the focus, must not open the editor.
    if (trigger == SelectedClicked && !pressedAlone_)
        return false;
    return QTableView::edit(index, trigger, event);
}

void MediaNodeListTableView::initViewItemOption(QStyleOptionViewItem* option) const {
    QTableView::initViewItemOption(option);
    // The base class draws a view as inactive when its own editor has the focus.
    if (state() == EditingState && isActiveWindow())
        option->state |= QStyle::State_Active;
}

void MediaNodeListTableView::contextMenuEvent(QContextMenuEvent* event) {
    if (QMenu* menu = menuForEvent(*event)) {
        Q_EMIT menu->aboutToShow();
        const QList<QAction*> items = menu->actions();
        // A menu without visible items is not shown.
        if (std::any_of(items.begin(), items.end(), [](const QAction* item) { return item->isVisible(); }))
            menu->popup(event->globalPos());
    }
    event->accept();
}

void MediaNodeListTableView::focusInEvent(QFocusEvent* event) {
    if (event->reason() == Qt::MouseFocusReason || event->reason() == Qt::ActiveWindowFocusReason)
        isFresh_ = true;
    QTableView::focusInEvent(event);
}

void MediaNodeListTableView::mousePressEvent(QMouseEvent* event) {
    // menuForEvent() sets the selection of a context click; the base class would change it before.
    if (event->button() == Qt::RightButton) {
        event->accept();
        return;
    }
    const QItemSelection selected = selectionModel() ? selectionModel()->selection() : QItemSelection();
    pressedAlone_ = !std::exchange(isFresh_, false) && event->modifiers() == Qt::NoModifier && selected.size() == 1 &&
                    selected.first().height() == 1;
    QTableView::mousePressEvent(event);
}

void MediaNodeListTableView::mouseDoubleClickEvent(QMouseEvent* event) {
    pressedAlone_ = false; // otherwise the release of the button would open the editor
    QTableView::mouseDoubleClickEvent(event);
}

void MediaNodeListTableView::paintEvent(QPaintEvent* event) {
    QTableView::paintEvent(event);
    FocusFrame::draw(*this);
    if (emptyText_.isEmpty() || !model() || model()->rowCount() > 0)
        return;
    QPainter painter(viewport());
    const QColor faint = palette().color(QPalette::Active, QPalette::PlaceholderText);
    painter.setPen(faint);
    const QRect area = viewport()->rect().adjusted(24, 24, -24, -24);
    painter.drawText(area, Qt::AlignCenter | Qt::TextWordWrap, emptyText_);
    if (emptyImage_.isEmpty())
        return;
    QRect image(QPoint(), NamedImages::naturalSize(emptyImage_));
    image.moveCenter(area.center() - QPoint(0, image.height() / 2 + 2 * fontMetrics().height()));
    // Points to the leading edge of the window.
    if (isRightToLeft()) {
        painter.translate(image.center().x() * 2 + 1, 0);
        painter.scale(-1, 1);
    }
    NamedImages::draw(painter, image, emptyImage_, faint);
}

void MediaNodeListTableView::scrollContentsBy(int dx, int dy) {
    QTableView::scrollContentsBy(dx, dy);
    FocusFrame::scrolled(*this);
}
