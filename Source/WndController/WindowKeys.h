// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

class QAction;
class QWidget;

/// Space and Enter in the main window. Space plays or pauses wherever the focus is, and does nothing while nothing can
/// be played: it never reaches a list, nor a button that would record. Enter presses the button that has the focus.
/// Text fields, check boxes and pop-ups keep Space. Main thread.
class WindowKeys : public QObject {
    Q_OBJECT
public:
    /// Finds the controls of @p window that there are by now. @p play is the command of Space.
    WindowKeys(QWidget& window, QAction& play, QObject* parent = nullptr);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};
