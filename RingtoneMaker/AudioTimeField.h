// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLineEdit>

/// A field for a time as "hh:mm:ss". Only what keeps this form can be typed; a digit typed into a full part replaces
/// the next one. Main thread.
class AudioTimeField : public QLineEdit {
    Q_OBJECT
public:
    explicit AudioTimeField(QWidget* parent = nullptr);

    /// Seconds, whole ones.
    [[nodiscard]] int seconds() const;
    /// Shows a time, unless the user is typing another one.
    void setSeconds(float seconds);

Q_SIGNALS:
    /// The user finished a time: Return, Tab, a click elsewhere, Up or Down.
    void secondsEdited(int seconds);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void commit();
    void step(int seconds);
    bool overwrite(const QString& digit);

    float shown_ = 0;
};
