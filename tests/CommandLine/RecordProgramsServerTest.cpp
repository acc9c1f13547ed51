// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The real program records chosen programs with the real driver.
#include "tests/CommandLine/RecordServerFixture.h"
#include "tests/support/Standstills.h"

#include <algorithm>
#include <cmath>

namespace {

class RecordPrograms : public RecordServer {
protected:
    RecordPrograms() {
        driver_.start(QStringLiteral(SONAPHEX_BIN_DIR "/Resources/ComputerAudioCapture.kext/CaptureDriver"),
                      QStringList());
        EXPECT_TRUE(Platform::PipeWire::serverIsThere(30000, true, "korvane.system-audio"));
    }
    ~RecordPrograms() override {
        driver_.terminate();
        driver_.waitForFinished();
    }

    static TestSource::Options tone(const std::string& name, double pitch) {
        return {.name = name, .description = name, .content = TestSource::Content::Tone, .frequency = pitch};
    }
    [[nodiscard]] QStringList arguments(const QStringList& more) const {
        return QStringList{u"record"_s,   u"--input"_s, u"none"_s,    u"--folder"_s, folder_,
                           u"--filter"_s, u"off"_s,     u"--split"_s, u"off"_s} +
               more;
    }
    /// The left channel of a recording without its first and last tenth of a second.
    static std::vector<float> middleOf(const QString& path) {
        const auto decoded = AudioCheck::decodedByFfmpeg(path);
        EXPECT_EQ(decoded.size(), 2U) << qPrintable(path);
        return decoded.empty() ? std::vector<float>(1) : AudioCheck::inner(decoded[0], 4410);
    }
    static QByteArray metadata() { return runTool(u"pw-metadata"_s, {}).output; }

    /// Records a program that starts again three times, and counts its starts in the file.
    void recordStarts(const QStringList& choice, const TestPlayer& other, int& starts) const {
        // The first 50 ms of the program have a pitch of their own.
        auto options = tone("test.one", 0);
        options.sample = [](std::uint64_t frame, std::uint32_t) {
            return Signal::tone(frame, frame < 2400 ? 5000 : 440, 48000, 0.25);
        };
        TestPlayer player(options);
        QProcess process;
        process.start(QStringLiteral(SONAPHEX_PROGRAM), arguments(choice));
        // Armed: only the chosen program begins the recording.
        ASSERT_TRUE(waitFor([] { return metadata().contains("kCaptureDriverProgramsAppliedKey"); }));
        ASSERT_TRUE(player.start());
        ASSERT_FALSE(rawFile(8000).isEmpty());
        for (int round = 0; round < 3; ++round) {
            player.remove();
            const auto silent = other.position() + 14400;
            ASSERT_TRUE(waitFor([&] { return other.position() > silent; }));
            ASSERT_TRUE(player.start());
            ASSERT_TRUE(waitFor([&] { return player.position() > 24000; }));
        }
        ::kill(pid_t(process.processId()), SIGINT);
        ASSERT_TRUE(process.waitForFinished());
        const auto samples = middleOf(QString::fromUtf8(process.readAllStandardOutput().trimmed()));
        ASSERT_GT(samples.size(), 44100U);
        // Without the beginning of a tone, which contains every pitch.
        EXPECT_LT(AudioCheck::toneLevel({samples.end() - 13230, samples.end()}, 1000, 44100), -90);
        // Stretches of 5 ms in which the first pitch is heard: each start gives some of them.
        constexpr std::size_t stretch = 220;
        starts = 0;
        bool before = true; // the first start may lie before the middle
        for (std::size_t i = 0; i + stretch < samples.size(); i += stretch) {
            const bool now = AudioCheck::toneLevel(
                                 {samples.begin() + std::ptrdiff_t(i), samples.begin() + std::ptrdiff_t(i + stretch)},
                                 5000, 44100) > -30;
            starts += now && !before;
            before = now;
        }
    }

