// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Desktop/Alerts.h"
#include "Platform/Desktop/Workspace.h"

#include <memory>

namespace Platform {

/// The desktop through the session bus and xdg-open. No call blocks.
/// @param busAddress a bus other than the session's; empty for the session's.
[[nodiscard]] std::unique_ptr<Workspace> createWorkspace(const QString& busAddress = {});

/// Alerts for a program without windows: prints a line on standard error and returns the default answer.
[[nodiscard]] std::unique_ptr<Alerts> createCommandLineAlerts();

} // namespace Platform
