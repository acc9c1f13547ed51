// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Foundation/Result.h"

#include <QString>

namespace Platform {

/// Runs a shell command line with administrator rights: directly when the process has them, else through pkexec, which
/// asks for a password. Blocks; called from a worker. Interrupting the worker ends the password prompt; a command that
/// already runs as root runs to its end.
class AdminShell {
public:
    virtual ~AdminShell() = default;
    /// Succeeds when the command exits with 0. The text of an error is one line. A cancelled password prompt
    /// (Error::Kind::Cancelled) and a missing helper are errors.
    virtual Result<> executeShellStringWithAdmin(const QString& command) = 0;
};

} // namespace Platform
