// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "CommandLine/Subcommand.h"

/// Help texts of the subcommands, generated from their declarations.
namespace CommandHelp {

/// "usage: sonaphex NAME OPERANDS [--option VALUE] ...", broken into lines of at most 100 characters.
[[nodiscard]] QString usage(const CommandLine::Command& command);
/// The usage, the summary, a line for each option with its sentence and default, and the examples.
[[nodiscard]] QString whole(const CommandLine::Command& command);
/// The program's behaviour without a command, and the usage and summary of each command.
[[nodiscard]] QString overview(const CommandLine::Commands& commands);

} // namespace CommandHelp
