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
#include "CommandLine/RecordCommand.h"
#include "CommandLine/RingtoneCommand.h"
#include "CommandLine/SplitCommand.h"
#include "CommandLine/TrimCommand.h"

namespace CommandLine {

const Commands& plainCommands() {
    static const Commands plain = [] {
        Commands commands = fileCommands();
        commands.merge(
            byName({&balanceCommand, &burnCommand, &controlCommand, &convertCommand, &devicesCommand, &driverCommand,
                    &drivesCommand, &joinCommand, &recordCommand, &ringtoneCommand, &splitCommand, &trimCommand}));
        return commands;
    }();
    return plain;
}

} // namespace CommandLine
