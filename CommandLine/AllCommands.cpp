// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "CommandLine/CommandHelp.h"
#include "CommandLine/CommandLine.h"
#include "CommandLine/CommandServices.h"
#include "CommandLine/ManualCommand.h"
#include "CommandLine/WaveformCommand.h"
#include "Platform/Foundation/Translations.h"

#include <QCoreApplication>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace CommandLine {

namespace {

/// The texts in the user's language. Only a command has an application object of its own.
struct Texts {
    Texts(int& argc, char** argv) : application(argc, argv) { Platform::Translations::install(); }
    QCoreApplication application;
};

} // namespace

const Commands& allCommands() {
    static const Commands all = [] {
        Commands commands = plainCommands();
        commands.merge(byName({&completionsCommand, &manualCommand, &waveformCommand}));
        return commands;
    }();
    return all;
}

std::optional<int> runCommand(int argc, char** argv) {
    if (argc < 2)
        return {};
    const auto name = QString::fromLocal8Bit(argv[1]);
    if (name == u"help"_s || name == u"--help"_s || name == u"-h"_s) {
        const Texts texts(argc, argv);
        print(CommandHelp::overview(allCommands()).trimmed());
        return ended(Done);
    }
    if (const auto status = runOneOf(allCommands(), argc, argv, installServices))
        return status;
    if (name.startsWith(u'-') || QFileInfo(QFile::decodeName(argv[1])).isFile())
        return {};
    const Texts texts(argc, argv);
    fail(QCoreApplication::translate("CommandLine", "%1: no such command and no such file (see sonaphex help)")
             .arg(name));
    return WrongUsage;
}

} // namespace CommandLine
