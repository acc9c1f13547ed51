// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "CommandLine/ManualCommand.h"

#include "CommandLine/Arguments.h"
#include "CommandLine/CommandManual.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace CommandLine {
namespace {

int printManual(const QStringList& given) {
    const Arguments arguments(given, manualCommand);
    if (!arguments.problem().isEmpty() || !arguments.positional().isEmpty())
        return wrongUsage(manualCommand, QCoreApplication::translate("CommandLine", "manual takes nothing"));
    print(CommandManual::manualPage(allCommands()).trimmed());
    return Done;
}

int printCompletions(const QStringList& given) {
    const Arguments arguments(given, completionsCommand);
    const QStringList shells = arguments.positional();
    if (arguments.problem().isEmpty() && shells == QStringList{u"bash"_s})
        print(CommandManual::bashCompletion(allCommands()).trimmed());
    else if (arguments.problem().isEmpty() && shells == QStringList{u"zsh"_s})
        print(CommandManual::zshCompletion(allCommands()).trimmed());
    else if (arguments.problem().isEmpty() && shells == QStringList{u"fish"_s})
        print(CommandManual::fishCompletion(allCommands()).trimmed());
    else
        return wrongUsage(completionsCommand,
                          QCoreApplication::translate("CommandLine", "completions takes one of bash, zsh, fish"));
    return Done;
}

} // namespace

const Command manualCommand{"manual",
                            "",
                            QT_TRANSLATE_NOOP("CommandLine", "print the manual page"),
                            {},
                            {{"manual | man -l -", QT_TRANSLATE_NOOP("CommandLine", "Read the manual page.")}},
                            printManual};

const Command completionsCommand{
    "completions",
    "bash|zsh|fish",
    QT_TRANSLATE_NOOP("CommandLine", "print the completions for a shell"),
    {},
    {{"completions bash > ~/.local/share/bash-completion/completions/sonaphex",
      QT_TRANSLATE_NOOP("CommandLine", "Install the completions for the current user's bash.")}},
    printCompletions};

} // namespace CommandLine
