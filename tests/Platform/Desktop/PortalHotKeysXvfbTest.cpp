// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Desktop/linux/LinuxHotKeys.h"
#include "Platform/Desktop/linux/PortalColorScheme.h"

#include "tests/Platform/Desktop/PortalShortcut.h"
#include "tests/support/WaitFor.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusError>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QDBusVirtualObject>
#include <algorithm>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using Platform::HotKeys;

namespace {

const auto portalName = u"org.freedesktop.portal.Desktop"_s;
const auto portalPath = u"/org/freedesktop/portal/desktop"_s;
const auto shortcutsInterface = u"org.freedesktop.portal.GlobalShortcuts"_s;

// A desktop portal on the private bus; the test decides its answers and the keys that its user presses.
class Portal : public QDBusVirtualObject {
public:
    Portal() : bus_(QDBusConnection::connectToBus(qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS"), u"portal"_s)) {
        qDBusRegisterMetaType<PortalShortcut>();
        EXPECT_TRUE(bus_.registerVirtualObject(u"/"_s, this, QDBusConnection::SubPath));
        EXPECT_TRUE(bus_.registerService(portalName));
    }
    ~Portal() override {
        bus_.unregisterService(portalName);
        bus_.unregisterObject(u"/"_s, QDBusConnection::UnregisterTree);
        QDBusConnection::disconnectFromBus(u"portal"_s);
    }

    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& bus) override {
        const QString member = message.member();
        calls.append(member);
        if (member == u"Get" && hasShortcuts) {
            bus.send(message.createReply(QVariant::fromValue(QDBusVariant(1U))));
        } else if (member == u"Read") {
            bus.send(message.createReply(QVariant::fromValue(QDBusVariant(QVariant::fromValue(QDBusVariant(scheme))))));
        } else if (member == u"CreateSession") {
            const auto options = qdbus_cast<QVariantMap>(message.arguments().at(0));
            session = portalPath + u"/session/x/"_s + options.value(u"session_handle_token"_s).toString();
            respond(message, options, {{u"session_handle"_s, session}});
        } else if (member == u"BindShortcuts") {
            bound.clear();
            const auto list = message.arguments().at(1).value<QDBusArgument>();
            list.beginArray();
            while (!list.atEnd()) {
                QString id;
                QVariantMap properties;
                list.beginStructure();
                list >> id >> properties;
                list.endStructure();
                bound.insert(id, properties);
            }
            list.endArray();
            const uint answer = std::any_of(refusesAllFor.cbegin(), refusesAllFor.cend(),
                                            [this](const QString& id) { return bound.contains(id); });
            respond(message, qdbus_cast<QVariantMap>(message.arguments().at(3)),
                    answer == 0 && lists ? QVariantMap{{u"shortcuts"_s, granted()}} : QVariantMap(), answer);
        } else if (member == u"Close") {
            closed.append(message.path());
            bus.send(message.createReply());
        } else {
            bus.send(message.createErrorReply(QDBusError::UnknownMethod, u"no such thing here"_s));
        }
        return true;
    }
    void press(const QString& id, const QString& inSession = {}) {
        auto signal = QDBusMessage::createSignal(portalPath, shortcutsInterface, u"Activated"_s);
        signal << QDBusObjectPath(inSession.isEmpty() ? session : inSession) << id << qulonglong(1) << QVariantMap();
        bus_.send(signal);
    }
    void changeScheme(uint to) {
        auto signal = QDBusMessage::createSignal(portalPath, u"org.freedesktop.portal.Settings"_s, u"SettingChanged"_s);
        signal << u"org.freedesktop.appearance"_s << u"color-scheme"_s << QVariant::fromValue(QDBusVariant(to));
        bus_.send(signal);
    }

