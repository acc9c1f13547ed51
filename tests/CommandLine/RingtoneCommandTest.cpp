// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/Model/AudioRecordEntry.h"
#include "tests/CommandLine/ProgramHome.h"
#include "tests/Platform/Media/MediaTestSupport.h"
#include "tests/support/AudioCheck.h"
#include "tests/support/WaitFor.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <csignal>
#include <gtest/gtest.h>
#include <sys/resource.h>

using namespace Qt::StringLiterals;

namespace {

/// The real program with its own home folder.
class RingtoneCommand : public testing::Test {
protected:
    static ToolResult ringtone(const QStringList& arguments) {
        return ProgramHome::sonaphex(QStringList{u"ringtone"_s} + arguments);
    }
    static QJsonArray listed() { return ProgramHome::library()[u"ringtones"_s].toArray(); }
    [[nodiscard]] QString at(const QString& name) const { return home_.filePath(name); }
    [[nodiscard]] QString folder() const { return at(u"Music/"_s + ProgramHome::identifier); }
    [[nodiscard]] QStringList made() const {
        return QDir(folder()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden | QDir::System,
                                        QDir::Name);
    }
    [[nodiscard]] QStringList temporaries() const { return home_.temporaries(); }
    /// Some seconds of tones, different in the two channels.
    QString source(const QString& name = u"Track3.m4a"_s, double seconds = 12) const {
        MediaTest::writeFile(at(name), kAudioFileM4AType, MediaTest::tones(std::size_t(seconds * 44100)));
        return at(name);
    }
    static void store(const QVariantList& records, const QString& ringtoneFolder = {}) {
        Dictionary settings;
        if (!ringtoneFolder.isEmpty())
            settings.insert(PreferenceStore::PreferenceRingtoneSavePathKey, ringtoneFolder);
        ProgramHome::store(records, {}, settings);
    }

