// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "CommandLine/ConvertCommand.h"
#include "CommandLine/WaveformCommand.h"
#include "Platform/Foundation/Services.h"
#include "tests/CommandLine/CommandRun.h"
#include "tests/fakes/FakeSourceFiles.h"
#include "tests/support/FileContent.h"

#include <QDir>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QTemporaryDir>
#include <csignal>
#include <gtest/gtest.h>
#include <sys/stat.h>

using namespace Qt::StringLiterals;
using FileContent::get;
using FileContent::put;

namespace {

class ConvertCommandTest : public testing::Test {
protected:
    ConvertCommandTest() {
        Platform::services().mediaFiles = &files;
        files.addSource(source, 4, [](int, std::int64_t frame) { return float(frame % 100) / 100; });
    }

    [[nodiscard]] QString at(const QString& name) const { return folder.filePath(name); }
    [[nodiscard]] QStringList everything() const { return FileContent::namesIn(folder.path()); }
    int run(const CommandLine::Command& command, const QStringList& arguments) {
        const CommandRun ran(command, arguments);
        out = ran.out;
        err = ran.err;
        return ran.status;
    }
    int convert(const QStringList& arguments) { return run(CommandLine::convertCommand, arguments); }
    int waveform(const QStringList& arguments) { return run(CommandLine::waveformCommand, arguments); }

