// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/View/MediaNodeListTableView.h"

#include <QContextMenuEvent>
#include <QHeaderView>
#include <QMenu>
#include <QPainter>

MediaNodeListTableView::MediaNodeListTableView(QWidget* parent) : QTableView(parent) {
    setSelectionBehavior(SelectRows);
    setSelectionMode(ExtendedSelection);
    setEditTriggers(NoEditTriggers);
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

void MediaNodeListTableView::setEmptyText(const QString& text) {
    emptyText_ = text;
    viewport()->update();
}

QMenu* MediaNodeListTableView::menuForEvent(QContextMenuEvent& event) {
    // The menu key asks for the rows that are selected, wherever the pointer happens to be.
    if (event.reason() != QContextMenuEvent::Keyboard) {
        const QModelIndex under = indexAt(viewport()->mapFromGlobal(event.globalPos()));
        if (!under.isValid())
            clearSelection();
        else if (!selectionModel()->isRowSelected(under.row()))
            selectRow(under.row());
    }
    return delegate_ ? delegate_->menuForEvent(event) : nullptr;
}

void MediaNodeListTableView::contextMenuEvent(QContextMenuEvent* event) {
    if (QMenu* menu = menuForEvent(*event))
        menu->popup(event->globalPos());
    event->accept();
}

void MediaNodeListTableView::mousePressEvent(QMouseEvent* event) {
    // The selection of a context click is settled in menuForEvent(); the base class would do it first, its own way.
    if (event->button() == Qt::RightButton) {
        event->accept();
        return;
    }
    QTableView::mousePressEvent(event);
}

void MediaNodeListTableView::paintEvent(QPaintEvent* event) {
    QTableView::paintEvent(event);
    if (emptyText_.isEmpty() || !model() || model()->rowCount() > 0)
        return;
    QPainter painter(viewport());
    painter.setPen(palette().color(QPalette::Disabled, QPalette::Text));
    const QRect area = viewport()->rect().adjusted(24, 24, -24, -24);
    painter.drawText(area, Qt::AlignCenter | Qt::TextWordWrap, emptyText_);
}
