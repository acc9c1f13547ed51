// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLineEdit>

/// A field for a time as "hh:mm:ss". Only text of this form can be typed; a digit typed into a full part replaces the
/// next digit. Main thread.
class AudioTimeField : public QLineEdit {
    Q_OBJECT
public:
    explicit AudioTimeField(QWidget* parent = nullptr);

    /// The time in whole seconds.
    [[nodiscard]] int seconds() const;
    /// Shows a time, unless the user is typing one.
    void setSeconds(float seconds);

Q_SIGNALS:
    /// The user completed a time: with Return, Tab, a click elsewhere, Up or Down.
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
