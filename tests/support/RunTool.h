// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QProcess>
#include <QStringList>

/// The output and exit status of a program.
struct ToolResult {
    int status = -1; ///< -1: it could not be started, or it was killed by a signal
    QByteArray output;
    QByteArray errors;
};

/// Runs a program and waits for its end, without a shell.
inline ToolResult runTool(const QString& program, const QStringList& arguments, int deadlineMs = 60000) {
    QProcess process;
    process.setStandardInputFile(QProcess::nullDevice());
    process.start(program, arguments);
    if (!process.waitForStarted(deadlineMs) || !process.waitForFinished(deadlineMs))
        return {};
    ToolResult result;
    result.status = process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
    result.output = process.readAllStandardOutput();
    result.errors = process.readAllStandardError();
    return result;
}
