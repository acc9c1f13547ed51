// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Desktop/Notifications.h"

#include "tests/support/WaitFor.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QVariantMap>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using Platform::Notifications;

namespace {

const auto service = u"org.freedesktop.Notifications"_s;
const auto path = u"/org/freedesktop/Notifications"_s;

/// A notification server on the private bus, which shows nothing and records every call.
class Server : public QDBusVirtualObject {
public:
    struct Shown {
        uint replaces = 0;
        QString icon, title, text;
        QStringList actions;
        QVariantMap hints;
    };

    Server() : bus_(QDBusConnection::connectToBus(qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS"), u"server"_s)) {
        EXPECT_TRUE(bus_.registerVirtualObject(path, this));
        EXPECT_TRUE(bus_.registerService(service));
    }
    ~Server() override {
        bus_.unregisterService(service);
        bus_.unregisterObject(path);
        QDBusConnection::disconnectFromBus(u"server"_s);
    }

    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& bus) override {
        const QVariantList given = message.arguments();
        if (message.member() == u"GetCapabilities") {
            bus.send(message.createReply(QVariant(capabilities)));
        } else if (message.member() == u"Notify") {
            shown.append({given.at(1).toUInt(), given.at(2).toString(), given.at(3).toString(), given.at(4).toString(),
                          given.at(5).toStringList(), qdbus_cast<QVariantMap>(given.at(6))});
            const uint number = shown.last().replaces == 0 ? ++last_ : shown.last().replaces;
            if (answers)
                bus.send(message.createReply(number));
            else
                unanswered.append(message);
        } else if (message.member() == u"CloseNotification") {
            closed.append(given.at(0).toUInt());
            bus.send(message.createReply());
        } else {
            return false;
        }
        return true;
    }
    void answerAll() {
        answers = true;
        for (const QDBusMessage& message : std::exchange(unanswered, {}))
            bus_.send(message.createReply(last_));
    }
    void tell(const QString& signal, const QVariantList& arguments) {
        auto message = QDBusMessage::createSignal(path, service, signal);
        message.setArguments(arguments);
        bus_.send(message);
    }

    QStringList capabilities{u"actions"_s, u"body"_s, u"body-markup"_s};
    bool answers = true;
    QList<QDBusMessage> unanswered;
    QList<Shown> shown;
    QList<uint> closed;

private:
    QDBusConnection bus_;
    uint last_ = 6;
};

class DesktopNotifications : public testing::Test {
protected:
    DesktopNotifications() {
        QObject::connect(notifications.get(), &Notifications::actionInvoked,
                         [this](const QString& key, const QByteArray& token) {
                             chosen.append(key + u'/' + QString::fromUtf8(token));
                         });
    }
    static Notifications::Notification about(const QString& text) {
        return {u"Recording <finished>"_s, text, u"show"_s, {{u"show"_s, u"Show"_s}, {u"play"_s, u"Play"_s}}};
    }
    [[nodiscard]] bool hasShown(Server& server, qsizetype count) const {
        return waitFor([&] { return server.shown.size() == count; });
    }

    /// Whether a click on the notification of this number arrives.
    [[nodiscard]] bool choosesShown(Server& server, uint number) {
        return waitFor([&] {
            server.tell(u"ActionInvoked"_s, {number, u"play"_s});
            return waitFor([&] { return !chosen.isEmpty(); }, 300);
        });
    }

    std::unique_ptr<Notifications> notifications = Notifications::create(u"Sonaphex"_s, u"com.korvane.Sonaphex"_s);
    QStringList chosen;
};

} // namespace

TEST_F(DesktopNotifications, CarryTheirTextsActionsAndHints) {
    Server server;
    notifications->show(about(u"Track <1> & \"2\""_s));
    ASSERT_TRUE(hasShown(server, 1));
    EXPECT_EQ(server.shown[0].title, u"Recording <finished>"_s) << "a title is never markup";
    EXPECT_EQ(server.shown[0].text, u"Track &lt;1&gt; &amp; &quot;2&quot;"_s);
    EXPECT_EQ(server.shown[0].icon, u"com.korvane.Sonaphex"_s);
    EXPECT_EQ(server.shown[0].actions, (QStringList{u"default"_s, u""_s, u"show"_s, u"Show"_s, u"play"_s, u"Play"_s}));
    EXPECT_EQ(server.shown[0].hints.value(u"desktop-entry"_s), u"com.korvane.Sonaphex"_s);
    EXPECT_EQ(server.shown[0].hints.value(u"suppress-sound"_s), true);
}

