// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractSpinBox>
#include <QAccessible>
#include <QComboBox>
#include <QStringList>
#include <QWidget>
#include <string>

/// Checks the names that a screen reader would speak.
namespace ScreenReader {

/// The controls below @p window, shown or hidden, that can have the focus but have no accessible name: class and object
/// name of each, or nothing.
inline std::string namelessControls(const QWidget& window) {
    QStringList nameless;
    for (QWidget* each : window.findChildren<QWidget*>()) {
        // The editor inside such a box is spoken with the box's name.
        const QWidget* parent = each->parentWidget();
        if (each->focusPolicy() == Qt::NoFocus || qobject_cast<const QAbstractSpinBox*>(parent) ||
            qobject_cast<const QComboBox*>(parent))
            continue;
        auto* const spoken = QAccessible::queryAccessibleInterface(each);
        if (!spoken || spoken->text(QAccessible::Name).trimmed().isEmpty())
            nameless.append(
                QStringLiteral("%1 “%2”").arg(QLatin1StringView(each->metaObject()->className()), each->objectName()));
    }
    return nameless.join(QStringLiteral(", ")).toStdString();
}

} // namespace ScreenReader
