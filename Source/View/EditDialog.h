// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>

/// A modal window of the main window. Remembers its size in the user's defaults, is centred whenever it is shown, and
/// closes with Escape. Keys that no widget of it takes are announced. Main thread.
class EditDialog : public QDialog {
    Q_OBJECT
public:
    /// @p key is the defaults' key of the dictionary with "width" and "height".
    EditDialog(const QString& key, QSize firstSize, QWidget* parent = nullptr);

    /// The size of last time, or the first one.
    void restoreSize();
    /// In the middle of the window that it belongs to, or of the screen.
    void center();

Q_SIGNALS:
    /// A key was pressed that nothing else took; whoever uses it accepts the event.
    void keyPressed(QKeyEvent* event);
    /// Escape or the close box. The dialog does not close by itself.
    void cancelled();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void reject() override;

private:
    QString key_;
    QSize firstSize_;
};
