// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Foundation/TerminationSignals.h"

#include "tests/support/WaitFor.h"

#include <gtest/gtest.h>

#include <QList>

#include <csignal>

namespace {

/// Sets a signal's disposition and restores it afterwards.
class Disposition {
public:
    Disposition(int signal, void (*action)(int)) : signal_(signal), before_(std::signal(signal, action)) {}
    ~Disposition() { std::signal(signal_, before_); }
    Disposition(const Disposition&) = delete;
    Disposition& operator=(const Disposition&) = delete;
    [[nodiscard]] static bool isIgnored(int signal) {
        struct sigaction now {};
        sigaction(signal, nullptr, &now);
        return now.sa_handler == SIG_IGN;
    }

private:
    int signal_;
    void (*before_)(int);
};

} // namespace

TEST(TerminationSignals, ReportsEachSignalOnTheMainThread) {
    QList<int> received;
    const Platform::TerminationSignals signals([&](int signal) { received.append(signal); });
    raise(SIGHUP);
    raise(SIGTERM);
    EXPECT_TRUE(waitFor([&] { return received.size() == 2; }));
    EXPECT_EQ(received, (QList<int>{SIGHUP, SIGTERM}));
}

TEST(TerminationSignals, KeepsIgnoredSignalsIgnored) {
    const Disposition hangUp(SIGHUP, SIG_IGN);
    const Disposition interrupt(SIGINT, SIG_IGN);
    QList<int> received;
    {
        const Platform::TerminationSignals signals([&](int signal) { received.append(signal); });
        EXPECT_TRUE(Disposition::isIgnored(SIGHUP));
        EXPECT_TRUE(Disposition::isIgnored(SIGINT));
        raise(SIGHUP);
        raise(SIGINT);
        raise(SIGTERM);
        EXPECT_TRUE(waitFor([&] { return !received.isEmpty(); }));
    }
    EXPECT_EQ(received, QList<int>{SIGTERM});
    EXPECT_TRUE(Disposition::isIgnored(SIGHUP)) << "also afterwards";
}
