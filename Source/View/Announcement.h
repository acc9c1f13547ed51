// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Source/View/SpokenView.h"

#include <QWidget>

/// Messages that a screen reader speaks at once, wherever the focus is: changes that the user did not make at the
/// focused control. Each window has one, an invisible point in its corner. Main thread.
class Announcement : public QWidget, public SpokenView {
    Q_OBJECT
public:
    /// Announces @p text in the window of @p widget. Does nothing without a screen reader, or for an empty text.
    static void say(QWidget& widget, const QString& text);

    [[nodiscard]] QAccessible::Role spokenRole() const override { return QAccessible::Notification; }
    [[nodiscard]] QString spokenValue() const override { return {}; }

private:
    explicit Announcement(QWidget& window);
};
