// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <atomic>
#include <chrono>
#include <csignal>
#include <thread>

#include <QProcess>
#include <QString>
#include <QStringList>
#include <gtest/gtest.h>
#include <unistd.h>

/// Notices when the machine does not run this process for a while: a thread that sleeps for a few milliseconds measures
/// its longest sleep. The sound server loses cycles then, and a short sound can be missed. Such an attempt says nothing
/// about the program. Only this clock decides whether an attempt counts, never its result.
class Standstills {
public:
    /// Milliseconds. A busy machine delays a thread by some tens of milliseconds.
    static constexpr double Longest = 100;

    Standstills()
        : thread_([this](const std::stop_token& end) {
              using namespace std::chrono_literals;
              for (auto last = std::chrono::steady_clock::now(); !end.stop_requested();) {
                  std::this_thread::sleep_for(5ms);
                  const auto now = std::chrono::steady_clock::now();
                  const std::chrono::duration<double, std::milli> slept = now - last;
                  longest_ = std::max(longest_.load(), slept.count());
                  last = now;
              }
          }) {}

    /// Stops this whole process for a while, as a suspended machine does. Returns when another process has continued
    /// it; false when that process could not be started.
    [[nodiscard]] static bool make(int seconds) {
        QProcess other;
        const QString script = QStringLiteral("sleep \"$1\" && kill -CONT \"$2\"");
        other.start(QStringLiteral("sh"), {QStringLiteral("-c"), script, QStringLiteral("sh"), QString::number(seconds),
                                           QString::number(getpid())});
        if (!other.waitForStarted())
            return false;
        raise(SIGSTOP);
        return other.waitForFinished();
    }

    /// Runs @p attempt until the machine ran all the time during one of them; reports when there is none.
    template <typename Attempt>
    void attemptInOnePiece(Attempt attempt) {
        constexpr int mostAttempts = 8;
        for (int i = 0; i < mostAttempts; ++i) {
            longest_ = 0;
            attempt();
            if (testing::Test::HasFatalFailure() || longest_ < Longest)
                return;
        }
        ADD_FAILURE() << "the machine stood still in each attempt, in the last one for " << longest_ << " ms";
    }

private:
    std::atomic<double> longest_{0};
    std::jthread thread_;
};
