// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "CommandLine/CommandLine.h"
#include "Platform/Foundation/Module.h"
#include "Platform/Foundation/StandardStreams.h"

int main(int argc, char** argv) {
    Platform::secureStandardStreams();
    // The commands that need no window are in the program itself. Everything else loads the module, and the desktop's
    // libraries with it.
    if (const auto status = CommandLine::runOneOf(CommandLine::plainCommands(), argc, argv))
        return *status;
    using Main = int (*)(int, char**);
    const auto desktopMain = Platform::loadFunction<Main>(QStringLiteral("SonaphexDesktop.so"), "sonaphexDesktopMain");
    return desktopMain ? (*desktopMain)(argc, argv) : CommandLine::fail(desktopMain.error().text);
}
