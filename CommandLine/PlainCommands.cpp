// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "CommandLine/BalanceCommand.h"
#include "CommandLine/BurnCommand.h"
#include "CommandLine/CommandLine.h"
#include "CommandLine/ControlCommand.h"
#include "CommandLine/ConvertCommand.h"
#include "CommandLine/DevicesCommand.h"
#include "CommandLine/DriverCommand.h"
#include "CommandLine/DrivesCommand.h"
#include "CommandLine/JoinCommand.h"
#include "CommandLine/LibraryCommand.h"
#include "CommandLine/RecordCommand.h"
#include "CommandLine/RingtoneCommand.h"
#include "CommandLine/SplitCommand.h"
#include "CommandLine/TagCommand.h"
#include "CommandLine/TrimCommand.h"

namespace CommandLine {

Commands byName(std::initializer_list<const Command*> commands) {
    Commands named;
    for (const Command* command : commands)
        named.emplace(QString::fromUtf8(command->name), command);
    return named;
}

const Commands& plainCommands() {
    static const Commands plain =
        byName({&balanceCommand, &burnCommand, &controlCommand, &convertCommand, &devicesCommand, &driverCommand,
                &drivesCommand, &joinCommand, &libraryCommand, &recordCommand, &ringtoneCommand, &splitCommand,
                &tagCommand, &trimCommand});
    return plain;
}

} // namespace CommandLine
