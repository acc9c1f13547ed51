// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "CommandLine/CommandLine.h"

#include <QCommandLineParser>
#include <QStringList>

namespace CommandLine {

/// The arguments of one subcommand.
class Arguments {
public:
    /// Parses @p arguments by the options that @p command declares.
    Arguments(const QStringList& arguments, const Command& command);

    /// Why the arguments are invalid; empty when they are valid. The functions that read a number may set it.
    [[nodiscard]] QString problem() const { return problem_; }
    [[nodiscard]] QStringList positional() const { return parser_.positionalArguments(); }
    [[nodiscard]] bool isSet(const QString& option) const { return parser_.isSet(option); }
    [[nodiscard]] QString value(const QString& option) const { return parser_.value(option); }
    /// Of an option that may be given several times.
    [[nodiscard]] QStringList values(const QString& option) const { return parser_.values(option); }
    /// A time in seconds, 0 to 2^31 - 1; @p otherwise when the option is not set.
    [[nodiscard]] double seconds(const QString& option, double otherwise);
    /// A whole number, 0 to 2^31 - 1; @p otherwise when the option is not set.
    [[nodiscard]] int whole(const QString& option, int otherwise);

private:
    QCommandLineParser parser_;
    QString problem_;
};

} // namespace CommandLine
