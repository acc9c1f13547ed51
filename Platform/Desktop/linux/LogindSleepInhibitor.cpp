// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Desktop/SleepInhibitor.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusUnixFileDescriptor>
#include <QObject>

namespace Platform {
namespace {

/// The login manager blocks sleep as long as the descriptor that it returns is open. A crash closes the descriptor, so
/// the machine can sleep again.
class LogindSleepInhibitor : public SleepInhibitor {
public:
    void setInhibited(bool inhibited, const QString& why) override {
        if (inhibited == wanted_)
            return;
        wanted_ = inhibited;
        held_ = {};
        if (inhibited)
            ask(why);
    }
    [[nodiscard]] bool isInhibited() const override { return held_.isValid(); }

private:
    void ask(const QString& why) {
        QDBusMessage call = QDBusMessage::createMethodCall(
            QStringLiteral("org.freedesktop.login1"), QStringLiteral("/org/freedesktop/login1"),
            QStringLiteral("org.freedesktop.login1.Manager"), QStringLiteral("Inhibit"));
        call << QStringLiteral("sleep:idle") << QStringLiteral("Sonaphex") << why << QStringLiteral("block");
        auto* watcher = new QDBusPendingCallWatcher(QDBusConnection::systemBus().asyncCall(call), &context_);
        const int request = ++requests_;
        QObject::connect(watcher, &QDBusPendingCallWatcher::finished, &context_, [this, watcher, request] {
            const QDBusPendingReply<QDBusUnixFileDescriptor> reply = *watcher;
            watcher->deleteLater();
            // When the request was withdrawn meanwhile, the descriptor in the answer is closed at once.
            if (reply.isValid() && wanted_ && request == requests_)
                held_ = reply.value();
        });
    }

    bool wanted_ = false;
    int requests_ = 0;
    QDBusUnixFileDescriptor held_;
    QObject context_; ///< last member: replies are not delivered after it is destroyed
};

} // namespace

std::unique_ptr<SleepInhibitor> createSleepInhibitor() {
    return std::make_unique<LogindSleepInhibitor>();
}

} // namespace Platform