    Platform::ServicesScope scope;
    FakeSourceFiles files;
    QTemporaryDir folder;
    QString source = at(u"source.wav"_s);
    QString target = at(u"target.m4a"_s);
    QString out;
    QString err;
};

TEST_F(ConvertCommandTest, CopiesTheRangeIntoTheTarget) {
    EXPECT_EQ(convert({source, target, u"--type"_s, u"m4a"_s, u"--from"_s, u"1"_s, u"--to"_s, u"3"_s}),
              CommandLine::Done);
    EXPECT_EQ(files.last().type, kAudioFileM4AType);
    EXPECT_EQ(files.last().samples.at(0).size(), 173U * 512);
    EXPECT_EQ(everything(), (QStringList{u"source.wav"_s, u"target.m4a"_s}));
    EXPECT_EQ(out + err, QString());
}

TEST_F(ConvertCommandTest, ChoosesTheTypeByTheNameWhenNoneIsGiven) {
    EXPECT_EQ(convert({source, at(u"a.caf"_s)}), CommandLine::Done);
    EXPECT_EQ(files.last().type, kAudioFileCAFType);
    EXPECT_EQ(convert({source, at(u"a.WAV"_s)}), CommandLine::Done);
    EXPECT_EQ(files.last().type, kAudioFileWAVEType);
    EXPECT_EQ(convert({source, at(u"a.xyz"_s)}), CommandLine::WrongUsage);
}

TEST_F(ConvertCommandTest, FadesAndRepeatsWhenALengthIsGiven) {
    EXPECT_EQ(convert({source, target, u"--from"_s, u"0"_s, u"--to"_s, u"2"_s, u"--length"_s, u"5"_s, u"--fade-in"_s,
                       u"1"_s}),
              CommandLine::Done);
    EXPECT_EQ(files.last().samples.at(0).size(), 431U * 512);
    EXPECT_EQ(files.last().samples.at(0).at(50), 0.0F);
}

TEST_F(ConvertCommandTest, WritesNoEmptyFileWhenTheRangeStartsBeyondTheEnd) {
    source = at(u"50%2%1.wav"_s);
    files.addSource(source, 4, [](int, std::int64_t) { return 0.5F; });
    put(target, "precious");
    for (const auto& fade : {QStringList{}, QStringList{u"--fade-in"_s, u"1"_s}}) {
        EXPECT_EQ(convert(QStringList{source, target, u"--overwrite"_s, u"--from"_s, u"4"_s} + fade),
                  CommandLine::Failed);
        EXPECT_EQ(err, u"sonaphex: "_s + source + u": it ends at second 4, there is nothing from second 4 on\n"_s);
    }
    EXPECT_EQ(get(target), "precious");
    EXPECT_EQ(convert({source, target, u"--overwrite"_s, u"--from"_s, u"3.9"_s}), CommandLine::Done);
}

TEST_F(ConvertCommandTest, NeverReplacesAPipe) {
    ASSERT_EQ(::mkfifo(QFile::encodeName(target).constData(), 0600), 0);
    EXPECT_EQ(convert({source, target, u"--overwrite"_s}), CommandLine::Failed);
    EXPECT_EQ(err.count(u'\n'), 1);
    EXPECT_FALSE(QFileInfo(target).isFile());
}

TEST_F(ConvertCommandTest, RefusesWrongUsageAndPrintsTheUsage) {
    for (const auto& arguments :
         {QStringList{}, QStringList{source}, QStringList{source, target, u"third"_s},
          QStringList{source, target, u"--type"_s, u"ogg"_s}, QStringList{source, target, u"--from"_s, u"abc"_s},
          QStringList{source, target, u"--from"_s, u"-1"_s}, QStringList{source, target, u"--from"_s, u"nan"_s},
          QStringList{source, target, u"--unknown"_s}, QStringList{source, target, u"--to"_s, u"0.05"_s},
          QStringList{source, target, u"--from"_s, u"3"_s, u"--to"_s, u"2"_s}}) {
        EXPECT_EQ(convert(arguments), CommandLine::WrongUsage) << qPrintable(arguments.join(u' '));
        EXPECT_TRUE(err.startsWith(u"sonaphex: "_s));
    }
    EXPECT_FALSE(QFile::exists(target));
}

TEST_F(ConvertCommandTest, KeepsAnExistingTargetUnlessForced) {
    put(target, "precious");
    EXPECT_EQ(convert({source, target}), CommandLine::Failed);
    EXPECT_EQ(get(target), "precious");
    EXPECT_EQ(err.count(u'\n'), 1);
    EXPECT_EQ(convert({source, target, u"--overwrite"_s}), CommandLine::Done);
    EXPECT_NE(get(target), "precious");
    EXPECT_EQ(everything().size(), 2);
}

TEST_F(ConvertCommandTest, LeavesNothingBehindWhenTheSourceCannotBeRead) {
    const auto text = at(u"notes.txt"_s);
    put(text, "no sound in here");
    put(target, "precious");
    for (const auto& bad : {text, at(u"missing.wav"_s)}) {
        EXPECT_EQ(convert({bad, target, u"--overwrite"_s}), CommandLine::Failed);
        EXPECT_EQ(err.count(u'\n'), 1) << qPrintable(err);
        EXPECT_TRUE(err.contains(bad));
    }
    EXPECT_EQ(get(target), "precious");
    EXPECT_EQ(everything(), (QStringList{u"notes.txt"_s, u"source.wav"_s, u"target.m4a"_s}));
}

TEST_F(ConvertCommandTest, ReportsAFullDiskAndRemovesTheIncompleteFile) {
    files.sources[source].signal = [this](int, std::int64_t frame) {
        if (frame > 50000)
            files.last().writeStatus = -34;
        return 0.5F;
    };
    put(target, "precious");
    EXPECT_EQ(convert({source, target, u"--overwrite"_s}), CommandLine::Failed);
    EXPECT_EQ(err, u"sonaphex: No space left on device\n"_s);
    EXPECT_EQ(get(target), "precious");
    EXPECT_EQ(everything(), (QStringList{u"source.wav"_s, u"target.m4a"_s}));
}

TEST_F(ConvertCommandTest, StopsAtAnInterruptAndLeavesNoIncompleteFile) {
    files.sources[source].signal = [](int channel, std::int64_t frame) {
        if (channel == 0 && frame == 60000)
            std::raise(SIGINT);
        return 0.5F;
    };
    put(target, "precious");
    EXPECT_EQ(convert({source, target, u"--overwrite"_s}), CommandLine::Failed);
    EXPECT_LT(files.last().samples.at(0).size(), 100000U);
    EXPECT_EQ(get(target), "precious");
    EXPECT_EQ(everything(), (QStringList{u"source.wav"_s, u"target.m4a"_s}));
}

TEST_F(ConvertCommandTest, RefusesAFolderAsTargetAndAMissingOne) {
    EXPECT_EQ(convert({source, folder.path(), u"--type"_s, u"wav"_s, u"--overwrite"_s}), CommandLine::Failed);
    EXPECT_EQ(convert({source, at(u"missing/a.wav"_s)}), CommandLine::Failed);
    EXPECT_FALSE(QFile::exists(at(u"missing"_s)));
}

TEST_F(ConvertCommandTest, TakesNamesLiterally) {
    const auto odd = at(u"-o $(id) %s;'\"\u00e9\n.wav"_s);
    EXPECT_EQ(convert({u"--type"_s, u"wav"_s, u"--"_s, source, odd}), CommandLine::Done);
    EXPECT_TRUE(QFile::exists(odd));
}

TEST_F(ConvertCommandTest, PrintsTenValuesASecondThatReadBackExactly) {
    EXPECT_EQ(waveform({source}), CommandLine::Done);
    const auto lines = out.split(u'\n', Qt::SkipEmptyParts);
    ASSERT_EQ(lines.size(), 40);
    EXPECT_EQ(lines[0].toFloat(), float(4096 % 100) / 100);
    EXPECT_EQ(waveform({source, u"--json"_s}), CommandLine::Done);
    const auto document = QJsonDocument::fromJson(out.toUtf8());
    EXPECT_EQ(document[u"values"_s].toArray().size(), 40);
    EXPECT_EQ(float(document[u"values"_s].toArray()[0].toDouble()), float(4096 % 100) / 100);
    EXPECT_EQ(document[u"valuesPerSecond"_s].toInt(), 10);
}

TEST_F(ConvertCommandTest, DrawsTenPointsASecond) {
    const auto picture = at(u"picture.png"_s);
    EXPECT_EQ(waveform({source, u"--png"_s, picture}), CommandLine::Done);
    EXPECT_EQ(QImage(picture).size(), QSize(40, 200));
    EXPECT_EQ(waveform({source, u"--png"_s, picture}), CommandLine::Failed) << "an existing picture is kept";
    EXPECT_EQ(waveform({source, u"--png"_s, picture, u"--overwrite"_s}), CommandLine::Done);
}

TEST_F(ConvertCommandTest, DrawsNoPictureOfLessThanASecond) {
    files.sources[source].frames = 44100;
    EXPECT_EQ(waveform({source, u"--png"_s, at(u"picture.png"_s)}), CommandLine::Failed);
    EXPECT_EQ(everything(), QStringList{u"source.wav"_s});
    EXPECT_EQ(waveform({at(u"missing.wav"_s)}), CommandLine::Failed);
    EXPECT_EQ(waveform({}), CommandLine::WrongUsage);
}

} // namespace
