// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QTimer>

class QMainWindow;
class QSplitter;
class QTableView;

/// Stores the size of the main window and the widths of its columns in the user's defaults; not its position, because
/// the window is centred whenever it is shown. Main thread.
class WindowLayout : public QObject {
    Q_OBJECT
public:
    /// The defaults' key of the dictionary with "width", "height", "library" and "columns".
    static inline const QString kKey = QStringLiteral("MainWndLayout");

    WindowLayout(QMainWindow& window, QSplitter& splitter, QTableView& table);

    /// Restores the last sizes, or the default ones.
    void restore();
    void save();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QMainWindow& window_;
    QSplitter& splitter_;
    QTableView& table_;
    QTimer later_; ///< joins the steps of a mouse drag into one change
    bool restored_ = false;
};
