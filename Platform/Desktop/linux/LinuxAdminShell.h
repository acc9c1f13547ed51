// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Desktop/AdminShell.h"

#include <memory>

namespace Platform {

/// Runs commands directly when the process has administrator rights, else through pkexec, found in PATH at each call.
[[nodiscard]] std::unique_ptr<AdminShell> createAdminShell();
/// As above, with a fixed answer to whether the process has the rights; for tests.
[[nodiscard]] std::unique_ptr<AdminShell> createAdminShell(bool haveRights);

} // namespace Platform
