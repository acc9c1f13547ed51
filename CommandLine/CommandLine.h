// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

#include <functional>
#include <map>
#include <optional>

/// The subcommands of the program. Each lives in a file of its own and has its name in one of the two lists.
namespace CommandLine {

/// Exit statuses of every subcommand.
enum Status { Done = 0, Failed = 1, WrongUsage = 2 };

/// Runs one subcommand under a QCoreApplication; @p arguments come without the program's and the command's name.
using Run = int (*)(const QStringList& arguments);

struct Command {
    Run run;
    const char* usage;   ///< one or more lines, without "usage:"
    const char* summary; ///< one line
};

using Commands = std::map<QString, Command>;

/// Those that neither draw nor look into pictures: the program itself knows them, and is linked without Qt Gui.
[[nodiscard]] const Commands& plainCommands();
/// All subcommands by name.
[[nodiscard]] const Commands& allCommands();

/// Runs the subcommand that the program's first argument names if it is one of @p known, under a QCoreApplication and
/// with the services of the command line. @return its exit status; nothing when it is none of them.
[[nodiscard]] std::optional<int> runOneOf(const Commands& known, int argc, char** argv);
/// The same for all of them, and for what is asked about them. @return nothing when the window is wanted.
[[nodiscard]] std::optional<int> runCommand(int argc, char** argv);

/// Connects this process to the sound server, or to a private one when none answers. For subcommands that record or
/// play. @return false, with the reason in @p why, when there is no sound server at all.
[[nodiscard]] bool startAudio(QString& why);

/// The answer of the running window to a request of one line; nothing when no window runs or none answers.
[[nodiscard]] std::optional<QByteArray> askWindow(const QByteArray& request);

/// "sonaphex: what went wrong: why" on standard error. @return Failed
int fail(const QString& what);
/// The same, with the command's usage. @return WrongUsage
int wrongUsage(const Command& command, const QString& what);
/// One line (or a JSON document) on standard output, flushed.
void print(const QString& line);
/// What a run ends with after its last output: @p status, or Failed, with a line on standard error, when all was well
/// but for output that could not be written.
[[nodiscard]] int ended(int status);

} // namespace CommandLine
