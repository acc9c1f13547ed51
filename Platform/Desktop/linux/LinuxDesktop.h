// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Desktop/Alerts.h"
#include "Platform/Desktop/Workspace.h"

#include <memory>

namespace Platform {

/// The desktop through the session bus and xdg-open. Nothing of it blocks.
/// @param busAddress another bus than the session's; empty for the session's.
[[nodiscard]] std::unique_ptr<Workspace> createWorkspace(const QString& busAddress = {});

/// Alerts of a program without windows: a line on standard error, and the default answer.
[[nodiscard]] std::unique_ptr<Alerts> createCommandLineAlerts();

} // namespace Platform
