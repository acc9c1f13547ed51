// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Foundation/Result.h"

#include <memory>

namespace CommandLine {

/// Installs all services of the command line until the result is destroyed. For runOneOf().
[[nodiscard]] std::shared_ptr<void> installServices();

/// Connects this process to the sound server, or starts a private one when none answers. For subcommands that record or
/// play. An error when there is no sound server.
Platform::Result<> startAudio();

} // namespace CommandLine
