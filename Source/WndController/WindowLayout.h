// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Source/WndController/AudioTableModel.h"

#include <QObject>
#include <QTimer>

#include <array>

class QMainWindow;
class QSplitter;
class QTableView;

/// Stores the size of the main window, the widths of its columns and the sorting of its table in the user's defaults;
/// not its position, because the window is centred whenever it is shown. In a narrow window the library's pane gets
/// narrower and empty columns are hidden, so that the titles stay readable. Main thread.
class WindowLayout : public QObject {
    Q_OBJECT
public:
    /// The defaults' key of the dictionary with "width", "height", "library", "columns", "sort" (a column's
    /// identifier, empty for none) and "descending".
    static inline const QString kKey = QStringLiteral("MainWndLayout");

    WindowLayout(QMainWindow& window, QSplitter& splitter, QTableView& table);

    /// Restores the last sizes, or the default ones.
    void restore();
    void save();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void restoreSorting(const QString& column, bool descending);
    void fit();
    void fitColumns();
    [[nodiscard]] bool saysNothing(int column) const;

    QMainWindow& window_;
    QSplitter& splitter_;
    QTableView& table_;
    QTimer later_;         ///< joins the steps of a mouse drag into one change
    QTimer fit_;           ///< joins the changes of several rows into one
    int libraryWidth_ = 0; ///< chosen by the user; a narrow window shows a narrower pane
    bool restored_ = false;
    std::array<int, AudioTableModel::ColumnCount> widths_{}; ///< the widths of hidden columns
};
