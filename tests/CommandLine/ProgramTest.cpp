// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Options and errors that the program handles before it runs a subcommand.
#include "tests/support/Environment.h"
#include "tests/support/Mpeg4Files.h"
#include "tests/support/RunTool.h"

#include <gtest/gtest.h>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {
ToolResult sonaphex(const QStringList& arguments) {
    return runTool(QStringLiteral(SONAPHEX_PROGRAM), arguments);
}
} // namespace

TEST(Program, PrintsItsVersionAndItsCommands) {
    const auto version = sonaphex({u"--version"_s});
    EXPECT_EQ(version.status, 0);
    EXPECT_EQ(version.output, "sonaphex " SONAPHEX_VERSION "\n");
    for (const QString& asked : {u"--help"_s, u"-h"_s, u"help"_s}) {
        const auto help = sonaphex({asked});
        EXPECT_EQ(help.status, 0);
        EXPECT_TRUE(help.output.contains("\n  record ")) << help.output.data();
        EXPECT_TRUE(help.output.contains("\n  devices "));
    }
    for (const QString& command : {u"record"_s, u"tag"_s})
        for (const QString& asked : {u"--help"_s, u"-h"_s}) {
            const auto help = sonaphex({command, asked});
            EXPECT_EQ(help.status, 0) << help.errors.data();
            EXPECT_TRUE(help.output.startsWith("usage: sonaphex " + command.toUtf8())) << help.output.data();
            EXPECT_TRUE(help.output.contains("\noptions:\n")) << help.output.data();
            EXPECT_TRUE(help.output.contains("\n  --json ")) << help.output.data();
        }
}

TEST(Program, FailsWhenItsOutputCannotBeWritten) {
    const QTemporaryDir folder;
    const EnvironmentScope config("XDG_CONFIG_HOME", folder.path().toUtf8());
    const QString file = folder.filePath(u"a.m4a"_s);
    ASSERT_TRUE(Mpeg4Files::make(file));
    for (const QString& arguments : {u"library"_s, u"library --json"_s, u"tag a.m4a"_s, u"tag a.m4a --json"_s,
                                     u"tag a.m4a --title x --json"_s, u"help"_s, u"record --help"_s, u"--version"_s}) {
        QProcess process;
        process.setWorkingDirectory(folder.path());
        process.setStandardOutputFile(u"/dev/full"_s);
        process.start(QStringLiteral(SONAPHEX_PROGRAM), arguments.split(u' '));
        ASSERT_TRUE(process.waitForFinished(60000));
        EXPECT_EQ(process.exitCode(), 1) << qPrintable(arguments);
        EXPECT_EQ(process.readAllStandardError(),
                  "sonaphex: standard output could not be written: No space left on device\n")
            << qPrintable(arguments);
    }
    // When the failure was already reported, nothing more is printed; when there is no output, the command succeeded.
    for (const auto& [arguments, status] : std::map<QStringList, int>{
             {{u"tag"_s, u"missing"_s}, 1}, {{u"tag"_s}, 2}, {{u"tag"_s, file, u"--title"_s, u"x"_s}, 0}}) {
        QProcess process;
        process.setStandardOutputFile(u"/dev/full"_s);
        process.start(QStringLiteral(SONAPHEX_PROGRAM), arguments);
        ASSERT_TRUE(process.waitForFinished(60000));
        EXPECT_EQ(process.exitCode(), status);
        EXPECT_FALSE(process.readAllStandardError().contains("standard output"));
    }
}

TEST(Program, PrintsNoErrorWhenTheReaderClosedThePipe) {
    const QTemporaryDir folder;
    const EnvironmentScope config("XDG_CONFIG_HOME", folder.path().toUtf8());
    int ends[2];
    ASSERT_EQ(pipe(ends), 0);
    close(ends[0]);
    QProcess process;
    process.setChildProcessModifier([&] { dup2(ends[1], STDOUT_FILENO); });
    process.start(QStringLiteral(SONAPHEX_PROGRAM), {u"library"_s});
    ASSERT_TRUE(process.waitForFinished(60000));
    close(ends[1]);
    EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(process.exitCode(), 1);
    EXPECT_EQ(process.readAllStandardError(), QByteArray());
}

/// Expects that the file is linked with none of the libraries.
void expectLinkedWithout(const QString& file, std::initializer_list<const char*> unwanted) {
    const auto dynamic = runTool(u"readelf"_s, {u"-d"_s, file});
    ASSERT_EQ(dynamic.status, 0) << dynamic.errors.data();
    ASSERT_TRUE(dynamic.output.contains("[libQt6Core.so")) << dynamic.output.data();
    for (const char* library : unwanted)
        EXPECT_FALSE(dynamic.output.contains(library)) << library;
}

TEST(Program, LoadsNoWindowOrContainerLibraryToRecord) {
    expectLinkedWithout(QStringLiteral(SONAPHEX_BIN_DIR "/Resources/SonaphexCommands.so"),
                        {"libQt6Gui", "libQt6Widgets", "libQt6Svg", "libavformat", "libavcodec"});
}

// In a build in batches, a source that is missing in cmake/ProgramSources.txt makes this fail.
TEST(Program, LoadsNoLibraryForSoundDiscsOrTheDesktopToTag) {
    expectLinkedWithout(QStringLiteral(SONAPHEX_PROGRAM),
                        {"libQt6Gui", "libQt6DBus", "libQt6Network", "libavformat", "libavcodec", "libavutil",
                         "libswresample", "libpipewire", "libburn", "libudev", "libxcb"});
}

// Exported functions would be looked up by name, which slows down every start.
TEST(Program, FindsOneFunctionInEachModule) {
    for (const auto& [module, entry] : std::map<QString, QByteArray>{
             {u"SonaphexCommands.so"_s, "sonaphexRunCommand"}, {u"SonaphexDesktop.so"_s, "sonaphexDesktopMain"}}) {
        const auto symbols = runTool(
            u"readelf"_s, {u"--dyn-syms"_s, u"--wide"_s, QStringLiteral(SONAPHEX_BIN_DIR "/Resources/") + module});
        ASSERT_EQ(symbols.status, 0) << symbols.errors.data();
        EXPECT_TRUE(symbols.output.contains(entry)) << qPrintable(module);
        EXPECT_FALSE(symbols.output.contains("_ZN8Platform")) << qPrintable(module);
    }
}

TEST(Program, ReportsAMissingWindowModule) {
    QTemporaryDir folder;
    const QString copy = folder.filePath(u"sonaphex"_s);
    ASSERT_TRUE(QFile::copy(QStringLiteral(SONAPHEX_PROGRAM), copy));
    const auto result = runTool(copy, {u"--help"_s});
    EXPECT_EQ(result.status, 1);
    EXPECT_TRUE(result.errors.startsWith("sonaphex: a part of the program is missing: ")) << result.errors.data();
    EXPECT_EQ(runTool(copy, {u"--version"_s}).output, "sonaphex " SONAPHEX_VERSION "\n");
}

TEST(Program, RefusesWrongUsageWithStatusTwoAndOneReason) {
    const auto unknown = sonaphex({u"recrod"_s});
    EXPECT_EQ(unknown.status, 2);
    EXPECT_TRUE(unknown.errors.startsWith("sonaphex: recrod: no such command")) << unknown.errors.data();
    const auto option = sonaphex({u"record"_s, u"--fro"_s, u"5"_s});
    EXPECT_EQ(option.status, 2);
    EXPECT_TRUE(option.errors.contains("usage: sonaphex record")) << option.errors.data();
    EXPECT_TRUE(option.output.isEmpty());
}
