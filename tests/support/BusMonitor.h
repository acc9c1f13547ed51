// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tests/support/WaitFor.h"

#include <gtest/gtest.h>

#include <QProcess>

#include <algorithm>
#include <chrono>
#include <vector>

/// Another program that listens to the changes of properties on a bus (dbus-monitor) and notes when each one reached
/// it: a measure of the bus and the machine that does not depend on the program under test.
class BusMonitor {
public:
    using Time = std::chrono::system_clock::time_point;

    /// The test fails when it does not start.
    explicit BusMonitor(const QString& busAddress) {
        monitor_.start(QStringLiteral("dbus-monitor"),
                       {QStringLiteral("--address"), busAddress, QStringLiteral("--profile"),
                        QStringLiteral("type='signal',interface='org.freedesktop.DBus.Properties',"
                                       "member='PropertiesChanged'")});
        // Its first lines say that it became a monitor.
        if (!waitFor([this] { return said().contains("NameLost") || monitor_.state() == QProcess::NotRunning; }) ||
            monitor_.state() == QProcess::NotRunning)
            ADD_FAILURE() << "no monitor: " << monitor_.readAllStandardError().toStdString();
    }
    ~BusMonitor() {
        monitor_.kill();
        monitor_.waitForFinished();
    }
    BusMonitor(const BusMonitor&) = delete;
    BusMonitor& operator=(const BusMonitor&) = delete;

    /// The longest time that one of these changes, all that were sent, took to reach the monitor, in milliseconds; a
    /// large value when not all have come.
    [[nodiscard]] double longestWay(const std::vector<Time>& sent) {
        (void)waitFor([&] { return heard().size() >= sent.size(); }, 5000);
        const std::vector<Time> times = heard();
        if (times.size() != sent.size())
            return 1e9;
        double longest = 0;
        for (std::size_t i = 0; i < sent.size(); ++i)
            longest = std::max(longest, std::chrono::duration<double, std::milli>(times[i] - sent[i]).count());
        return longest;
    }

private:
    const QByteArray& said() {
        said_ += monitor_.readAllStandardOutput();
        return said_;
    }
    /// "sig", the seconds since 1970, …, "PropertiesChanged", with tabs between them.
    [[nodiscard]] std::vector<Time> heard() {
        std::vector<Time> times;
        const QByteArray whole = said().left(said_.lastIndexOf('\n') + 1);
        for (const QByteArray& line : whole.split('\n')) {
            const QList<QByteArray> words = line.split('\t');
            if (words.value(0) != "sig" || words.value(7) != "PropertiesChanged")
                continue;
            const auto since = std::chrono::duration<double>(words.value(1).toDouble());
            times.push_back(Time(std::chrono::duration_cast<Time::duration>(since)));
        }
        return times;
    }

    QProcess monitor_;
    QByteArray said_;
};
