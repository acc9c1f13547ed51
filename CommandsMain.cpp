// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The module with the commands that record, decode, encode or burn, which the program loads to run one of them. It is
// linked without Qt Gui.
#include "CommandLine/CommandLine.h"
#include "CommandLine/CommandServices.h"

#include <QtGlobal>

/// Runs the command named by the first argument. @return false when it is in another part of the program.
extern "C" Q_DECL_EXPORT bool sonaphexRunCommand(int argc, char** argv, int& status) {
    const auto result = CommandLine::runOneOf(CommandLine::plainCommands(), argc, argv, CommandLine::installServices);
    status = result.value_or(CommandLine::Failed);
    return result.has_value();
}
