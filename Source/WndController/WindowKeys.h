// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

class QAction;
class QWidget;

/// Handles Space and Enter in the main window. Space plays or pauses wherever the focus is, and does nothing while
/// nothing can be played: it never reaches a list, nor a button that would record. Enter presses the focused button.
/// Text fields, check boxes and pop-ups keep Space. Main thread.
class WindowKeys : public QObject {
    Q_OBJECT
public:
    /// Applies to the present controls of @p window. @p play is the command of Space.
    WindowKeys(QWidget& window, QAction& play, QObject* parent = nullptr);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};
