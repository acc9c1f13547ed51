// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "CommandLine/CommandLine.h"

#include <cstdio>

namespace CommandLine {

const std::map<QString, Command>& commands() {
    static const std::map<QString, Command> all{};
    return all;
}

int fail(const QString& what) {
    std::fprintf(stderr, "sonaphex: %s\n", qUtf8Printable(what));
    return Failed;
}

int wrongUsage(const QString& command, const QString& what) {
    std::fprintf(stderr, "sonaphex: %s\n", qUtf8Printable(what));
    const auto found = commands().find(command);
    if (found != commands().end())
        std::fprintf(stderr, "usage: sonaphex %s\n", found->second.usage);
    return WrongUsage;
}

void print(const QString& line) {
    std::fprintf(stdout, "%s\n", qUtf8Printable(line));
    std::fflush(stdout);
}

} // namespace CommandLine
