// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "CommandLine/CommandLine.h"

#include "CommandLine/CommandHelp.h"
#include "Platform/Foundation/Bundle.h"
#include "Platform/Foundation/RunningProgram.h"
#include "Platform/Foundation/Services.h"
#include "Platform/Foundation/Translations.h"

#include <QCoreApplication>

#include <cerrno>
#include <cstdio>
#include <cstring>

using namespace Qt::StringLiterals;

namespace CommandLine {

namespace {
int outputError = 0; // errno of the first output that failed
} // namespace

std::optional<int> runOneOf(const Commands& known, int argc, char** argv, InstallServices install) {
    if (argc < 2)
        return {};
    const auto found = known.find(QString::fromLocal8Bit(argv[1]));
    if (found == known.end())
        return {};
    const Command& command = *found->second;
    QCoreApplication application(argc, argv);
    Platform::Translations::install();
    if (argc > 2 && (std::strcmp(argv[2], "--help") == 0 || std::strcmp(argv[2], "-h") == 0)) {
        print(CommandHelp::whole(command).trimmed());
        return ended(Done);
    }
    const auto services = install();
    return ended(command.run(QCoreApplication::arguments().mid(2)));
}

std::optional<QByteArray> askWindow(const QByteArray& request) {
    QByteArray answer;
    if (!Platform::RunningProgram::askOther(Platform::services().bundle->bundleIdentifier(), request, answer))
        return std::nullopt;
    return answer;
}

int fail(const QString& what) {
    std::fprintf(stderr, "sonaphex: %s\n", qUtf8Printable(what));
    return Failed;
}

int wrongUsage(const Command& command, const QString& what) {
    std::fprintf(stderr, "sonaphex: %s\n", qUtf8Printable(what));
    std::fprintf(stderr, "%s\n", qUtf8Printable(CommandHelp::usage(command)));
    return WrongUsage;
}

bool print(const QString& line) {
    if (std::fprintf(stdout, "%s\n", qUtf8Printable(line)) >= 0 && std::fflush(stdout) == 0)
        return true;
    outputError = errno;
    return false;
}

int ended(int status) {
    if (std::fflush(stdout) != 0)
        outputError = errno;
    if (status != Done || (outputError == 0 && std::ferror(stdout) == 0))
        return status;
    // As with "sonaphex library | head -1": the reader closed the pipe on purpose.
    if (outputError == EPIPE)
        return Failed;
    return fail(QCoreApplication::translate("CommandLine", "standard output could not be written: %1")
                    .arg(qt_error_string(outputError)));
}

} // namespace CommandLine
