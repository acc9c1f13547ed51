// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/View/FocusFrame.h"

#include <QAbstractItemView>
#include <QPainter>

namespace FocusFrame {

void draw(QAbstractItemView& view) {
    if (!view.hasFocus())
        return;
    QPainter painter(view.viewport());
    painter.setPen(QPen(view.palette().color(QPalette::Active, QPalette::Highlight), 2));
    painter.setBrush(Qt::NoBrush);
    const QRect area = view.viewport()->rect();
    painter.drawRect(area.adjusted(1, 1, -1, -1));
    const QModelIndex current = view.currentIndex();
    if (!current.isValid() || view.selectionModel()->isRowSelected(current.row(), current.parent()))
        return;
    QRect row = view.visualRect(current);
    row.setLeft(area.left());
    row.setRight(area.right());
    painter.drawRect(row.adjusted(1, 1, -1, -1));
}

void scrolled(QAbstractItemView& view) {
    if (view.hasFocus())
        view.viewport()->update();
}

} // namespace FocusFrame
