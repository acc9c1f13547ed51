// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/View/SearchField.h"

#include "Source/View/NamedImages.h"

#include <QAction>
#include <QKeyEvent>
#include <QToolButton>

SearchField::SearchField(QWidget* parent) : QLineEdit(parent) {
    setPlaceholderText(tr("Search"));
    setAccessibleName(tr("Search titles, artists and albums"));
    setToolTip(tr("Search titles, artists and albums"));
    setClearButtonEnabled(true);
    QAction* lens = addAction(NamedImages::icon(QStringLiteral("search")), LeadingPosition);
    for (auto* button : findChildren<QToolButton*>())
        button->setAccessibleName(button->defaultAction() == lens ? tr("Search") : tr("Clear the search"));
    connect(lens, &QAction::triggered, this, &SearchField::begin);
}

void SearchField::begin() {
    setFocus(Qt::ShortcutFocusReason);
    selectAll();
}

bool SearchField::event(QEvent* event) {
    // Otherwise the window's shortcuts would handle these keys, for example Enter would play.
    if (event->type() == QEvent::ShortcutOverride) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Escape) {
            event->accept();
            return true;
        }
    }
    return QLineEdit::event(event);
}

void SearchField::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Escape:
        clear();
        Q_EMIT left(false);
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Down:
        Q_EMIT left(true);
        break;
    default:
        QLineEdit::keyPressEvent(event);
    }
}
