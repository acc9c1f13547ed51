// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "CommandLine/Subcommand.h"
#include <QByteArray>
#include <QString>

#include <memory>
#include <optional>

/// The subcommands of the program. Each has a source file of its own and is registered in one of the two lists.
namespace CommandLine {

/// Exit statuses of every subcommand.
enum Status { Done = 0, Failed = 1, WrongUsage = 2 };

/// The commands that only work on files and on the library. They are in the program itself, which is linked without the
/// libraries for sound, discs and the desktop: see Platform::FileServices.
[[nodiscard]] const Commands& fileCommands();
/// The commands that neither draw nor read images, those of fileCommands() among them. They are in a module that is
/// linked without Qt Gui.
[[nodiscard]] const Commands& plainCommands();
/// All subcommands by name.
[[nodiscard]] const Commands& allCommands();

/// Installs services until the result is destroyed.
using InstallServices = std::shared_ptr<void> (*)();
/// Runs the subcommand named by the program's first argument if it is one of @p known, under a QCoreApplication and
/// with the services that @p install installs. @return its exit status; nothing when it is not known.
[[nodiscard]] std::optional<int> runOneOf(const Commands& known, int argc, char** argv, InstallServices install);
/// Like runOneOf() for all subcommands, and for --help. @return nothing when the window is wanted.
[[nodiscard]] std::optional<int> runCommand(int argc, char** argv);

/// The running window's answer to a request of one line; nothing when no window runs or it does not answer.
[[nodiscard]] std::optional<QByteArray> askWindow(const QByteArray& request);

/// Prints "sonaphex: what went wrong: why" on standard error. @return Failed
int fail(const QString& what);
/// Like fail(), followed by the command's usage. @return WrongUsage
int wrongUsage(const Command& command, const QString& what);
/// One line (or a JSON document) on standard output, flushed. @return false when it could not be written
bool print(const QString& line);
/// The exit status after the last output: @p status, or Failed when output could not be written. That failure is
/// reported on standard error, unless the reader closed its end of a pipe.
[[nodiscard]] int ended(int status);

} // namespace CommandLine
