// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Audio/PrivateSession.h"

#include <QByteArray>
#include <QStringList>
#include <sys/types.h>

namespace Platform {

/// Starts and controls the session keeper, a helper process that runs the server and ends with this process. Main
/// thread.
class LinuxPrivateSession final : public PrivateSession {
public:
    struct Options {
        /// Further programs to start beside the server and its manager, each with the path of its file; a missing file
        /// is skipped.
        QStringList programs;
        /// node.name of the input device to wait for; when empty, only the output is waited for.
        QByteArray expectedSource;
    };

    ~LinuxPrivateSession() override;
    LinuxPrivateSession(const LinuxPrivateSession&) = delete;
    LinuxPrivateSession& operator=(const LinuxPrivateSession&) = delete;

    /// See PrivateSession::start().
    static Result<std::unique_ptr<LinuxPrivateSession>> start(const Options& options);

    [[nodiscard]] QString runtimeFolder() const override { return runtimeFolder_; }
    /// Stops the server, and startServer() starts it again in the same folder. Simulates a crash or an upgrade.
    bool stopServer();
    bool startServer();
    [[nodiscard]] pid_t keeper() const { return keeper_; }

private:
    LinuxPrivateSession() = default;
    Result<> spawnKeeper(const QStringList& arguments);
    /// The keeper's next line; empty when none arrives in time.
    [[nodiscard]] QByteArray readLine(int deadlineMs);

    pid_t keeper_ = -1;
    int toKeeper_ = -1;
    int fromKeeper_ = -1;
    QByteArray unread_;
    QString runtimeFolder_;
    QByteArray expectedSource_;
    bool hadRuntimeFolder_ = false;
    QByteArray previousRuntimeFolder_;
};

} // namespace Platform
