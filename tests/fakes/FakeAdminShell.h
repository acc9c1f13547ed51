// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Desktop/AdminShell.h"

#include <QProcess>
#include <QStringList>

#include <functional>

/// Records its commands and runs them with the test's own rights, unless it is set to refuse.
class FakeAdminShell : public Platform::AdminShell {
public:
    QStringList commands;
    Platform::Result<> refusal;
    /// Called on the worker before each command.
    std::function<void()> before;

    Platform::Result<> executeShellStringWithAdmin(const QString& command) override {
        commands.append(command);
        if (before)
            before();
        if (!refusal)
            return refusal;
        const int status = QProcess::execute(QStringLiteral("/bin/sh"), {QStringLiteral("-c"), command});
        if (status != 0)
            return Platform::Error{Platform::Error::Kind::Other, QStringLiteral("status %1").arg(status)};
        return {};
    }
};
