// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "CommandLine/Subcommand.h"

/// The manual page and the completions of shells, made from the declarations of the subcommands.
namespace CommandManual {

/// The manual page sonaphex(1) in the man macros.
[[nodiscard]] QString manualPage(const CommandLine::Commands& commands);
[[nodiscard]] QString bashCompletion(const CommandLine::Commands& commands);
[[nodiscard]] QString zshCompletion(const CommandLine::Commands& commands);
[[nodiscard]] QString fishCompletion(const CommandLine::Commands& commands);

} // namespace CommandManual
