// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Global shortcuts through the real xdg-desktop-portal. Behind it stands a desktop of the test's own.
#include "Platform/Desktop/linux/LinuxHotKeys.h"
#include "Platform/Desktop/linux/PortalRegistry.h"

#include "tests/Platform/Desktop/PortalShortcut.h"
#include "tests/support/WaitFor.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QDBusVirtualObject>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using Platform::HotKeys;

namespace {

const auto frontEndName = u"org.freedesktop.portal.Desktop"_s;
const auto backEndName = u"org.freedesktop.impl.portal.desktop.test"_s;
const auto backEndPath = u"/org/freedesktop/portal/desktop"_s;
const auto backEndInterface = u"org.freedesktop.impl.portal.GlobalShortcuts"_s;

QVariant listOf(const QList<PortalShortcut>& shortcuts) {
    QDBusArgument list;
    list.beginArray(QMetaType::fromType<PortalShortcut>());
    for (const PortalShortcut& shortcut : shortcuts)
        list << shortcut;
    list.endArray();
    return QVariant::fromValue(list);
}

/// The desktop's side of the portal: assigns the keys that a program prefers, unless the user has chosen others.
class BackEnd : public QDBusVirtualObject {
public:
    BackEnd() : bus_(QDBusConnection::connectToBus(qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS"), u"back end"_s)) {
        qDBusRegisterMetaType<PortalShortcut>();
        EXPECT_TRUE(bus_.registerVirtualObject(u"/"_s, this, QDBusConnection::SubPath));
        EXPECT_TRUE(bus_.registerService(backEndName));
    }
    ~BackEnd() override {
        bus_.unregisterService(backEndName);
        bus_.unregisterObject(u"/"_s, QDBusConnection::UnregisterTree);
        QDBusConnection::disconnectFromBus(u"back end"_s);
    }
    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& bus) override {
        const QString member = message.member();
        if (member == u"GetAll") {
            bus.send(message.createReply(QVariantMap{{u"version"_s, 1U}}));
        } else if (member == u"CreateSession") {
            session = message.arguments().at(1).value<QDBusObjectPath>().path();
            bus.send(message.createReply({0U, QVariantMap()}));
        } else if (member == u"BindShortcuts") {
            QList<PortalShortcut> given;
            preferred.clear();
            for (const auto& asked : qdbus_cast<QList<PortalShortcut>>(message.arguments().at(2))) {
                preferred.insert(asked.id, asked.properties.value(u"preferred_trigger"_s).toString());
                given.append({asked.id,
                              {{u"description"_s, asked.properties.value(u"description"_s)},
                               {u"trigger_description"_s, preferred.value(asked.id)}}});
            }
            bus.send(message.createReply({0U, QVariantMap{{u"shortcuts"_s, listOf(given)}}}));
        } else {
            bus.send(message.createReply());
        }
        return true;
    }
    void press(const QString& id) {
        auto signal = QDBusMessage::createSignal(backEndPath, backEndInterface, u"Activated"_s);
        signal << QDBusObjectPath(session) << id << qulonglong(1) << QVariantMap();
        bus_.send(signal);
    }
    /// The user chooses other keys in the desktop's settings.
    void rebind(const QString& id, const QString& keys) {
        auto signal = QDBusMessage::createSignal(backEndPath, backEndInterface, u"ShortcutsChanged"_s);
        signal << QDBusObjectPath(session)
               << listOf({{id, {{u"description"_s, u"x"_s}, {u"trigger_description"_s, keys}}}});
        bus_.send(signal);
    }

    QString session;
    QMap<QString, QString> preferred;

private:
    QDBusConnection bus_;
};

class PortalFrontEnd : public testing::Test {
protected:
    void SetUp() override {
        QFile portal(folder.filePath(u"test.portal"_s));
        ASSERT_TRUE(portal.open(QIODevice::WriteOnly));
        portal.write("[portal]\nDBusName=" + backEndName.toLatin1() + "\nInterfaces=" + backEndInterface.toLatin1() +
                     "\nUseIn=test\n");
        portal.close();
        ASSERT_TRUE(startFrontEnd());
    }
    void TearDown() override {
        hotKeys.reset();
        endFrontEnd();
    }
    bool startFrontEnd() {
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"XDG_DESKTOP_PORTAL_DIR"_s, folder.path());
        environment.insert(u"XDG_CURRENT_DESKTOP"_s, u"test"_s);
        frontEnd.setProcessEnvironment(environment);
        frontEnd.start(u"/usr/libexec/xdg-desktop-portal"_s);
        return waitFor(
            [] { return QDBusConnection::sessionBus().interface()->isServiceRegistered(frontEndName).value(); });
    }
    void endFrontEnd() {
        frontEnd.kill();
        frontEnd.waitForFinished();
        EXPECT_TRUE(waitFor(
            [] { return !QDBusConnection::sessionBus().interface()->isServiceRegistered(frontEndName).value(); }));
    }
    void makeHotKeys() {
        hotKeys = Platform::createPortalHotKeys();
        hotKeys->setHandler([this](HotKeys::Id id) { pressed.append(id.signature); });
        hotKeys->setTriggerHandler([this](HotKeys::Handle handle, const QString& keys) { triggers[handle] = keys; });
    }

    QTemporaryDir folder;
    BackEnd desktop;
    QProcess frontEnd;
    std::unique_ptr<HotKeys> hotKeys;
    QList<std::uint32_t> pressed;
    QMap<HotKeys::Handle, QString> triggers;
};

} // namespace

TEST_F(PortalFrontEnd, BindsActsAndFollowsTheUsersOwnKeys) {
    Platform::introduceToPortal(u"com.korvane.Sonaphex"_s); // this version of the portal does not have the call
    makeHotKeys();
    hotKeys->describe({0x73737273, 1}, u"Start or stop"_s);
    const auto start = hotKeys->registerHotKey(1, 256 + 4096, {0x73737273, 1});
    ASSERT_NE(start, 0U);
    ASSERT_TRUE(waitFor([&] { return desktop.preferred.value(u"ssrs"_s) == u"CTRL+LOGO+s"; }));
    EXPECT_EQ(hotKeys->way(), HotKeys::Way::Portal);
    EXPECT_TRUE(waitFor([&] { return triggers.value(start) == u"CTRL+LOGO+s"; })) << "what the desktop gave";
    desktop.press(u"ssrs"_s);
    EXPECT_TRUE(waitFor([&] { return pressed.size() == 1; }));
    desktop.rebind(u"ssrs"_s, u"Meta+F9"_s);
    EXPECT_TRUE(waitFor([&] { return triggers.value(start) == u"Meta+F9"; }));
    desktop.press(u"ssrs"_s);
    EXPECT_TRUE(waitFor([&] { return pressed.size() == 2; })) << "it acts as before";
}

TEST_F(PortalFrontEnd, APortalThatIsStartedAnewHasTheShortcutsAgain) {
    makeHotKeys();
    ASSERT_NE(hotKeys->registerHotKey(1, 256, {0x73737273, 1}), 0U);
    ASSERT_TRUE(waitFor([&] { return desktop.preferred.contains(u"ssrs"_s); }));
    endFrontEnd();
    desktop.preferred.clear();
    ASSERT_TRUE(startFrontEnd());
    ASSERT_TRUE(waitFor([&] { return desktop.preferred.contains(u"ssrs"_s); }));
    desktop.press(u"ssrs"_s);
    EXPECT_TRUE(waitFor([&] { return pressed.size() == 1; }));
}
