// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <optional>

namespace Platform {

/// Runs a shell command line with administrator rights: directly when the process has them, else through pkexec, which
/// asks for a password. Blocks; called from a worker. Interrupting the worker ends the password prompt; a command that
/// already runs as root runs to its end.
class AdminShell {
public:
    virtual ~AdminShell() = default;
    /// @return nothing when the command exits with 0, else the failure in one line. A cancelled password prompt and a
    /// missing helper are failures.
    [[nodiscard]] virtual std::optional<QString> executeShellStringWithAdmin(const QString& command) = 0;
};

} // namespace Platform
