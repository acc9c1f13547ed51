// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The language of the command line: chosen by the user, complete, and without effect on what scripts read.
#include "CommandLine/CommandHelp.h"
#include "CommandLine/CommandManual.h"
#include "Platform/Foundation/Services.h"
#include "Platform/Foundation/Translations.h"
#include "Source/Model/AudioRecordEntry.h"
#include "tests/CommandLine/CommandRun.h"
#include "tests/CommandLine/ProgramHome.h"
#include "tests/fakes/FakeBundle.h"
#include "tests/fakes/FakeUserDefaults.h"
#include "tests/support/Mpeg4Files.h"
#include "tests/support/TestLanguage.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// What a program in this locale prints.
struct Locale {
    explicit Locale(const QByteArray& all, const QByteArray& language = {})
        : all("LC_ALL", all), language("LANGUAGE", language) {}
    EnvironmentScope all;
    EnvironmentScope language;
};

ToolResult sonaphex(const QStringList& arguments) {
    return runTool(QStringLiteral(SONAPHEX_PROGRAM), arguments);
}

/// The translation of a text of the command line.
QString inGerman(const char* text) {
    const TestLanguage german(u"de"_s);
    return QCoreApplication::translate("CommandLine", text);
}

const char* const kListDevices = "list the input devices";

} // namespace

TEST(Language, IsChosenInTheOrderOfTheUsersWishes) {
    using Platform::Translations::choose;
    const QStringList available{u"de"_s, u"fr"_s, u"pt_BR"_s};
    EXPECT_EQ(choose({u"de-DE"_s, u"de"_s}, available), u"de"_s);
    EXPECT_EQ(choose({u"it-IT"_s, u"fr-CA"_s, u"de"_s}, available), u"fr"_s);
    EXPECT_EQ(choose({u"pt-BR"_s}, available), u"pt_BR"_s);
    EXPECT_EQ(choose({u"pt-PT"_s}, available), QString());
    EXPECT_EQ(choose({u"en-GB"_s, u"de"_s}, available), QString()) << "English comes first, and needs no file";
    EXPECT_EQ(choose({u"C"_s}, available), QString());
    EXPECT_EQ(choose({}, available), QString());
}

TEST(Language, FollowsTheLocaleAndLANGUAGE) {
    const QByteArray german = inGerman(kListDevices).toUtf8();
    ASSERT_NE(german, kListDevices) << "there is a German translation";
    const auto isGerman = [&german] { return sonaphex({u"help"_s}).output.contains(german); };
    const auto isEnglish = [] { return sonaphex({u"help"_s}).output.contains(kListDevices); };
    {
        const Locale locale("de_DE.UTF-8");
        EXPECT_TRUE(isGerman());
        EXPECT_TRUE(sonaphex({u"devices"_s, u"--help"_s}).output.contains(german));
        EXPECT_NE(sonaphex({u"nonsense"_s}).errors, "") << "an error is German too";
        EXPECT_FALSE(sonaphex({u"nonsense"_s}).errors.contains("no such command"));
    }
    {
        const Locale locale("C.UTF-8", "de");
        EXPECT_TRUE(isGerman());
    }
    {
        const Locale locale("fr_FR.UTF-8", "it:de:fr");
        EXPECT_TRUE(isGerman()) << "LANGUAGE comes before the locale, and its languages in their order";
    }
    {
        const Locale locale("de_DE.UTF-8", "en");
        EXPECT_TRUE(isEnglish());
    }
    {
        const Locale locale("C", "de");
        EXPECT_TRUE(isEnglish()) << "the locale C is English";
    }
    {
        const Locale locale("C.UTF-8");
        EXPECT_TRUE(isEnglish());
    }
}

