// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <optional>

namespace Platform {

/// Runs a shell command line with administrator rights: directly when the process has them, else through pkexec, which
/// asks for a password. Blocks; called from a worker. A request to interrupt the worker ends the password prompt; a
/// command that has its rights already runs to its end.
class AdminShell {
public:
    virtual ~AdminShell() = default;
    /// @return nothing when the command ended with status 0, else what went wrong in one line. A cancelled password
    /// prompt and a missing helper are errors.
    [[nodiscard]] virtual std::optional<QString> executeShellStringWithAdmin(const QString& command) = 0;
};

} // namespace Platform
