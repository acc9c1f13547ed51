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
    /// The answer to a request, and the work that is begun only after the answer was written. That work may open a
    /// dialog; the caller does not wait for it.
    struct Reply {
        Reply(QByteArray line, std::function<void()> afterwards = {}) // NOLINT: an answer alone is a reply
            : line(std::move(line)), afterwards(std::move(afterwards)) {}
        QByteArray line;
        std::function<void()> afterwards; ///< may be empty; runs on the main thread, before the next request is read
    };
    /// Answers a request of another process; called on the main thread, in the order of the requests. The request and
    /// the answer are single lines. The caller waits, so nothing here may take long or open a dialog.
    using Handler = std::function<Reply(const QByteArray& request)>;

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
