// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "CommandLine/CommandLine.h"
#include "CommandLine/LibraryCommand.h"
#include "CommandLine/TagCommand.h"

namespace CommandLine {

Commands byName(std::initializer_list<const Command*> commands) {
    Commands named;
    for (const Command* command : commands)
        named.emplace(QString::fromUtf8(command->name), command);
    return named;
}

const Commands& fileCommands() {
    static const Commands commands = byName({&libraryCommand, &tagCommand});
    return commands;
}

} // namespace CommandLine