    ProgramHome home_;
};

TEST_F(RingtoneCommand, WritesTheRangeAndAddsItToTheLibrary) {
    const auto result = ringtone({source(), u"--from"_s, u"2"_s, u"--to"_s, u"10"_s, u"--json"_s});
    ASSERT_EQ(result.status, 0) << result.errors.constData();
    const auto printed = QJsonDocument::fromJson(result.output);
    EXPECT_EQ(printed[u"path"_s].toString(), folder() + u"/Ringtone.m4r"_s);
    EXPECT_EQ(printed[u"title"_s].toString(), u"Ringtone"_s) << "a title that begins with Track gives way to the name";
    EXPECT_EQ(printed[u"seconds"_s].toDouble(), 8);
    EXPECT_EQ(made(), QStringList{u"Ringtone.m4r"_s});
    EXPECT_TRUE(temporaries().isEmpty());
    const auto entries = listed();
    ASSERT_EQ(entries.size(), 1);
    EXPECT_EQ(entries[0][u"path"_s].toString(), folder() + u"/Ringtone.m4r"_s);
    EXPECT_EQ(entries[0][u"seconds"_s].toDouble(), 8);
}

TEST_F(RingtoneCommand, UsesTheLibrarysTagsButNotTheIdentity) {
    const QString path = source(u"song 50%1.m4a"_s);
    const QString key = path + u"_1.5"_s;
    store({Dictionary{{AudioRecordEntry::NodeDataKey, key},
                      {AudioRecordEntry::SavePath, path},
                      {AudioRecordEntry::Title, u"Morning"_s},
                      {AudioRecordEntry::Artist, u"Somebody"_s},
                      {AudioRecordEntry::Year, 1999},
                      {AudioRecordEntry::Length, 60.0},
                      {AudioRecordEntry::AddDate, u"2020/01/02"_s}}});
    ASSERT_EQ(ringtone({path, u"--from"_s, u"1"_s, u"--to"_s, u"8.5"_s}).status, 0);
    const auto entry = listed().at(0);
    EXPECT_EQ(entry[u"title"_s].toString(), u"Morning"_s);
    EXPECT_EQ(entry[u"artist"_s].toString(), u"Somebody"_s);
    EXPECT_EQ(entry[u"year"_s].toInt(), 1999);
    EXPECT_EQ(entry[u"added"_s].toString(), u"2020/01/02"_s);
    EXPECT_EQ(entry[u"seconds"_s].toDouble(), 7.5);
    EXPECT_NE(entry[u"key"_s].toString(), key);
}

TEST_F(RingtoneCommand, KeepsAnEarlierRingtone) {
    const QString path = source();
    ASSERT_EQ(ringtone({path, u"--from"_s, u"0"_s, u"--to"_s, u"6"_s}).status, 0);
    QFile first(folder() + u"/Ringtone.m4r"_s);
    ASSERT_TRUE(first.open(QIODevice::ReadOnly));
    const QByteArray before = first.readAll();
    ASSERT_EQ(ringtone({path, u"--from"_s, u"4"_s, u"--to"_s, u"12"_s}).status, 0);
    EXPECT_EQ(made(), (QStringList{u"Ringtone.m4r"_s, u"Ringtone1.m4r"_s}));
    first.seek(0);
    EXPECT_EQ(first.readAll(), before);
    EXPECT_EQ(listed().size(), 2);
}

TEST_F(RingtoneCommand, WritesTheFadesIntoTheFile) {
    const QString path = source(u"Track3.m4a"_s, 32);
    ASSERT_EQ(
        ringtone({path, u"--from"_s, u"10"_s, u"--to"_s, u"30"_s, u"--fade-in"_s, u"4"_s, u"--fade-out"_s, u"6"_s})
            .status,
        0);
    const auto original = AudioCheck::decodedByFfmpeg(path);
    ASSERT_EQ(original.size(), 2U);
    for (const auto& decoded : {AudioCheck::decodedByFfmpeg(folder() + u"/Ringtone.m4r"_s),
                                AudioCheck::decodedByFaad(folder() + u"/Ringtone.m4r"_s)}) {
        ASSERT_EQ(decoded.size(), 2U);
        ASSERT_GE(decoded[0].size(), 882000U);
        // The fade rule, implemented independently: frame by frame, with a gain for each block of 512.
        std::vector<float> expected;
        std::size_t position = 441000;
        while (expected.size() < 882000) {
            const double t = double(position) / 44100 - 10;
            const double written = double(expected.size()) / 44100;
            double gain = t <= 4 ? t / 4 : 1;
            if (t >= 19.9 - 6)
                gain = 1 - (t - 13.9) / 6;
            if (gain >= 0.99 && written >= 20 - 6)
                gain = (20 - written) / 6;
            gain = std::clamp(gain, 0.0, 1.0);
            for (std::size_t i = 0; i < 512; ++i)
                expected.push_back(float(gain) * original[0][position + i]);
            position += 512;
            if (double(position) >= double(30.0F - 0.1) * 44100)
                position = 441000; // the last tenth of a second repeats the beginning
        }
        EXPECT_EQ(AudioCheck::framesByFfprobe(folder() + u"/Ringtone.m4r"_s), std::int64_t(expected.size()));
        double error = 0;
        double power = 0;
        for (std::size_t i = 0; i < 882000; ++i)
            for (const auto& channel : decoded) { // both channels contain the left one
                error += std::pow(double(channel[i]) - double(expected[i]), 2);
                power += std::pow(double(expected[i]), 2);
            }
        EXPECT_LT(10 * std::log10(error / power), -30);
        // Checks each fade at ten points: the gain that fits best there.
        for (int point = 1; point <= 10; ++point)
            for (const double second : {0.4 * point - 0.2, 19.9 - 0.6 * point + 0.3}) {
                const auto begin = std::size_t(second * 44100) / 512 * 512;
                double product = 0;
                double square = 0;
                for (std::size_t i = begin; i < begin + 4096; ++i) {
                    product += double(decoded[0][i]) * double(expected[i]);
                    square += double(expected[i]) * double(expected[i]);
                }
                EXPECT_NEAR(20 * std::log10(product / square), 0, 0.5) << second;
            }
    }
}

TEST_F(RingtoneCommand, WritesAFileThatPhonesAccept) {
    ASSERT_EQ(ringtone({source(u"Track3.m4a"_s, 46), u"--from"_s, u"5"_s, u"--to"_s, u"45"_s}).status, 0);
    const QString path = folder() + u"/Ringtone.m4r"_s;
    const auto probed = runTool(u"ffprobe"_s, {u"-v"_s, u"error"_s, u"-show_entries"_s,
                                               u"stream=codec_name,profile,sample_rate,channels:format=format_name"_s,
                                               u"-of"_s, u"default=nw=1:nk=1"_s, path});
    EXPECT_EQ(probed.output, "aac\nLC\n44100\n2\nmov,mp4,m4a,3gp,3g2,mj2\n");
    // Forty seconds, rounded up to blocks of 512 frames and to the AAC frame of 1024.
    EXPECT_NEAR(double(AudioCheck::framesByFfprobe(path)), 40.0 * 44100, 1024);
    EXPECT_GE(AudioCheck::framesByFfprobe(path), 40 * 44100);
    const auto parsley = runTool(u"AtomicParsley"_s, {path, u"-t"_s});
    EXPECT_EQ(parsley.status, 0) << parsley.errors.constData();
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.read(11).mid(4), "ftypM4A");
}

TEST_F(RingtoneCommand, HandlesShortMonoAndLowRateSources) {
    MediaTest::writeFile(at(u"short.m4a"_s), kAudioFileM4AType, MediaTest::tones(3 * 44100));
    EXPECT_EQ(ringtone({at(u"short.m4a"_s), u"--from"_s, u"0"_s, u"--to"_s, u"3"_s}).status, 0);
    ASSERT_EQ(runTool(u"ffmpeg"_s, {u"-v"_s, u"error"_s, u"-f"_s, u"lavfi"_s, u"-i"_s, u"sine=f=500:d=12"_s, u"-ac"_s,
                                    u"1"_s, u"-ar"_s, u"22050"_s, at(u"mono.wav"_s)})
                  .status,
              0);
    ASSERT_EQ(ringtone({at(u"mono.wav"_s), u"--from"_s, u"2"_s, u"--to"_s, u"10"_s}).status, 0);
    const auto decoded = AudioCheck::decodedByFfmpeg(folder() + u"/Ringtone1.m4r"_s);
    ASSERT_EQ(decoded.size(), 2U);
    const std::vector<float> middle(decoded[1].begin() + 44100 * 3, decoded[1].begin() + 44100 * 4);
    EXPECT_NEAR(AudioCheck::pitchOf(middle, 44100), 500, 0.5);
}