TEST_F(DesktopNotifications, ReplaceTheOneBefore) {
    Server server;
    notifications->show(about(u"one"_s));
    ASSERT_TRUE(hasShown(server, 1));
    notifications->show(about(u"two"_s));
    ASSERT_TRUE(hasShown(server, 2));
    EXPECT_EQ(server.shown[0].replaces, 0U);
    EXPECT_EQ(server.shown[1].replaces, 7U);
    ASSERT_TRUE(choosesShown(server, 7)) << "by now its number is known";
    server.tell(u"NotificationClosed"_s, {7U, 2U});
    ASSERT_TRUE(waitFor([&] { // until an action of a closed notification is ignored
        chosen.clear();
        server.tell(u"ActionInvoked"_s, {7U, u"play"_s});
        return !waitFor([&] { return !chosen.isEmpty(); }, 300);
    }));
    notifications->show(about(u"three"_s));
    ASSERT_TRUE(hasShown(server, 3));
    EXPECT_EQ(server.shown[2].replaces, 0U) << "the user closed it: the next one is a new one";
}

TEST_F(DesktopNotifications, OfManyWhileTheServerIsSlowOnlyTheLastIsShown) {
    Server server;
    server.answers = false;
    notifications->show(about(u"one"_s));
    ASSERT_TRUE(hasShown(server, 1));
    notifications->show(about(u"two"_s));
    notifications->show(about(u"three"_s));
    server.answerAll();
    ASSERT_TRUE(hasShown(server, 2));
    EXPECT_EQ(server.shown[1].text, u"three"_s);
    EXPECT_EQ(server.shown[1].replaces, 7U);
}

TEST_F(DesktopNotifications, TellWhatTheUserChoseAndTheTokenOfTheClick) {
    Server server;
    notifications->show(about(u"one"_s));
    ASSERT_TRUE(hasShown(server, 1));
    server.tell(u"ActionInvoked"_s, {99U, u"play"_s});
    server.tell(u"ActivationToken"_s, {7U, u"abc"_s});
    server.tell(u"ActionInvoked"_s, {7U, u"play"_s});
    server.tell(u"ActionInvoked"_s, {7U, u"default"_s});
    EXPECT_TRUE(waitFor([&] {
        return chosen == QStringList{u"play/abc"_s, u"show/"_s};
    })) << chosen.join(u' ').toStdString();
}

TEST_F(DesktopNotifications, AreTakenAwayAlsoBeforeTheServerAnswered) {
    Server server;
    server.answers = false;
    notifications->show(about(u"one"_s));
    ASSERT_TRUE(hasShown(server, 1));
    notifications->withdraw();
    server.answerAll();
    EXPECT_TRUE(waitFor([&] { return server.closed == QList{7U}; }));
    notifications->show(about(u"two"_s));
    ASSERT_TRUE(hasShown(server, 2));
    EXPECT_EQ(server.shown[1].replaces, 0U);
    ASSERT_TRUE(choosesShown(server, 8));
    notifications.reset();
    EXPECT_TRUE(waitFor([&] { return server.closed.size() == 2; })) << "its buttons would lead nowhere";
}

TEST_F(DesktopNotifications, BreakNothingWithoutAServerAndFindOneThatComesOrIsReplaced) {
    notifications->show(about(u"nobody sees it"_s));
    notifications->withdraw();
    notifications->show(about(u"nobody sees it"_s));
    {
        Server first;
        first.capabilities = {u"body"_s};
        ASSERT_TRUE(waitFor([&] {
            notifications->show(about(u"a & b"_s));
            return !first.shown.isEmpty();
        }));
        EXPECT_EQ(first.shown.last().text, u"a & b"_s) << "this one takes texts as they are";
    }
    Server second;
    ASSERT_TRUE(waitFor([&] {
        notifications->show(about(u"a & b"_s));
        return !second.shown.isEmpty() && second.shown.last().text == u"a &amp; b";
    }));
}
