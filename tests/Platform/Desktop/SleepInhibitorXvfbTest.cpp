// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Desktop/SleepInhibitor.h"

#include "tests/support/Environment.h"
#include "tests/support/WaitFor.h"

#include <QDBusConnection>
#include <QDBusUnixFileDescriptor>
#include <QObject>
#include <gtest/gtest.h>

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

/// A login manager that hands out one end of a pipe: the other end says whether it is still held.
class LoginManager : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.login1.Manager")
public:
    ~LoginManager() override {
        if (watched_ >= 0)
            ::close(watched_);
    }
    [[nodiscard]] bool isHeld() const {
        pollfd end{watched_, 0, 0};
        return watched_ >= 0 && (::poll(&end, 1, 0) == 0 || (end.revents & POLLHUP) == 0);
    }

    QStringList asked;

public Q_SLOTS:
    QDBusUnixFileDescriptor Inhibit(const QString& what, const QString& who, const QString& why, const QString& mode) {
        asked = {what, who, why, mode};
        int ends[2];
        if (::pipe2(ends, O_CLOEXEC) != 0)
            return {};
        watched_ = ends[0];
        QDBusUnixFileDescriptor given(ends[1]);
        ::close(ends[1]);
        return given;
    }

private:
    int watched_ = -1;
};

} // namespace

TEST(SleepInhibitor, HoldsSleepOffOnlyWhileItIsAskedTo) {
    // The private session bus of the tests plays the system's.
    const EnvironmentScope bus("DBUS_SYSTEM_BUS_ADDRESS", qgetenv("DBUS_SESSION_BUS_ADDRESS"));
    LoginManager manager;
    QDBusConnection session = QDBusConnection::sessionBus();
    ASSERT_TRUE(session.registerObject(u"/org/freedesktop/login1"_s, &manager, QDBusConnection::ExportAllSlots));
    ASSERT_TRUE(session.registerService(u"org.freedesktop.login1"_s));
    const auto inhibitor = Platform::createSleepInhibitor();
    inhibitor->setInhibited(false, {});
    EXPECT_TRUE(manager.asked.isEmpty());
    inhibitor->setInhibited(true, u"A recording is running."_s);
    ASSERT_TRUE(waitFor([&] { return inhibitor->isInhibited(); }));
    EXPECT_EQ(manager.asked, (QStringList{u"sleep:idle"_s, u"Sonaphex"_s, u"A recording is running."_s, u"block"_s}));
    EXPECT_TRUE(manager.isHeld());
    inhibitor->setInhibited(false, {});
    EXPECT_FALSE(inhibitor->isInhibited());
    EXPECT_TRUE(waitFor([&] { return !manager.isHeld(); })) << "the machine may sleep again";
    session.unregisterService(u"org.freedesktop.login1"_s);
    session.unregisterObject(u"/org/freedesktop/login1"_s);
}

#include "SleepInhibitorXvfbTest.moc"
