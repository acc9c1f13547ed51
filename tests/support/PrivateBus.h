// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tests/support/WaitFor.h"

#include <gtest/gtest.h>

#include <QProcess>

/// A message bus that only the test uses.
class PrivateBus {
public:
    /// The test fails when the bus does not start.
    /// @param folder for the bus's socket, 90 bytes at most: the path of a socket may have 107 (unix(7))
    explicit PrivateBus(const QString& folder) {
        daemon_.start(QStringLiteral("dbus-daemon"),
                      {QStringLiteral("--session"), QStringLiteral("--nofork"), QStringLiteral("--print-address"),
                       QStringLiteral("--address=unix:dir=") + folder});
        (void)waitFor([this] { return daemon_.canReadLine() || daemon_.state() == QProcess::NotRunning; });
        if (daemon_.canReadLine())
            address_ = QString::fromUtf8(daemon_.readLine().trimmed());
        else
            ADD_FAILURE() << "no private bus: " << daemon_.readAllStandardError().toStdString();
    }
    ~PrivateBus() {
        daemon_.kill();
        daemon_.waitForFinished();
    }
    PrivateBus(const PrivateBus&) = delete;
    PrivateBus& operator=(const PrivateBus&) = delete;

    [[nodiscard]] QString address() const { return address_; }

private:
    QProcess daemon_;
    QString address_;
};
