// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The manual page and the completions are generated from the commands' declarations; man and the shells accept them.
#include "CommandLine/CommandHelp.h"
#include "CommandLine/CommandLine.h"
#include "tests/support/RunTool.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace {

class ManualCommandTest : public testing::Test {
protected:
    [[nodiscard]] QString file(const QString& name, const QStringList& command) const {
        const auto printed = runTool(QStringLiteral(SONAPHEX_PROGRAM), command);
        EXPECT_EQ(printed.status, 0) << printed.errors.constData();
        QFile out(folder_.filePath(name));
        EXPECT_TRUE(out.open(QIODevice::WriteOnly));
        out.write(printed.output);
        return out.fileName();
    }

    /// The completions that bash offers for the last of these words.
    [[nodiscard]] QStringList bashOffers(const QString& completions, const QStringList& words) const {
        QString script = u"source \"$1\"; shift; COMP_WORDS=(\"$@\"); COMP_CWORD=$(($# - 1)); _sonaphex; "
                         "printf '%s\\n' \"${COMPREPLY[@]}\""_s;
        const auto result = runTool(u"bash"_s, QStringList{u"-c"_s, script, u"bash"_s, completions} + words);
        EXPECT_EQ(result.status, 0) << result.errors.constData();
        return QString::fromUtf8(result.output).split(u'\n', Qt::SkipEmptyParts);
    }

    QTemporaryDir folder_;
};

} // namespace

TEST_F(ManualCommandTest, EveryCommandDescribesItselfAndItsOptions) {
    for (const auto& [name, command] : CommandLine::allCommands()) {
        EXPECT_STRNE(command->summary, "") << qPrintable(name);
        EXPECT_FALSE(command->examples.empty()) << qPrintable(name);
        for (const auto& example : command->examples)
            EXPECT_TRUE(QString::fromUtf8(example.arguments).startsWith(name)) << example.arguments;
        for (const auto& option : command->options) {
            const QString sentence = QString::fromUtf8(option.sentence);
            EXPECT_TRUE(sentence.size() > 10 && sentence.endsWith(u'.')) << qPrintable(name) << " --" << option.name;
        }
        for (const QString& line : CommandHelp::usage(*command).split(u'\n'))
            EXPECT_LE(line.size(), 100) << qPrintable(line);
    }
}

TEST_F(ManualCommandTest, ManualPageHasNoWarningAndListsEveryOption) {
    const QString page = file(u"sonaphex.1"_s, {u"manual"_s});
    const auto warnings = runTool(u"groff"_s, {u"-man"_s, u"-ww"_s, u"-z"_s, u"-Tutf8"_s, page});
    EXPECT_EQ(warnings.status, 0);
    EXPECT_EQ(warnings.errors, "");
    const auto shown = runTool(u"groff"_s, {u"-man"_s, u"-Tascii"_s, u"-P-cbou"_s, page});
    for (const auto& [name, command] : CommandLine::allCommands()) {
        EXPECT_TRUE(shown.output.contains("sonaphex " + name.toUtf8())) << qPrintable(name);
        for (const auto& option : command->options)
            EXPECT_TRUE(shown.output.contains(QByteArray("--") + option.name)) << option.name;
    }
}

TEST_F(ManualCommandTest, BashCompletesCommandsOptionsAndValues) {
    const QString completions = file(u"sonaphex.bash"_s, {u"completions"_s, u"bash"_s});
    EXPECT_EQ(bashOffers(completions, {u"sonaphex"_s, u"rec"_s}), QStringList{u"record"_s});
    EXPECT_EQ(bashOffers(completions, {u"sonaphex"_s, u"record"_s, u"--fi"_s}), QStringList{u"--filter"_s});
    EXPECT_EQ(bashOffers(completions, {u"sonaphex"_s, u"convert"_s, u"--type"_s, u""_s}),
              (QStringList{u"wav"_s, u"m4a"_s, u"caf"_s}));
    EXPECT_EQ(bashOffers(completions, {u"sonaphex"_s, u"driver"_s, u"re"_s}), QStringList{u"remove"_s});
    EXPECT_TRUE(bashOffers(completions, {u"sonaphex"_s, u"tag"_s, completions.chopped(2)}).contains(completions));
}

TEST_F(ManualCommandTest, ZshAndFishAcceptTheirCompletions) {
    const QString zsh = file(u"_sonaphex"_s, {u"completions"_s, u"zsh"_s});
    const auto zshSays = runTool(u"zsh"_s, {u"-n"_s, zsh});
    EXPECT_EQ(zshSays.status, 0) << zshSays.errors.constData();
    const QString fish = file(u"sonaphex.fish"_s, {u"completions"_s, u"fish"_s});
    const auto offered =
        runTool(u"fish"_s, {u"--private"_s, u"-c"_s, u"source $argv[1]; complete -C 'sonaphex convert --ty'"_s, fish});
    EXPECT_EQ(offered.status, 0) << offered.errors.constData();
    EXPECT_TRUE(offered.output.startsWith("--type")) << offered.output.constData() << offered.errors.constData();
}

TEST_F(ManualCommandTest, RefusesAnUnknownShell) {
    const auto result = runTool(QStringLiteral(SONAPHEX_PROGRAM), {u"completions"_s, u"csh"_s});
    EXPECT_EQ(result.status, 2);
    EXPECT_TRUE(result.errors.contains("bash, zsh, fish")) << result.errors.constData();
}
