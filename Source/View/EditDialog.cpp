// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/View/EditDialog.h"

#include "Platform/Foundation/Services.h"
#include "Platform/Foundation/UserDefaults.h"
#include "Source/View/NamedImages.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QLayout>
#include <QScreen>

#include <algorithm>

using namespace Qt::StringLiterals;

EditDialog::EditDialog(const QString& key, QSize firstSize, QWidget* parent)
    : QDialog(parent), key_(key), firstSize_(firstSize) {
    setModal(true);
    setWindowModality(Qt::ApplicationModal);
    setWindowIcon(NamedImages::icon(u"com.korvane.Sonaphex"_s));
}

void EditDialog::restoreSize() {
    const auto* defaults = Platform::services().userDefaults;
    const Dictionary stored = defaults ? defaults->objectForKey(key_).toMap() : Dictionary();
    QSize size(Platform::intValue(stored.value(u"width"_s)), Platform::intValue(stored.value(u"height"_s)));
    if (size.isEmpty())
        size = firstSize_;
    if (const QScreen* const its = screen())
        size = size.boundedTo(its->availableSize());
    resize(size.expandedTo(minimumSize()));
}

void EditDialog::center() {
    const QWidget* const main = parentWidget() ? parentWidget()->window() : nullptr;
    const QScreen* const its = screen();
    const QRect around = main && main->isVisible() ? main->frameGeometry() : its ? its->availableGeometry() : QRect();
    if (around.isNull())
        return;
    QRect frame = frameGeometry();
    frame.moveCenter(around.center());
    move(frame.topLeft());
}

void EditDialog::showEvent(QShowEvent* event) {
    if (QLayout* const content = layout()) {
        content->activate();
        QSize least = minimumSize().expandedTo(content->totalMinimumSize());
        if (content->hasHeightForWidth()) // wrapped texts
            least.setHeight(
                std::max(least.height(), content->totalMinimumHeightForWidth(std::max(width(), least.width()))));
        if (const QScreen* const its = screen())
            least = least.boundedTo(its->availableSize());
        setMinimumSize(least);
        resize(size().expandedTo(least));
    }
    QDialog::showEvent(event);
}

void EditDialog::keyPressEvent(QKeyEvent* event) {
    event->ignore();
    Q_EMIT keyPressed(event);
    if (!event->isAccepted()) {
        event->accept();
        QDialog::keyPressEvent(event);
    }
}

void EditDialog::hideEvent(QHideEvent* event) {
    QDialog::hideEvent(event);
    auto* const defaults = Platform::services().userDefaults;
    if (!defaults || isMaximized() || isFullScreen())
        return;
    const Dictionary layout{{u"width"_s, width()}, {u"height"_s, height()}};
    if (defaults->objectForKey(key_).toMap() != layout)
        defaults->setObject(key_, layout);
}

void EditDialog::closeEvent(QCloseEvent* event) {
    event->ignore();
    Q_EMIT cancelled();
}

void EditDialog::reject() {
    Q_EMIT cancelled();
}
