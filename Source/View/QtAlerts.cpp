// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/View/QtAlerts.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>

int QtAlerts::runModal(const QString& title, const QString& text, const QStringList& buttons) {
    QMessageBox box(QApplication::activeWindow());
    box.setIcon(QMessageBox::Warning);
    box.setWindowTitle(QGuiApplication::applicationDisplayName());
    // The text may contain file names, which must not be interpreted as markup.
    box.setTextFormat(Qt::PlainText);
    box.setText(title);
    box.setInformativeText(text);
    QList<QPushButton*> made;
    const QStringList labels = buttons.isEmpty() ? QStringList{Platform::Alerts::okLabel()} : buttons;
    for (qsizetype i = 0; i < labels.size(); ++i)
        made.append(box.addButton(labels.at(i), i == 0 ? QMessageBox::AcceptRole : QMessageBox::RejectRole));
    box.setDefaultButton(made.first());
    // Escape must never trigger an action: it means Cancel where there is one.
    const auto cancel = labels.indexOf(Platform::Alerts::cancelLabel());
    const qsizetype escape = cancel >= 0 ? cancel : labels.size() - 1;
    box.setEscapeButton(made.at(escape));
    box.exec();
    for (qsizetype i = 0; i < made.size(); ++i)
        if (box.clickedButton() == made.at(i))
            return int(i);
    return int(escape);
}
