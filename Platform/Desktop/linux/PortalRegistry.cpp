// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Desktop/linux/PortalRegistry.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QVariantMap>

using namespace Qt::StringLiterals;

namespace Platform {

void introduceToPortal(const QString& desktopEntry) {
    auto bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return;
    auto message =
        QDBusMessage::createMethodCall(u"org.freedesktop.portal.Desktop"_s, u"/org/freedesktop/portal/desktop"_s,
                                       u"org.freedesktop.host.portal.Registry"_s, u"Register"_s);
    message << desktopEntry << QVariantMap();
    bus.send(message); // D-Bus keeps the order of messages
}

} // namespace Platform
