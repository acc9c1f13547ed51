// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLineEdit>

/// The search field of the library. Escape clears it and moves the focus to the list; Enter and Down move the focus to
/// the list and keep the text.
class SearchField : public QLineEdit {
    Q_OBJECT
public:
    explicit SearchField(QWidget* parent = nullptr);

    /// Takes the focus, with the whole text selected.
    void begin();

Q_SIGNALS:
    /// The list should take the focus. @p toFirst: select its first row.
    void left(bool toFirst);

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
};
