// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/View/Announcement.h"

Announcement::Announcement(QWidget& window) : QWidget(&window) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
    setGeometry(0, 0, 1, 1);
    setAccessibleName(tr("Announcements"));
    show();
}

void Announcement::say(QWidget& widget, const QString& text) {
    if (!QAccessible::isActive() || text.isEmpty())
        return;
    QWidget& window = *widget.window();
    auto* view = window.findChild<Announcement*>(QString(), Qt::FindDirectChildrenOnly);
    if (!view)
        view = new Announcement(window);
    view->setAccessibleName(text);
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
    QAccessibleAnnouncementEvent event(view, text);
    event.setPoliteness(QAccessible::AnnouncementPoliteness::Polite);
    QAccessible::updateAccessibility(&event);
#else
    // Older versions have no event for a message. Screen readers speak a notification when it appears.
    QAccessibleEvent gone(view, QAccessible::ObjectHide);
    QAccessible::updateAccessibility(&gone);
    QAccessibleEvent shown(view, QAccessible::ObjectShow);
    QAccessible::updateAccessibility(&shown);
#endif
}