TEST_F(RingtoneCommand, RefusesWithOneLineAndLeavesNothing) {
    const QString path = source(u"whole.m4a"_s, 12);
    const QString to = u"--to"_s;
    ProgramHome::expectOneLine(ringtone({at(u"missing.m4a"_s), u"--from"_s, u"1"_s, to, u"9"_s}), "missing.m4a");
    ProgramHome::expectOneLine(ringtone({path, u"--from"_s, u"1"_s, to, u"13"_s}), "ends at second 12");
    ProgramHome::expectOneLine(ringtone({path, u"--from"_s, u"40"_s, to, u"50"_s}), "ends at second 12");
    EXPECT_FALSE(QFileInfo::exists(at(u"Music"_s)));
    EXPECT_EQ(ringtone({path, u"--from"_s, u"5"_s, to, u"5"_s}).status, 2);
    EXPECT_EQ(ringtone({path, u"--from"_s, u"5"_s}).status, 2);
    EXPECT_EQ(ringtone({path, u"--from"_s, u"-1"_s, to, u"5"_s}).status, 2);
    EXPECT_EQ(ringtone({u"--from"_s, u"1"_s, to, u"5"_s}).status, 2);
    EXPECT_TRUE(listed().isEmpty());
    EXPECT_TRUE(temporaries().isEmpty());
}

TEST_F(RingtoneCommand, ReportsAReadOnlyFolder) {
    const QString path = source(u"whole.m4a"_s, 12);
    QFile inTheWay(at(u"file"_s));
    ASSERT_TRUE(inTheWay.open(QIODevice::WriteOnly));
    // Paths that even root cannot create: below a regular file, or in /proc.
    for (const QString& closed : {at(u"file"_s), u"/proc/self/fdinfo"_s}) {
        store({}, closed);
        ProgramHome::expectOneLine(ringtone({path, u"--from"_s, u"1"_s, u"--to"_s, u"9"_s}), closed.toUtf8());
        EXPECT_TRUE(listed().isEmpty());
        EXPECT_TRUE(temporaries().isEmpty());
    }
}

TEST_F(RingtoneCommand, ReportsAFullDisk) {
    const QString path = source(u"Track3.m4a"_s, 42);
    rlimit before{};
    ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &before), 0);
    const rlimit small{100000, before.rlim_max};
    const auto handler =
        std::signal(SIGXFSZ, SIG_IGN); // inherited by the program: a full disk gives an error instead of a signal
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &small), 0);
    const auto result = ringtone({path, u"--from"_s, u"1"_s, u"--to"_s, u"40"_s});
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &before), 0);
    std::signal(SIGXFSZ, handler);
    ProgramHome::expectOneLine(result, "TempRingtoneMakerAudio.m4r");
    EXPECT_TRUE(made().isEmpty());
    EXPECT_TRUE(temporaries().isEmpty());
    EXPECT_TRUE(listed().isEmpty());
}

TEST_F(RingtoneCommand, StopsAtAnInterruptWithoutAnIncompleteFile) {
    // An hour, so that the signal arrives while it works.
    ASSERT_EQ(runTool(u"ffmpeg"_s, {u"-v"_s, u"error"_s, u"-f"_s, u"lavfi"_s, u"-i"_s, u"sine=d=3600"_s, u"-c:a"_s,
                                    u"pcm_s16le"_s, at(u"long.wav"_s)})
                  .status,
              0);
    QProcess program;
    program.start(QStringLiteral(SONAPHEX_PROGRAM),
                  {u"ringtone"_s, at(u"long.wav"_s), u"--from"_s, u"0"_s, u"--to"_s, u"3600"_s});
    ASSERT_TRUE(program.waitForStarted());
    ASSERT_TRUE(waitFor([&] {
        const QStringList folders = temporaries();
        return !folders.isEmpty() &&
               QFileInfo(at(u"tmp/"_s + folders.first() + u"/TempRingtoneMakerAudio.m4r"_s)).size() > 0;
    }));
    ::kill(pid_t(program.processId()), SIGINT);
    ASSERT_TRUE(program.waitForFinished());
    EXPECT_EQ(program.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(program.exitCode(), 1);
    EXPECT_EQ(program.readAllStandardError(), "sonaphex: stopped before the end: no ringtone was made\n");
    EXPECT_TRUE(made().isEmpty());
    EXPECT_TRUE(temporaries().isEmpty());
    EXPECT_TRUE(listed().isEmpty());
}

} // namespace
