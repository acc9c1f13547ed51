// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// Installs and removes the capture driver for the whole system. Blocks its caller until the administrator's part is
/// done, while a local event loop keeps windows alive.
namespace KextInstallControl {

[[nodiscard]] bool isExist();
[[nodiscard]] bool uninstall();
[[nodiscard]] bool install();
/// Why the last of them failed, in one line; empty when it did not.
[[nodiscard]] QString lastError();
/// Whether an installation or removal is under way; a second one is refused.
[[nodiscard]] bool isBusy();

} // namespace KextInstallControl
