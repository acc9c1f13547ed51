// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>

/// A modal window of the main window. Remembers its size in the user's defaults, is centred whenever it is shown, and
/// closes with Escape. Emits keys that no widget in it handled. Main thread.
class EditDialog : public QDialog {
    Q_OBJECT
public:
    /// @p key is the defaults' key of the size dictionary ("width" and "height").
    EditDialog(const QString& key, QSize firstSize, QWidget* parent = nullptr);

    /// Restores the last size, or uses the first one.
    void restoreSize();
    /// Centres it in its parent window, or on the screen.
    void center();

Q_SIGNALS:
    /// A key that no widget handled; a receiver that handles it accepts the event.
    void keyPressed(QKeyEvent* event);
    /// Escape or the close box. The dialog does not close by itself.
    void cancelled();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    /// Large text needs more room than the smallest size that was designed.
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void reject() override;

private:
    QString key_;
    QSize firstSize_;
};
