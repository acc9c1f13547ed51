// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "CommandLine/CommandLine.h"

#include "CaptureComputerAudio/KextInstallControl.h"
#include "CommandLine/ControlCommand.h"
#include "CommandLine/ConvertCommand.h"
#include "CommandLine/DevicesCommand.h"
#include "CommandLine/DriverCommand.h"
#include "CommandLine/LibraryCommand.h"
#include "CommandLine/RecordCommand.h"
#include "CommandLine/TagCommand.h"
#include "CommandLine/WaveformCommand.h"
#include "Platform/Foundation/Bundle.h"
#include "Platform/Foundation/RunningProgram.h"
#include "Platform/Foundation/Services.h"
#include "Platform/LinuxServices.h"

#include <QCoreApplication>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace CommandLine {

namespace {
Platform::LinuxServices* installed = nullptr; // while runCommand() runs one; tests bring services of their own
}

const std::map<QString, Command>& commands() {
    // clang-format off
    static const std::map<QString, Command> all{
        {u"control"_s, controlCommand},
        {u"convert"_s, convertCommand},
        {u"devices"_s, devicesCommand},
        {u"driver"_s, driverCommand},
        {u"library"_s, libraryCommand},
        {u"record"_s, recordCommand},
        {u"tag"_s, tagCommand},
        {u"waveform"_s, waveformCommand},
    };
    // clang-format on
    return all;
}

std::optional<int> runCommand(int argc, char** argv) {
    if (argc < 2)
        return {};
    const auto name = QString::fromLocal8Bit(argv[1]);
    if (name == u"help"_s || name == u"--help"_s || name == u"-h"_s) {
        std::printf("usage: sonaphex                    opens the window\n");
        for (const auto& [word, command] : commands())
            std::printf("       sonaphex %s\n           %s\n", command.usage, command.summary);
        return Done;
    }
    if (name == u"--version"_s) {
        std::printf("sonaphex %s\n", SONAPHEX_VERSION);
        return Done;
    }
    const auto found = commands().find(name);
    if (found == commands().end()) {
        if (name.startsWith(u'-'))
            return {};
        std::fprintf(stderr, "sonaphex: %s: no such command (see sonaphex help)\n", argv[1]);
        return WrongUsage;
    }
    QCoreApplication application(argc, argv);
    Platform::LinuxServices services;
    services.install(Platform::LinuxServices::Mode::CommandLine);
    installed = &services;
    const int status = found->second.run(QCoreApplication::arguments().mid(2));
    installed = nullptr;
    return status;
}

bool startAudio(QString& why) {
    if (!installed)
        return Platform::services().audioHardware != nullptr;
    if (!installed->startAudio(why))
        return false;
    KextInstallControl::loadIfInstalled(); // before the devices are listed
    return true;
}

std::optional<QByteArray> askWindow(const QByteArray& request) {
    const auto running = Platform::RunningProgram::create(Platform::services().bundle->bundleIdentifier());
    QByteArray answer;
    if (!running->ask(request, answer))
        return std::nullopt;
    return answer;
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
