// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <csignal>

#include <QProcess>
#include <QString>
#include <QStringList>
#include <unistd.h>

/// Stops this whole process for a while, as a machine does that is suspended or busy with something else.
namespace StandStill {

/// Returns when another process has continued this one. False when that process could not be started.
[[nodiscard]] inline bool forSeconds(int seconds) {
    QProcess other;
    const QString script = QStringLiteral("sleep \"$1\" && kill -CONT \"$2\"");
    other.start(QStringLiteral("sh"), {QStringLiteral("-c"), script, QStringLiteral("sh"), QString::number(seconds),
                                       QString::number(getpid())});
    if (!other.waitForStarted())
        return false;
    raise(SIGSTOP);
    return other.waitForFinished();
}

} // namespace StandStill
