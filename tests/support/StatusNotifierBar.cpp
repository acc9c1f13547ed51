// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/StatusNotifierBar.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusVariant>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const auto watcher = u"org.kde.StatusNotifierWatcher"_s;
const auto itemInterface = u"org.kde.StatusNotifierItem"_s;
const auto menuInterface = u"com.canonical.dbusmenu"_s;
const auto itemPath = u"/StatusNotifierItem"_s;

} // namespace

StatusNotifierBar::StatusNotifierBar(bool withHost)
    : hasHost_(withHost),
      bus_(QDBusConnection::connectToBus(qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS"), u"status bar"_s)) {
    EXPECT_TRUE(bus_.registerVirtualObject(u"/StatusNotifierWatcher"_s, this));
    EXPECT_TRUE(bus_.registerService(watcher));
}

StatusNotifierBar::~StatusNotifierBar() {
    bus_.unregisterService(watcher);
    bus_.unregisterObject(u"/StatusNotifierWatcher"_s);
    QDBusConnection::disconnectFromBus(u"status bar"_s);
}

QString StatusNotifierBar::introspect(const QString& /*path*/) const {
    return u"<interface name='%1'><property name='IsStatusNotifierHostRegistered' type='b' access='read'/>"
           "<method name='RegisterStatusNotifierItem'><arg name='item' type='s' direction='in'/></method></interface>"_s
               .arg(watcher);
}

void StatusNotifierBar::showItems() {
    hasHost_ = true;
    bus_.send(QDBusMessage::createSignal(u"/StatusNotifierWatcher"_s, watcher, u"StatusNotifierHostRegistered"_s));
}

bool StatusNotifierBar::handleMessage(const QDBusMessage& message, const QDBusConnection& bus) {
    if (message.member() == u"RegisterStatusNotifierItem") {
        // Identified by the sender's unique name, whichever name it registered.
        items_ << message.service();
        bus.send(message.createReply());
        return true;
    }
    if (message.member() == u"Get") {
        asked_ = true;
        bus.send(message.createReply(QVariant::fromValue(QDBusVariant(hasHost_))));
        return true;
    }
    return false;
}

QVariant StatusNotifierBar::property(const QString& item, const QString& name) {
    auto question = QDBusMessage::createMethodCall(item, itemPath, u"org.freedesktop.DBus.Properties"_s, u"Get"_s);
    question << itemInterface << name;
    const QDBusMessage answer = bus_.call(question, QDBus::Block, 10000);
    return answer.type() == QDBusMessage::ReplyMessage ? answer.arguments().value(0).value<QDBusVariant>().variant()
                                                       : QVariant();
}

QList<StatusNotifierBar::Entry> StatusNotifierBar::entries(const QString& item) {
    const QString path = property(item, u"Menu"_s).value<QDBusObjectPath>().path();
    auto opened = QDBusMessage::createMethodCall(item, path, menuInterface, u"AboutToShow"_s);
    opened << 0;
    (void)bus_.call(opened, QDBus::Block, 10000);
    auto question = QDBusMessage::createMethodCall(item, path, menuInterface, u"GetLayout"_s);
    question << 0 << -1 << QStringList();
    const QDBusMessage answer = bus_.call(question, QDBus::Block, 10000);
    QList<Entry> found;
    if (answer.arguments().size() < 2)
        return found;
    const auto root = answer.arguments().at(1).value<QDBusArgument>();
    int id = 0;
    QVariantMap properties;
    QVariantList children;
    root.beginStructure();
    root >> id >> properties >> children;
    root.endStructure();
    for (const QVariant& child : children) {
        const auto entry = child.value<QDBusArgument>();
        QVariantList below;
        entry.beginStructure();
        entry >> id >> properties >> below;
        entry.endStructure();
        if (properties.value(u"type"_s) != u"separator"_s)
            found.append({id, properties.value(u"label"_s).toString().remove(u'_'),
                          properties.value(u"enabled"_s, true).toBool()});
    }
    return found;
}

QStringList StatusNotifierBar::menu(const QString& item) {
    QStringList titles;
    for (const Entry& entry : entries(item))
        titles << (entry.enabled ? entry.title : u'(' + entry.title + u')');
    return titles;
}

bool StatusNotifierBar::choose(const QString& item, const QString& title) {
    for (const Entry& entry : entries(item)) {
        if (entry.title != title)
            continue;
        auto click = QDBusMessage::createMethodCall(item, property(item, u"Menu"_s).value<QDBusObjectPath>().path(),
                                                    menuInterface, u"Event"_s);
        click << entry.id << u"clicked"_s << QVariant::fromValue(QDBusVariant(QString())) << uint(0);
        return bus_.call(click, QDBus::Block, 10000).type() == QDBusMessage::ReplyMessage;
    }
    return false;
}