TEST(Language, DoesNotChangeWhatScriptsRead) {
    const ProgramHome home;
    const QString file = home.filePath(u"a.m4a"_s);
    ASSERT_TRUE(Mpeg4Files::make(file));
    ProgramHome::store({QVariantMap{{AudioRecordEntry::NodeDataKey, u"k"_s},
                                    {AudioRecordEntry::Title, u"Title"_s},
                                    {AudioRecordEntry::AddDate, u"2026/11/21"_s},
                                    {AudioRecordEntry::Length, 1.5},
                                    {AudioRecordEntry::SavePath, file}}});
    const QList<QStringList> commands{{u"library"_s, u"--json"_s},
                                      {u"tag"_s, file, u"--json"_s},
                                      {u"waveform"_s, file, u"--json"_s},
                                      {u"driver"_s, u"status"_s, u"--json"_s},
                                      {u"manual"_s},
                                      {u"completions"_s, u"bash"_s},
                                      {u"completions"_s, u"zsh"_s},
                                      {u"completions"_s, u"fish"_s}};
    for (const QStringList& command : commands) {
        QByteArrayList outputs;
        for (const char* locale : {"C", "en_US.UTF-8", "de_DE.UTF-8", "ar_EG.UTF-8"}) {
            const Locale scope(locale);
            const ToolResult result = sonaphex(command);
            EXPECT_EQ(result.status, 0) << qPrintable(command.join(u' ')) << result.errors.constData();
            outputs << result.output;
        }
        EXPECT_EQ(outputs.count(outputs.first()), outputs.size()) << qPrintable(command.join(u' '));
    }
}

TEST(Language, NoHelpBypassesTranslation) {
    const MarkedTexts marks;
    for (const auto& [name, command] : CommandLine::allCommands()) {
        const QString help = CommandHelp::whole(*command);
        QStringList texts{QString::fromUtf8(command->summary)};
        for (const auto& option : command->options)
            texts << QString::fromUtf8(option.sentence);
        for (const auto& example : command->examples)
            texts << QString::fromUtf8(example.sentence);
        const QString unwrapped = help.simplified();
        for (const QString& text : std::as_const(texts))
            EXPECT_TRUE(unwrapped.contains(u'⟦' + text.simplified() + u'⟧')) << qPrintable(name + u": "_s + text);
        EXPECT_TRUE(help.startsWith(u'⟦')) << qPrintable(name);
        EXPECT_TRUE(command->options.empty() || help.contains(u"\n⟦options:⟧\n"_s)) << qPrintable(name);
        EXPECT_TRUE(help.contains(u"\n⟦examples:⟧\n"_s)) << qPrintable(name);
    }
    const QString overview = CommandHelp::overview(CommandLine::allCommands());
    QString left = MarkedTexts::unmarked(overview);
    for (const auto& [name, command] : CommandLine::allCommands())
        left.remove(name);
    EXPECT_EQ(left.simplified(), QString());
}

TEST(Language, NoErrorBypassesTranslation) {
    const MarkedTexts marks;
    const Platform::ServicesScope scope;
    FakeUserDefaults defaults;
    FakeBundle bundle;
    Platform::services().userDefaults = &defaults;
    Platform::services().bundle = &bundle;
    const QList<std::pair<const char*, QStringList>> wrong{
        {"burn", {}},
        {"burn", {u"--image"_s, u"x"_s, u"--drive"_s, u"y"_s, u"z"_s}},
        {"control", {}},
        {"control", {u"dance"_s}},
        {"convert", {}},
        {"convert", {u"a"_s, u"b.wav"_s, u"--from"_s, u"x"_s}},
        {"convert", {u"a"_s, u"b"_s, u"--type"_s, u"x"_s}},
        {"devices", {u"x"_s}},
        {"driver", {}},
        {"drives", {u"x"_s}},
        {"join", {u"a"_s}},
        {"join", {u"/none/a"_s, u"/none/b"_s, u"--to"_s, u"/none/c"_s}},
        {"library", {u"dance"_s}},
        {"library", {u"remove"_s}},
        {"record", {u"x"_s}},
        {"record", {u"--for"_s, u"0"_s}},
        {"record", {u"--nonsense"_s}},
        {"record", {u"--for"_s}},
        {"ringtone", {u"a"_s}},
        {"split", {u"a"_s}},
        {"tag", {}},
        {"tag", {u"a"_s, u"--year"_s, u"x"_s}},
        {"trim", {u"a"_s}},
        {"waveform", {}},
        {"manual", {u"x"_s}},
        {"completions", {}}};
    for (const auto& [name, arguments] : wrong) {
        const CommandRun run(*CommandLine::allCommands().at(QLatin1StringView(name)), arguments);
        const QString line = run.err.section(u'\n', 0, 0);
        EXPECT_NE(run.status, 0) << name;
        EXPECT_TRUE(line.startsWith(u"sonaphex: ⟦"_s) && line.endsWith(u'⟧')) << name << ": " << qPrintable(line);
    }
}
