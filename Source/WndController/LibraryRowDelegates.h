// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStyledItemDelegate>

class QTableView;

/// Rows of the library's outline: a group's row is 1.2 times as high as a node's, in whole points.
class OutlineRowDelegate : public QStyledItemDelegate {
    Q_OBJECT
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    static constexpr int kRowHeight = 24;
    static constexpr int kInset = 8; ///< of a heading; a node has twice this inset
    [[nodiscard]] static constexpr int groupRowHeight(int rowHeight) { return rowHeight * 12 / 10; }

    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
};

/// Rows of the library's table: no focus ring around a single cell, because whole rows are selected. A title is edited
/// in its cell: Enter, Tab and the loss of the focus write it, Escape does not.
class AudioRowDelegate : public QStyledItemDelegate {
    Q_OBJECT
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    /// Marks an editor that the window opened without a request of the user. Until the user types something, Space,
    /// Delete, a double click and the context menu act on the recording, not on the text.
    static void offer(QWidget& editor);

    [[nodiscard]] static int rowHeight(const QTableView& table);
    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    /// Fills the editor once. The table asks for it again whenever the row changes; the text that the user has typed or
    /// selected must stay.
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};
