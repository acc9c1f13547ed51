// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusUnixFileDescriptor>
#include <QDBusVirtualObject>
#include <QStringList>

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

/// A login manager on a bus, present while the object lives. It gives one end of a pipe to a program that inhibits
/// sleep; the other end tells whether that end is still open.
class LoginManager : public QDBusVirtualObject {
public:
    explicit LoginManager(const QDBusConnection& bus) : bus_(bus) {
        registered_ = bus_.registerVirtualObject(path(), this) && bus_.registerService(service());
    }
    ~LoginManager() override {
        bus_.unregisterService(service());
        bus_.unregisterObject(path());
        if (watched_ >= 0)
            ::close(watched_);
    }

    [[nodiscard]] bool isRegistered() const { return registered_; }
    /// What, who, why and mode of the last request.
    [[nodiscard]] QStringList asked() const { return asked_; }
    [[nodiscard]] bool isHeld() const {
        pollfd end{watched_, 0, 0};
        return watched_ >= 0 && (::poll(&end, 1, 0) == 0 || (end.revents & POLLHUP) == 0);
    }

    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override {
        if (message.member() != QStringLiteral("Inhibit"))
            return false;
        asked_.clear();
        for (const QVariant& argument : message.arguments())
            asked_.append(argument.toString());
        int ends[2];
        if (::pipe2(ends, O_CLOEXEC) != 0)
            return false;
        if (watched_ >= 0)
            ::close(watched_);
        watched_ = ends[0];
        const QDBusUnixFileDescriptor given(ends[1]);
        ::close(ends[1]);
        connection.send(message.createReply(QVariant::fromValue(given)));
        return true;
    }

private:
    [[nodiscard]] static QString path() { return QStringLiteral("/org/freedesktop/login1"); }
    [[nodiscard]] static QString service() { return QStringLiteral("org.freedesktop.login1"); }

    QDBusConnection bus_;
    bool registered_ = false;
    QStringList asked_;
    int watched_ = -1;
};
