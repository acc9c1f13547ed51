// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCoreApplication>
#include <QStringList>

#include <initializer_list>
#include <map>
#include <vector>

namespace CommandLine {

/// Runs one subcommand under a QCoreApplication; @p arguments exclude the program's and the command's name.
using Run = int (*)(const QStringList& arguments);

/// One option of a subcommand. The parser, `--help`, the manual page and the completions all read this declaration.
struct Option {
    const char* name;           ///< without the dashes: "from"
    const char* value;          ///< its value, as help shows it: "S", "NAME|none"; empty for a flag
    const char* sentence;       ///< what it does, including the unit of its value
    const char* byDefault = ""; ///< the default, as help shows it; empty when there is none
};

inline constexpr Option kJsonOption{"json", "",
                                    QT_TRANSLATE_NOOP("CommandLine", "Print one JSON document instead of text.")};

/// An example of the manual page: the arguments after the program's name, and what they do.
struct Example {
    const char* arguments;
    const char* sentence;
};

struct Command {
    const char* name;
    const char* operands; ///< operands, as help shows them: "SRC DST"
    const char* summary;  ///< one sentence, without its full stop
    std::vector<Option> options;
    std::vector<Example> examples;
    Run run;
};

/// By name.
using Commands = std::map<QString, const Command*>;
[[nodiscard]] Commands byName(std::initializer_list<const Command*> commands);

} // namespace CommandLine
