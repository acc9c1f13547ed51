// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The background portal, as a program in a sandbox asks it.
#include "Platform/Desktop/Autostart.h"

#include "Platform/Foundation/Services.h"
#include "tests/fakes/FakeUserDefaults.h"
#include "tests/support/WaitFor.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusError>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusVirtualObject>
#include <QVariantMap>

#include <gtest/gtest.h>

#include <optional>

using namespace Qt::StringLiterals;

namespace {

const auto portalName = u"org.freedesktop.portal.Desktop"_s;
const auto portalPath = u"/org/freedesktop/portal/desktop"_s;

class BackgroundPortal : public QDBusVirtualObject {
public:
    BackgroundPortal()
        : bus_(QDBusConnection::connectToBus(qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS"), u"background"_s)) {
        EXPECT_TRUE(bus_.registerVirtualObject(u"/"_s, this, QDBusConnection::SubPath));
        EXPECT_TRUE(bus_.registerService(portalName));
    }
    ~BackgroundPortal() override {
        bus_.unregisterService(portalName);
        bus_.unregisterObject(u"/"_s, QDBusConnection::UnregisterTree);
        QDBusConnection::disconnectFromBus(u"background"_s);
    }
    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& bus) override {
        if (message.member() != u"RequestBackground")
            return false;
        options = qdbus_cast<QVariantMap>(message.arguments().at(1));
        if (fails) {
            bus.send(message.createErrorReply(QDBusError::AccessDenied, u"not for you"_s));
            return true;
        }
        QString sender = message.service().mid(1);
        const QString request = portalPath + u"/request/"_s + sender.replace(u'.', u'_') + u'/' +
                                options.value(u"handle_token"_s).toString();
        auto response = QDBusMessage::createSignal(request, u"org.freedesktop.portal.Request"_s, u"Response"_s);
        response << 0U
                 << QVariantMap{{u"background"_s, true},
                                {u"autostart"_s, grants && options.value(u"autostart"_s).toBool()}};
        bus.send(response);
        bus.send(message.createReply(QVariant::fromValue(QDBusObjectPath(request))));
        return true;
    }

    bool grants = true;
    bool fails = false;
    QVariantMap options;

private:
    QDBusConnection bus_;
};

class AutostartByPortal : public testing::Test {
protected:
    AutostartByPortal() { Platform::services().userDefaults = &defaults; }
    QString set(bool enabled) {
        std::optional<QString> problem;
        autostart->setEnabled(enabled, [&](const QString& why) { problem = why; });
        return waitFor([&] { return problem.has_value(); }) ? *problem : u"no answer"_s;
    }

    Platform::ServicesScope scope;
    FakeUserDefaults defaults;
    BackgroundPortal portal;
    std::unique_ptr<Platform::Autostart> autostart = Platform::Autostart::createWithPortal(u"sonaphex"_s);
};

} // namespace

TEST_F(AutostartByPortal, IsAskedForAndRemembered) {
    EXPECT_FALSE(autostart->isEnabled());
    EXPECT_EQ(set(true), u""_s);
    EXPECT_EQ(portal.options.value(u"commandline"_s).toStringList(), (QStringList{u"sonaphex"_s, u"--hidden"_s}));
    EXPECT_TRUE(autostart->isEnabled());
    EXPECT_TRUE(Platform::Autostart::createWithPortal(u"sonaphex"_s)->isEnabled()) << "also in the next run";
    EXPECT_EQ(set(false), u""_s);
    EXPECT_EQ(portal.options.value(u"autostart"_s), false);
    EXPECT_FALSE(autostart->isEnabled());
}

TEST_F(AutostartByPortal, ARefusalIsTold) {
    portal.grants = false;
    EXPECT_FALSE(set(true).isEmpty());
    EXPECT_FALSE(autostart->isEnabled());
    portal.fails = true;
    EXPECT_EQ(set(true), u"not for you"_s);
}
