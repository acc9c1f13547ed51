// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/ProcessRequests/Launch.h"

#include "Platform/Foundation/MainQueue.h"
#include "tests/support/Environment.h"
#include "tests/support/WaitFor.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>

#include <atomic>
#include <thread>

using namespace Qt::StringLiterals;
using Launch::Outcome;
using Platform::RunningProgram;

namespace {

class LaunchTest : public testing::Test {
protected:
    ~LaunchTest() override {
        if (launching.joinable())
            launching.join();
    }
    /// A second launch, on a separate thread that plays the other process.
    void launchAgain(int patienceMs) {
        launching = std::thread([this, patienceMs] {
            const auto second = RunningProgram::create(u"org.example.Test"_s);
            outcome = Launch::begin(*second, "token 1", patienceMs);
            done = true;
        });
    }
    /// Whether the launch has asked for the lock, which is held.
    [[nodiscard]] bool waits() {
        return !waitFor([this] { return done.load(); }, 200);
    }

    QTemporaryDir dir{QDir::tempPath() + u"/sonaphex-XXXXXX"_s};
    EnvironmentScope temporary{"TMPDIR", dir.path().toUtf8()};
    EnvironmentScope runtime{"XDG_RUNTIME_DIR", dir.path().toUtf8()};
    std::unique_ptr<RunningProgram> first = RunningProgram::create(u"org.example.Test"_s);
    std::thread launching;
    std::atomic<bool> done{false};
    Outcome outcome = Outcome::NoPlace;
};

} // namespace

TEST_F(LaunchTest, TheFirstOneHoldsTheLock) {
    EXPECT_EQ(Launch::begin(*first, {}, 0), Outcome::First);
    EXPECT_TRUE(first->listen([](const QByteArray&) { return QByteArray(); }));
}

TEST_F(LaunchTest, RaisesTheWindowOfAProgramThatIsStillStarting) {
    ASSERT_TRUE(first->acquire());
    launchAgain(60000);
    EXPECT_TRUE(waits());
    QByteArray heard;
    ASSERT_TRUE(first->listen([&](const QByteArray& request) {
        heard = request;
        return QByteArray("ok");
    }));
    ASSERT_TRUE(waitFor([this] { return done.load(); }));
    EXPECT_EQ(outcome, Outcome::Raised);
    EXPECT_EQ(heard, "show token 1");
}

TEST_F(LaunchTest, ReplacesAProgramThatEndsDuringItsStart) {
    ASSERT_TRUE(first->acquire());
    launchAgain(60000);
    EXPECT_TRUE(waits());
    first.reset();
    ASSERT_TRUE(waitFor([this] { return done.load(); }));
    EXPECT_EQ(outcome, Outcome::First);
}

TEST_F(LaunchTest, ReportsThatNothingAnswers) {
    ASSERT_TRUE(first->acquire());
    launchAgain(100);
    ASSERT_TRUE(waitFor([this] { return done.load(); }));
    EXPECT_EQ(outcome, Outcome::NobodyAnswers);
}

TEST_F(LaunchTest, ReportsThatTheLockFileCannotBeCreated) {
    QDir().mkpath(dir.filePath(u"org.example.Test.lock"_s));
    EXPECT_EQ(Launch::begin(*first, {}, 60000), Outcome::NoPlace);
    EXPECT_FALSE(first->lastError().isEmpty());
}