    bool hasShortcuts = true;
    bool lists = false;        ///< the response lists the bound shortcuts
    QStringList refused;       ///< missing from that list
    QStringList withoutKeys;   ///< in that list, but without a combination
    QStringList refusesAllFor; ///< if one of these is requested, it binds nothing
    uint scheme = 1;
    QString session;
    QMap<QString, QVariantMap> bound;
    QStringList calls;
    QStringList closed;

private:
    [[nodiscard]] QVariant granted() const {
        QDBusArgument list;
        list.beginArray(QMetaType::fromType<PortalShortcut>());
        for (auto each = bound.cbegin(); each != bound.cend(); ++each)
            if (!refused.contains(each.key()))
                list << PortalShortcut{
                    each.key(), {{u"trigger_description"_s, withoutKeys.contains(each.key()) ? u""_s : u"Keys"_s}}};
        list.endArray();
        return QVariant::fromValue(list);
    }
    void respond(const QDBusMessage& message, const QVariantMap& options, const QVariantMap& results, uint answer = 0) {
        QString sender = message.service().mid(1);
        sender.replace(u'.', u'_');
        const QString request =
            portalPath + u"/request/"_s + sender + u'/' + options.value(u"handle_token"_s).toString();
        // A portal may send the response before the call returns: the program must already be subscribed.
        auto response = QDBusMessage::createSignal(request, u"org.freedesktop.portal.Request"_s, u"Response"_s);
        response << answer << results;
        bus_.send(response);
        bus_.send(message.createReply(QVariant::fromValue(QDBusObjectPath(request))));
    }

    QDBusConnection bus_;
};

class PortalKeys : public testing::Test {
protected:
    void SetUp() override {
        hotKeys = Platform::createPortalHotKeys();
        hotKeys->setHandler([this](HotKeys::Id id) { pressed.append(id.signature); });
        hotKeys->setRefusedHandler([this](HotKeys::Handle handle) { refused.append(handle); });
    }
    Portal portal;
    std::unique_ptr<HotKeys> hotKeys;
    QList<std::uint32_t> pressed;
    QList<HotKeys::Handle> refused;
};

} // namespace

TEST_F(PortalKeys, AreBoundWithTheirDescriptionAndTrigger) {
    hotKeys->describe({0x73737273, 1}, u"Start or stop"_s);
    ASSERT_NE(hotKeys->registerHotKey(1, 256 + 4096, {0x73737273, 1}), 0U) << "taken on trust until the portal answers";
    ASSERT_TRUE(waitFor([&] { return portal.bound.contains(u"ssrs"_s); }));
    EXPECT_EQ(hotKeys->way(), HotKeys::Way::Portal);
    EXPECT_EQ(portal.bound.value(u"ssrs"_s).value(u"description"_s), u"Start or stop"_s);
    EXPECT_EQ(portal.bound.value(u"ssrs"_s).value(u"preferred_trigger"_s), u"CTRL+LOGO+s"_s);
    portal.press(u"ssrs"_s, portalPath + u"/session/somebody/else"_s);
    portal.press(u"unknown"_s);
    portal.press(u"ssrs"_s);
    EXPECT_TRUE(waitFor([&] { return pressed == QList<std::uint32_t>{0x73737273}; })) << pressed.size();
}

TEST_F(PortalKeys, AChangeBindsAgainInANewSession) {
    const auto first = hotKeys->registerHotKey(1, 256, {0x73737273, 1});
    ASSERT_TRUE(waitFor([&] { return portal.bound.size() == 1; }));
    const QString before = portal.session;
    hotKeys->unregisterHotKey(first);
    ASSERT_NE(hotKeys->registerHotKey(35, 2048 + 512, {0x70727273, 1}), 0U);
    ASSERT_TRUE(waitFor([&] { return portal.bound.contains(u"prrs"_s) && portal.bound.size() == 1; }));
    EXPECT_EQ(portal.bound.value(u"prrs"_s).value(u"preferred_trigger"_s), u"ALT+SHIFT+p"_s);
    EXPECT_TRUE(portal.closed.contains(before));
    EXPECT_NE(portal.session, before);
}

