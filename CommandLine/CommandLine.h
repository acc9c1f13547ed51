// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

#include <initializer_list>
#include <map>
#include <optional>
#include <vector>

/// The subcommands of the program. Each lives in a file of its own and has its name in one of the two lists.
namespace CommandLine {

/// Exit statuses of every subcommand.
enum Status { Done = 0, Failed = 1, WrongUsage = 2 };

/// Runs one subcommand under a QCoreApplication; @p arguments come without the program's and the command's name.
using Run = int (*)(const QStringList& arguments);

/// One option of a subcommand. The parser, `--help`, the manual page and the completions all read this declaration.
struct Option {
    const char* name;           ///< without the dashes: "from"
    const char* value;          ///< what follows it, as help shows it: "S", "NAME|none"; empty when nothing follows
    const char* sentence;       ///< what it does, with the unit of its value
    const char* byDefault = ""; ///< what holds without it, as help shows it; empty when nothing does
};

inline constexpr Option kJsonOption{"json", "", "Print one JSON document instead of lines for people."};

/// An example of the manual page: the arguments after the program's name, and what they do.
struct Example {
    const char* arguments;
    const char* sentence;
};

struct Command {
    const char* name;
    const char* operands; ///< what follows the name, as help shows it: "SRC DST"
    const char* summary;  ///< one sentence, without its full stop
    std::vector<Option> options;
    std::vector<Example> examples;
    Run run;
};

/// By name.
using Commands = std::map<QString, const Command*>;
[[nodiscard]] Commands byName(std::initializer_list<const Command*> commands);

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
/// One line (or a JSON document) on standard output, flushed. @return false when it could not be written
bool print(const QString& line);
/// The exit status after the last output: @p status, or Failed when all was well except that output could not be
/// written. That is said on standard error, but not when the reader closed its end of a pipe.
[[nodiscard]] int ended(int status);

} // namespace CommandLine
