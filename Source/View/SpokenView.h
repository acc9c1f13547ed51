// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAccessible>
#include <QString>

class QWidget;

/// What a drawn view tells a screen reader. A widget that derives from this as well is announced with its accessible
/// name, this role and this value. Main thread.
class SpokenView {
public:
    SpokenView();
    virtual ~SpokenView() = default;
    [[nodiscard]] virtual QAccessible::Role spokenRole() const = 0;
    /// In words, for people.
    [[nodiscard]] virtual QString spokenValue() const = 0;

    /// The same as a number with its limits, for readers that move it; an invalid value: it has none.
    [[nodiscard]] virtual QVariant spokenNumber() const { return {}; }
    [[nodiscard]] virtual QVariant spokenMaximum() const { return {}; }
    virtual void setSpokenNumber(const QVariant& /*number*/) {}

protected:
    /// Tells readers that the value of @p view, this object, changed.
    static void announceValue(QWidget& view);
};
