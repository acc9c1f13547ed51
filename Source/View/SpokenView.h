// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAccessible>
#include <QString>

class QWidget;

/// The screen-reader interface of a custom-drawn view. A widget that also derives from this class is announced with its
/// accessible name, this role and this value. Main thread.
class SpokenView {
public:
    SpokenView();
    virtual ~SpokenView() = default;
    [[nodiscard]] virtual QAccessible::Role spokenRole() const = 0;
    /// The value as words for the user.
    [[nodiscard]] virtual QString spokenValue() const = 0;

    /// The value as a number with its limits, for readers that can change it; an invalid value: it has none.
    [[nodiscard]] virtual QVariant spokenNumber() const { return {}; }
    [[nodiscard]] virtual QVariant spokenMaximum() const { return {}; }
    virtual void setSpokenNumber(const QVariant& /*number*/) {}

protected:
    /// Tells screen readers that the value of @p view, this object, changed.
    static void announceValue(QWidget& view);
};
