// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "CommandLine/CommandLine.h"

namespace CommandLine {

/// Prints the manual page. Packages generate sonaphex.1 with it.
extern const Command manualCommand;
/// Prints the completions for a shell. Packages generate the files for bash, zsh and fish with it.
extern const Command completionsCommand;

} // namespace CommandLine