TEST_F(PortalKeys, ACombinationOfAnotherFieldIsRefused) {
    ASSERT_NE(hotKeys->registerHotKey(1, 256, {1, 1}), 0U);
    EXPECT_EQ(hotKeys->registerHotKey(1, 256, {2, 1}), 0U);
}

TEST_F(PortalKeys, ACombinationThatThePortalLeavesOutIsRefused) {
    portal.lists = true;
    portal.refused = {u"prrs"_s};
    portal.withoutKeys = {u"nrrs"_s};
    const auto taken = hotKeys->registerHotKey(1, 256, {0x73737273, 1});
    const auto leftOut = hotKeys->registerHotKey(35, 256, {0x70727273, 1});
    const auto withoutKeys = hotKeys->registerHotKey(45, 256, {0x6E727273, 1});
    EXPECT_TRUE(waitFor([&] { return refused == QList{leftOut, withoutKeys}; })) << refused.size();
    EXPECT_NE(hotKeys->registerHotKey(35, 256, {1, 1}), 0U) << "the combination is free again";
    EXPECT_EQ(hotKeys->registerHotKey(1, 256, {2, 1}), 0U) << "this one is not";
    EXPECT_NE(taken, 0U);
}

TEST_F(PortalKeys, GrantedCombinationsStayWhenTheUserRefusesAnother) {
    portal.refusesAllFor = {u"prrs"_s};
    ASSERT_NE(hotKeys->registerHotKey(1, 256, {0x73737273, 1}), 0U);
    ASSERT_TRUE(waitFor([&] { return portal.bound.size() == 1; }));
    const auto another = hotKeys->registerHotKey(35, 256, {0x70727273, 1});
    ASSERT_TRUE(waitFor([&] { return refused == QList{another}; }));
    EXPECT_TRUE(waitFor([&] { return portal.bound.size() == 1 && portal.bound.contains(u"ssrs"_s); }));
    portal.press(u"ssrs"_s);
    EXPECT_TRUE(waitFor([&] { return pressed == QList<std::uint32_t>{0x73737273}; }));
}

TEST_F(PortalKeys, ARefusalOfEverythingIsReportedOnce) {
    portal.refusesAllFor = {u"ssrs"_s};
    const auto only = hotKeys->registerHotKey(1, 256, {0x73737273, 1});
    EXPECT_TRUE(waitFor([&] { return refused == QList{only}; }));
    EXPECT_NE(hotKeys->registerHotKey(1, 256, {0x70727273, 1}), 0U);
    EXPECT_TRUE(waitFor([&] { return portal.bound.contains(u"prrs"_s); })) << "the next one is asked for";
    EXPECT_EQ(refused.size(), 1);
}

TEST(PortalOfTheDesktop, WithoutGlobalShortcutsNoHotKeysAreAvailable) {
    Portal portal;
    portal.hasShortcuts = false;
    const auto hotKeys = Platform::createPortalHotKeys();
    bool called = false;
    hotKeys->setWayChangedHandler([&] { called = true; });
    ASSERT_TRUE(waitFor([&] { return called; }));
    EXPECT_EQ(hotKeys->way(), HotKeys::Way::None);
    EXPECT_EQ(hotKeys->registerHotKey(1, 256, {1, 1}), 0U);
}

TEST(PortalOfTheDesktop, ReportsTheColorSchemeAndItsChanges) {
    Portal portal;
    const auto scheme = Platform::createColorScheme();
    using Preference = Platform::ColorScheme::Preference;
    EXPECT_EQ(scheme->preference(), Preference::NoPreference) << "nobody waits for the answer";
    ASSERT_TRUE(waitFor([&] { return scheme->preference() == Preference::Dark; }));
    portal.changeScheme(2);
    EXPECT_TRUE(waitFor([&] { return scheme->preference() == Preference::Light; }));
}
