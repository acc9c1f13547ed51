// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Desktop/SleepInhibitor.h"

#include "tests/support/LoginManager.h"
#include "tests/support/WaitFor.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(SleepInhibitor, InhibitsSleepOnlyWhileRequested) {
    LoginManager manager(QDBusConnection::sessionBus()); // the tests' private bus is the system bus as well
    ASSERT_TRUE(manager.isRegistered());
    const auto inhibitor = Platform::createSleepInhibitor();
    inhibitor->setInhibited(false, {});
    EXPECT_TRUE(manager.asked().isEmpty());
    inhibitor->setInhibited(true, u"A recording is running."_s);
    ASSERT_TRUE(waitFor([&] { return inhibitor->isInhibited(); }));
    EXPECT_EQ(manager.asked(), (QStringList{u"sleep:idle"_s, u"Sonaphex"_s, u"A recording is running."_s, u"block"_s}));
    EXPECT_TRUE(manager.isHeld());
    inhibitor->setInhibited(false, {});
    EXPECT_FALSE(inhibitor->isInhibited());
    EXPECT_TRUE(waitFor([&] { return !manager.isHeld(); })) << "the machine may sleep again";
}
