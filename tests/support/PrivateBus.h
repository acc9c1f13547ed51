// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tests/support/WaitFor.h"

#include <QProcess>

/// A message bus that only the test uses.
class PrivateBus {
public:
    /// @param folder for the bus's socket
    explicit PrivateBus(const QString& folder) {
        daemon_.start(QStringLiteral("dbus-daemon"),
                      {QStringLiteral("--session"), QStringLiteral("--nofork"), QStringLiteral("--print-address"),
                       QStringLiteral("--address=unix:dir=") + folder});
        if (waitFor([this] { return daemon_.canReadLine(); }))
            address_ = QString::fromUtf8(daemon_.readLine().trimmed());
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
