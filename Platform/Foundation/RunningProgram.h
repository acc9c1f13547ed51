// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>
#include <functional>
#include <memory>

namespace Platform {

/// Ensures that one window program runs per user, and lets other processes send requests to it. The kernel lock ends
/// with the process, lies outside the temporary folder that a launch empties, and is closed on exec.
class RunningProgram {
public:
    /// The answer to a request, and work that starts after the answer was written. That work may open a dialog; the
    /// caller does not wait for it.
    struct Reply {
        Reply(QByteArray line, std::function<void()> afterwards = {}) // NOLINT: an answer alone is a reply
            : line(std::move(line)), afterwards(std::move(afterwards)) {}
        QByteArray line;
        std::function<void()> afterwards; ///< may be empty; runs on the main thread, before the next request is read
    };
    /// Answers a request of another process; called on the main thread, in the order of the requests. The request and
    /// the answer are single lines. The caller waits, so the handler must be quick and must not open a dialog.
    using Handler = std::function<Reply(const QByteArray& request)>;

    virtual ~RunningProgram() = default;
    /// Takes the lock. False when another process holds it, or when the lock file cannot be created: see lastError().
    [[nodiscard]] virtual bool acquire() = 0;
    /// Why acquire() or listen() failed, for the user; empty when another instance of the program holds the lock.
    [[nodiscard]] virtual QString lastError() const = 0;
    /// Starts to answer on the local socket in $XDG_RUNTIME_DIR. Needs the lock.
    [[nodiscard]] virtual bool listen(Handler handler) = 0;
    /// Sends one line to the running program and waits at most @p timeoutMs for its answer. False when nothing answers.
    [[nodiscard]] virtual bool ask(const QByteArray& request, QByteArray& answer, int timeoutMs = 5000) = 0;
    /// The same for a process that never answers requests itself. Needs no Qt Network.
    [[nodiscard]] static bool askOther(const QString& bundleIdentifier, const QByteArray& request, QByteArray& answer,
                                       int timeoutMs = 5000);

    /// The Linux implementation. The names derive from the bundle identifier.
    [[nodiscard]] static std::unique_ptr<RunningProgram> create(const QString& bundleIdentifier);
};

} // namespace Platform
