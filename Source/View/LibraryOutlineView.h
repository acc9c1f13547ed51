// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPersistentModelIndex>
#include <QTreeView>

/// The outline of the library. A row that cannot be selected is the heading of a group: it never takes the selection,
/// even when the pointer is released over it. A click on a heading hides or shows the nodes of its group; the left and
/// right arrow keys do so for the group of the current node.
class LibraryOutlineView : public QTreeView {
    Q_OBJECT
public:
    using QTreeView::QTreeView;

protected:
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                         const QEvent* event = nullptr) const override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    void drawRow(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;

private:
    /// The heading at a point of the viewport; invalid when there is none.
    [[nodiscard]] QModelIndex headingAt(const QPoint& place) const;

    QPersistentModelIndex pressed_; ///< the heading on which the left button was pressed
};
