// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>

namespace Platform {

/// The services of a command that only works on files and on the library: bundle, clock and settings. All others stay
/// null, so the program is linked without the libraries for sound, discs and the desktop.
namespace FileServices {

/// Installs them in Platform::services() until the result is destroyed. Main thread.
[[nodiscard]] std::shared_ptr<void> install();

} // namespace FileServices

} // namespace Platform
