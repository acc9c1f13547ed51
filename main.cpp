// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "CommandLine/CommandLine.h"
#include "Platform/FileServices.h"
#include "Platform/Foundation/Module.h"
#include "Platform/Foundation/StandardStreams.h"
#include "Source/Control/EditNote.h"

#include <cstring>

// The libraries for sound, discs and the desktop take most of the time of a short command. The program itself is linked
// without them and contains only the commands that need none of them; the others, and the windows, are in modules.
int main(int argc, char** argv) {
    Platform::secureStandardStreams();
    if (argc > 1 && std::strcmp(argv[1], "--version") == 0) {
        CommandLine::print(QStringLiteral("sonaphex " SONAPHEX_VERSION));
        return CommandLine::ended(CommandLine::Done);
    }
    if (argc > 1 && argv[1][0] != '-') {
        const auto& own = CommandLine::fileCommands();
        // The command first completes an edit that was interrupted, which needs the libraries that read audio files.
        if (own.contains(QString::fromLocal8Bit(argv[1])) && !EditNote::anyIsLeft())
            if (const auto status = CommandLine::runOneOf(own, argc, argv, Platform::FileServices::install))
                return *status;
        using RunCommand = bool (*)(int, char**, int&);
        const auto runCommand =
            Platform::loadFunction<RunCommand>(QStringLiteral("SonaphexCommands.so"), "sonaphexRunCommand");
        if (!runCommand)
            return CommandLine::fail(runCommand.error().text);
        if (int status = 0; (*runCommand)(argc, argv, status))
            return status;
    }
    using Main = int (*)(int, char**);
    const auto desktopMain = Platform::loadFunction<Main>(QStringLiteral("SonaphexDesktop.so"), "sonaphexDesktopMain");
    return desktopMain ? (*desktopMain)(argc, argv) : CommandLine::fail(desktopMain.error().text);
}
