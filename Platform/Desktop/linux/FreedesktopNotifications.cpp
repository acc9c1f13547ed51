// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Desktop/Notifications.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>
#include <QVariantMap>

#include <optional>
#include <utility>

using namespace Qt::StringLiterals;

namespace Platform {
namespace {

const auto notificationServer = u"org.freedesktop.Notifications"_s;
const auto notificationPath = u"/org/freedesktop/Notifications"_s;
const auto defaultActionKey = u"default"_s; // sent for a click on the notification itself

constexpr uchar normalUrgency = 1, criticalUrgency = 2;

/// Only one Notify call runs at a time, because the next call needs the id that the server returns. If several
/// notifications are requested in the meantime, only the last one is sent.
class FreedesktopNotifications : public Notifications {
    Q_OBJECT
public:
    FreedesktopNotifications(const QString& program, const QString& desktopEntry)
        : program_(program), desktopEntry_(desktopEntry), bus_(QDBusConnection::sessionBus()),
          servers_(notificationServer, bus_, QDBusServiceWatcher::WatchForOwnerChange) {
        if (!bus_.isConnected())
            return;
        // A new server does not know the ids of the old one.
        connect(&servers_, &QDBusServiceWatcher::serviceOwnerChanged, this, [this] {
            number_ = 0;
            interpretsMarkup_.reset();
        });
        bus_.connect(notificationServer, notificationPath, notificationServer, u"ActionInvoked"_s, this,
                     SLOT(invoked(uint, QString)));
        bus_.connect(notificationServer, notificationPath, notificationServer, u"ActivationToken"_s, this,
                     SLOT(tokenGiven(uint, QString)));
        bus_.connect(notificationServer, notificationPath, notificationServer, u"NotificationClosed"_s, this,
                     SLOT(closed(uint, uint)));
    }
    ~FreedesktopNotifications() override {
        // Without the program its buttons do nothing.
        close();
    }

    void show(const Notification& notification) override {
        if (!bus_.isConnected())
            return;
        next_ = notification;
        withdrawn_ = false;
        if (!busy_)
            send();
    }
    void withdraw() override {
        next_.reset();
        withdrawn_ = true;
        if (!busy_)
            close();
    }

private Q_SLOTS:
    void invoked(uint number, const QString& key) {
        if (number != number_ || number == 0)
            return;
        const QString action = key == defaultActionKey ? shown_.defaultAction : key;
        if (!action.isEmpty())
            Q_EMIT actionInvoked(action, std::exchange(token_, {}));
    }
    /// The server sends the token before ActionInvoked.
    void tokenGiven(uint number, const QString& token) {
        if (number == number_)
            token_ = token.toUtf8();
    }
    void closed(uint number, uint /*reason*/) {
        if (number == number_)
            number_ = 0;
    }

private:
    template <typename Then>
    void call(const QDBusMessage& message, Then then) {
        busy_ = true;
        auto* watcher = new QDBusPendingCallWatcher(bus_.asyncCall(message), this);
        connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, then](QDBusPendingCallWatcher* done) {
            done->deleteLater();
            busy_ = false;
            then(done->reply());
            if (busy_)
                return;
            if (withdrawn_)
                close();
            else if (next_)
                send();
        });
    }

    void send() {
        if (!interpretsMarkup_) {
            call(QDBusMessage::createMethodCall(notificationServer, notificationPath, notificationServer,
                                                u"GetCapabilities"_s),
                 [this](const QDBusMessage& reply) {
                     if (reply.type() == QDBusMessage::ReplyMessage)
                         interpretsMarkup_ = reply.arguments().value(0).toStringList().contains(u"body-markup"_s);
                     else
                         next_.reset(); // no server; the next notification asks again
                 });
            return;
        }
        shown_ = *std::exchange(next_, std::nullopt);
        QStringList actions;
        if (!shown_.defaultAction.isEmpty())
            actions << defaultActionKey << QString();
        for (const Action& action : std::as_const(shown_.actions))
            actions << action.key << action.label;
        const QVariantMap hints{
            {u"desktop-entry"_s, desktopEntry_},
            {u"urgency"_s, QVariant::fromValue<uchar>(shown_.isProblem ? criticalUrgency : normalUrgency)},
            {u"suppress-sound"_s, true}, // the sound would be recorded when computer audio is recorded
        };
        auto message =
            QDBusMessage::createMethodCall(notificationServer, notificationPath, notificationServer, u"Notify"_s);
        message << program_ << number_ << desktopEntry_ << shown_.title
                << (*interpretsMarkup_ ? shown_.text.toHtmlEscaped() : shown_.text) << actions << hints << -1;
        call(message, [this](const QDBusMessage& reply) {
            const QDBusPendingReply<uint> number = reply;
            number_ = number.isValid() ? number.value() : 0;
        });
    }

    void close() {
        if (number_ == 0)
            return;
        auto message = QDBusMessage::createMethodCall(notificationServer, notificationPath, notificationServer,
                                                      u"CloseNotification"_s);
        message << std::exchange(number_, 0U);
        message.setAutoStartService(false);
        bus_.send(message);
    }

    QString program_;
    QString desktopEntry_;
    QDBusConnection bus_;
    QDBusServiceWatcher servers_;
    bool busy_ = false; ///< a call is under way
    bool withdrawn_ = false;
    uint number_ = 0; ///< id of the open notification from the server; 0 is none
    std::optional<bool> interpretsMarkup_;
    std::optional<Notification> next_;
    Notification shown_;
    QByteArray token_;
};

} // namespace

std::unique_ptr<Notifications> Notifications::create(const QString& program, const QString& desktopEntry) {
    return std::make_unique<FreedesktopNotifications>(program, desktopEntry);
}

} // namespace Platform

#include "FreedesktopNotifications.moc"
