// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTableView>

class QMenu;

/// Supplies a table's context menu. Not owned by the table.
class MediaNodeListTableViewDelegate {
public:
    virtual ~MediaNodeListTableViewDelegate() = default;
    /// Null for no menu.
    virtual QMenu* menuForEvent(QContextMenuEvent& /*event*/) { return nullptr; }
};

/// The table of the library: a context click outside the selection first selects only the row under the pointer, then
/// asks the delegate for the menu.
class MediaNodeListTableView : public QTableView {
    Q_OBJECT
public:
    explicit MediaNodeListTableView(QWidget* parent = nullptr);

    void setMenuDelegate(MediaNodeListTableViewDelegate* delegate) { delegate_ = delegate; }
    /// The sentence shown while the table has no rows, and the name of an image above it; empty for none.
    void setEmptyText(const QString& text, const QString& image = {});

    /// Sets the selection for a context click and returns the menu to show.
    QMenu* menuForEvent(QContextMenuEvent& event);

    /// The column that is searched for typed letters, whichever cell was clicked last.
    void setSearchColumn(int column) { searchColumn_ = column; }
    void keyboardSearch(const QString& search) override;
    /// Opens the editor of a cell and returns it; null when the cell cannot be edited.
    QWidget* editCell(const QModelIndex& cell);

protected:
    /// Home and End go to the first and the last row.
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    bool edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) override;
    /// The selection keeps its colour while a title in it is typed over.
    void initViewItemOption(QStyleOptionViewItem* option) const override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;

private:
    MediaNodeListTableViewDelegate* delegate_ = nullptr;
    QString emptyText_;
    QString emptyImage_;
    int searchColumn_ = 0;
    bool pressedAlone_ = false; ///< exactly one row was selected when the button was pressed
    bool isFresh_ = false;      ///< the table just got the focus: the next press may only have been meant for that
};