    QProcess driver_;
};

TEST_F(RecordPrograms, OnlyTheChosenOnesAreInTheFile) {
    TestPlayer one(tone("test.one", 440));
    TestPlayer two(tone("test.two", 1000));
    TestPlayer three(tone("test.three", 3000));
    ASSERT_TRUE(one.start());
    ASSERT_TRUE(two.start());
    ASSERT_TRUE(three.start());
    struct Case {
        QStringList options;
        bool hasOne;
        bool hasTwo;
        bool hasThree;
    };
    for (const Case& each :
         {Case{{u"--app"_s, u"test.one"_s}, true, false, false},
          Case{{u"--app"_s, u"TEST.two"_s, u"--app"_s, u"test.three"_s}, false, true, true},
          Case{{u"--not-app"_s, u"test.two"_s}, true, false, true}, Case{{u"--computer"_s}, true, true, true}}) {
        // A busy machine loses cycles of the sound server, and a tone with a gap has traces of every other pitch.
        std::string levels;
        bool isGood = false;
        for (int attempt = 0; attempt < 8 && !isGood; ++attempt) {
            const auto result = sonaphex(arguments(each.options + QStringList{u"--for"_s, u"2"_s}));
            ASSERT_EQ(result.status, 0) << result.errors.toStdString();
            const auto samples = middleOf(QString::fromUtf8(result.output.trimmed()));
            isGood = true;
            levels.clear();
            for (const auto& [has, pitch] :
                 {std::pair{each.hasOne, 440.0}, {each.hasTwo, 1000.0}, {each.hasThree, 3000.0}}) {
                const double level = AudioCheck::toneLevel(samples, pitch, 44100);
                isGood = isGood && (has ? std::abs(level + 12.04) < 0.5 : level < -90);
                levels += std::to_string(level) + " dB  ";
            }
        }
        EXPECT_TRUE(isGood) << qPrintable(each.options.join(u' ')) << ": " << levels;
        // The driver removes its answer after the command has removed the choice.
        EXPECT_TRUE(waitFor([] { return !metadata().contains("kCaptureDriverPrograms"); }))
            << "the driver carries everything again";
    }
}

TEST_F(RecordPrograms, AProgramThatStartsAgainIsInTheFileWithin50Milliseconds) {
    TestPlayer other(tone("test.other", 1000));
    ASSERT_TRUE(other.start());
    Standstills standstills;
    for (const QStringList& choice : {QStringList{u"--app"_s, u"test.one"_s}, {u"--not-app"_s, u"test.other"_s}}) {
        int starts = 0;
        standstills.attemptInOnePiece([&] { recordStarts(choice, other, starts); });
        if (HasFatalFailure())
            return;
        EXPECT_EQ(starts, 3) << qPrintable(choice.join(u' '));
    }
}

TEST_F(RecordPrograms, ARecordingWithOtherProgramsIsRefused) {
    TestPlayer player(tone("test.one", 440));
    ASSERT_TRUE(player.start());
    QProcess process;
    process.start(QStringLiteral(SONAPHEX_PROGRAM), arguments({u"--app"_s, u"test.one"_s}));
    ASSERT_FALSE(rawFile(8000).isEmpty());
    const auto second = sonaphex(arguments({u"--computer"_s, u"--for"_s, u"1"_s}));
    EXPECT_EQ(second.status, 1);
    EXPECT_TRUE(second.errors.contains("another recording of computer audio runs with other programs"))
        << second.errors.toStdString();
    // However it ends, it stands in nobody's way afterwards.
    process.kill();
    ASSERT_TRUE(process.waitForFinished());
    const auto third = sonaphex(arguments({u"--computer"_s, u"--for"_s, u"1"_s}));
    EXPECT_EQ(third.status, 0) << third.errors.toStdString();
}

TEST_F(RecordPrograms, AProgramThatPlaysNothingIsWaitedFor) {
    TestPlayer other(tone("test.other", 1000));
    ASSERT_TRUE(other.start());
    const auto result = sonaphex(arguments({u"--app"_s, u"test.one"_s, u"--wait"_s, u"1"_s}));
    EXPECT_EQ(result.status, 0) << result.errors.toStdString();
    EXPECT_TRUE(result.errors.contains("no sound came: nothing was recorded")) << result.errors.toStdString();
    EXPECT_EQ(result.output, QByteArray());
}

} // namespace
