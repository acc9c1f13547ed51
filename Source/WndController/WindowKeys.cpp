// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/WndController/WindowKeys.h"

#include <QAbstractButton>
#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QKeyEvent>
#include <QShortcut>
#include <QToolButton>

WindowKeys::WindowKeys(QWidget& window, QAction& play, QObject* parent) : QObject(parent) {
    // Not the action's own shortcut: a disabled action would leave the key to the focused widget.
    auto* space = new QShortcut(QKeySequence(Qt::Key_Space), &window);
    space->setAutoRepeat(false);
    connect(space, &QShortcut::activated, &play, &QAction::trigger);
    for (auto* button : window.findChildren<QAbstractButton*>())
        button->installEventFilter(this);
    for (auto* popUp : window.findChildren<QComboBox*>())
        popUp->installEventFilter(this);
    // Like buttons, these do not take the focus from the list when they are clicked.
    for (auto* box : window.findChildren<QCheckBox*>())
        box->setFocusPolicy(Qt::TabFocus);
    for (auto* popUp : window.findChildren<QComboBox*>())
        popUp->setFocusPolicy(Qt::TabFocus);
}

bool WindowKeys::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::ShortcutOverride && event->type() != QEvent::KeyPress)
        return QObject::eventFilter(watched, event);
    const auto& key = static_cast<const QKeyEvent&>(*event);
    auto* button = qobject_cast<QAbstractButton*>(watched);
    const auto* tool = qobject_cast<const QToolButton*>(watched);
    const bool isBox = qobject_cast<QCheckBox*>(watched) != nullptr;
    const bool keepsSpace = !button || isBox || (tool && tool->menu());
    if (event->type() == QEvent::ShortcutOverride) {
        if (key.key() == Qt::Key_Space && keepsSpace)
            event->accept();
    } else if (button && !isBox && (key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter)) {
        if (!key.isAutoRepeat())
            button->click();
        return true;
    }
    return QObject::eventFilter(watched, event);
}
