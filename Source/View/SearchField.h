// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLineEdit>

/// A field that searches as one types. Escape empties it and leaves it; Enter and Down leave it for the list that was
/// found.
class SearchField : public QLineEdit {
    Q_OBJECT
public:
    explicit SearchField(QWidget* parent = nullptr);

    /// Takes the focus, with the whole text selected.
    void begin();

Q_SIGNALS:
    /// The focus is to go to the list. @p toFirst: to its first row.
    void left(bool toFirst);

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
};
