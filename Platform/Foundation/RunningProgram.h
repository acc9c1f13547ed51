// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>
#include <functional>
#include <memory>

namespace Platform {

/// Makes sure that one window program runs per user, and lets others speak to it. The lock is the kernel's (it ends
/// with the process, however it ends), lies outside the temporary folder that a launch wipes, and is closed on exec.
class RunningProgram {
public:
    /// Answers a request of another process; called on the main thread. The request and the answer are single lines.
    using Handler = std::function<QByteArray(const QByteArray& request)>;

    virtual ~RunningProgram() = default;
    /// Takes the lock. False when another process holds it, or when there is no place for it: see lastError().
    [[nodiscard]] virtual bool acquire() = 0;
    /// Why acquire() or listen() failed, for people; empty when another program of ours holds the lock.
    [[nodiscard]] virtual QString lastError() const = 0;
    /// Begins to answer on the local socket in $XDG_RUNTIME_DIR. Needs the lock.
    [[nodiscard]] virtual bool listen(Handler handler) = 0;
    /// Sends one line to the running program and waits for its answer at most @p timeoutMs. False when nobody answers.
    [[nodiscard]] virtual bool ask(const QByteArray& request, QByteArray& answer, int timeoutMs = 5000) = 0;

    /// The Linux side. The names derive from the bundle identifier.
    [[nodiscard]] static std::unique_ptr<RunningProgram> create(const QString& bundleIdentifier);
};

} // namespace Platform
