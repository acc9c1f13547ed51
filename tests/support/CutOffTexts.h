// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Source/View/TabularLabel.h"

#include <QAbstractButton>
#include <QLabel>
#include <QStringList>

/// The visible texts of a window that do not fit their widgets and that no tool tip shows whole.
inline QStringList cutOffTexts(const QWidget& window) {
    QStringList names;
    for (const QWidget* each : window.findChildren<QWidget*>()) {
        if (!each->isVisible() || each->visibleRegion().isEmpty() || each->window() != &window)
            continue;
        if (qobject_cast<const TabularLabel*>(each) && each->width() < each->sizeHint().width())
            names.append(each->objectName());
        const auto* label = qobject_cast<const QLabel*>(each);
        const auto* button = qobject_cast<const QAbstractButton*>(each);
        if (label && !label->text().isEmpty() && label->toolTip().isEmpty()) {
            const QSize text = label->fontMetrics().size(Qt::TextShowMnemonic, label->text());
            const bool fits = label->wordWrap()
                                  ? label->heightForWidth(label->width()) <= label->height() + 1
                                  : text.width() <= label->width() + 1 && text.height() <= label->height() + 1;
            if (!fits)
                names.append(label->objectName() + QStringLiteral(": ") + label->text());
        }
        if (button && !button->text().isEmpty() && button->sizeHint().width() > button->width())
            names.append(button->objectName() + QStringLiteral(": ") + button->text());
    }
    return names;
}
