// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The real driver carries the streams of chosen programs only.
#include "CaptureComputerAudio/CaptureComputerAudio.h"
#include "CaptureComputerAudio/CaptureDriver.h"
#include "Platform/Audio/AudioHardware.h"
#include "Platform/Audio/IORegistry.h"
#include "Platform/Foundation/Services.h"
#include "tests/support/AudioCheck.h"
#include "tests/support/HeardFrames.h"
#include "tests/support/PrivateAudioSession.h"
#include "tests/support/RunTool.h"
#include "tests/support/ServerWatch.h"
#include "tests/support/TestCapture.h"
#include "tests/support/TestSource.h"
#include "tests/support/WaitFor.h"

#include <QFileInfo>
#include <QProcess>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;
using CaptureComputerAudio::Choosing;
using Platform::ProgramChoice;
using Mode = ProgramChoice::Mode;

namespace {

const QString kBundle = QStringLiteral(SONAPHEX_BIN_DIR "/Resources/ComputerAudioCapture.kext");
constexpr double kRate = 48000;

class Programs : public testing::Test {
protected:
    Programs() {
        Platform::services().audioHardware = hardware.get();
        Platform::services().ioRegistry = registry.get();
        QString why;
        EXPECT_TRUE(CaptureDriver::load(kBundle, why, 10000)) << qPrintable(why);
        EXPECT_TRUE(waitFor([] {
            return CaptureComputerAudio::choosePrograms({Mode::AllBut, {}}) == Choosing::Changed;
        }));
        EXPECT_EQ(CaptureComputerAudio::choosePrograms({}), Choosing::Changed);
    }
    ~Programs() override {
        EXPECT_TRUE(CaptureDriver::unload(20000));
        second.closeWriteChannel();
        second.terminate();
        second.waitForFinished();
    }

    /// A program with a tone; @p name is its application id.
    static std::unique_ptr<TestPlayer> tone(const std::string& name, double pitch, const std::string& target = "") {
        auto player = std::make_unique<TestPlayer>(TestSource::Options{.name = name,
                                                                       .description = name,
                                                                       .content = TestSource::Content::Tone,
                                                                       .frequency = pitch,
                                                                       .target = target});
        EXPECT_TRUE(player->start());
        return player;
    }
    void choose(Mode mode, std::vector<std::string> programs) {
        ASSERT_NE(CaptureComputerAudio::choosePrograms({mode, std::move(programs)}), Choosing::NotPossible);
    }
    void expectFeeders(const std::set<std::string>& wanted) {
        EXPECT_TRUE(waitFor([&] { return server.feedersOf("korvane.system-audio") == wanted; }))
            << testing::PrintToString(server.feedersOf("korvane.system-audio"));
    }
    /// The left channel of the next second of a capture.
    static std::vector<float> nextSecond(const TestCapture& capture) {
        const auto before = capture.frames();
        EXPECT_TRUE(waitFor([&] { return capture.frames() >= before + std::uint64_t(kRate) + 4096; }));
        const auto all = capture.interleaved();
        std::vector<float> left;
        for (auto i = all.size() - 2 * std::size_t(kRate); i < all.size(); i += 2)
            left.push_back(all[i]);
        return left;
    }
    /// Waits for a second in which the capture has these tones at their full level and none of the others. A busy
    /// machine loses cycles of the sound server: a tone with a gap is too weak, and has traces of every other pitch.
    static void expectTones(const TestCapture& capture, const std::vector<double>& present,
                            const std::vector<double>& absent) {
        std::string levels;
        for (int attempt = 0; attempt < 30; ++attempt) {
            const auto second = nextSecond(capture);
            bool isGood = true;
            levels.clear();
            for (const bool wanted : {true, false})
                for (const double pitch : wanted ? present : absent) {
                    const double level = AudioCheck::toneLevel(second, pitch, kRate);
                    isGood = isGood && (wanted ? std::abs(level + 12.04) < 0.1 : level < -90);
                    levels += std::to_string(pitch) + " Hz: " + std::to_string(level) + " dB  ";
                }
            if (isGood)
                return;
        }
        ADD_FAILURE() << levels;
    }

    PrivateAudioSession& session = PrivateAudioSession::shared();
    Platform::ServicesScope scope;
    std::unique_ptr<Platform::AudioHardware> hardware = Platform::createAudioHardware();
    std::unique_ptr<Platform::IORegistry> registry = Platform::createIORegistry();
    ServerWatch server;
    QProcess second;
};

TEST_F(Programs, OnlyTheChosenOneIsCarried) {
    const auto one = tone("test.one", 440);
    const auto two = tone("test.two", 1000);
    TestCapture capture({.target = "korvane.system-audio", .monitor = false});
    TestCapture heard({.target = "sonaphex.output", .monitor = true});
    ASSERT_TRUE(capture.start());
    ASSERT_TRUE(heard.start());
    ASSERT_TRUE(server.start());
    choose(Mode::Only, {"test.one"});
    expectFeeders({"test.one"});
    expectTones(capture, {440}, {1000});
    choose(Mode::AllBut, {"test.one"});
    expectFeeders({"test.two"});
    expectTones(capture, {1000}, {440});
    // The user goes on hearing both.
    expectTones(heard, {440, 1000}, {});
    choose(Mode::Everything, {});
    expectFeeders({"sonaphex.output"});
    expectTones(capture, {440, 1000}, {});
}

TEST_F(Programs, AChosenProgramIsCarriedExactly) {
    choose(Mode::Only, {"test.ramp"});
    const auto other = tone("test.other", 440);
    TestCapture capture({.target = "korvane.system-audio", .monitor = false});
    ASSERT_TRUE(capture.start());
    TestPlayer player({.name = "test.ramp"});
    ASSERT_TRUE(player.start());
    ASSERT_TRUE(waitFor([&] { return HeardFrames(capture.interleaved()).longestRun > 48000; }));
    // The two channels may be linked in two cycles, the first of which has one of them only.
    auto samples = capture.interleaved();
    std::size_t first = 0;
    while (first + 1 < samples.size() && (samples[first] == 0 || samples[first + 1] == 0))
        first += 2;
    samples.erase(samples.begin(), samples.begin() + std::ptrdiff_t(first));
    const HeardFrames heard(samples);
    EXPECT_TRUE(heard.exact);
    EXPECT_EQ(heard.silentWithin % HeardFrames::cycle, 0U);
}

TEST_F(Programs, AProgramThatStartsAgainIsBackWithin50Milliseconds) {
    for (const Mode mode : {Mode::Only, Mode::AllBut}) {
        choose(mode, {mode == Mode::Only ? "test.ramp" : "test.other"});
        const auto other = tone("test.other", 440);
        TestCapture capture({.target = "korvane.system-audio", .monitor = false});
        ASSERT_TRUE(capture.start());
        for (int round = 0; round < 5; ++round) {
            const auto begin = capture.interleaved().size();
            TestPlayer player({.name = "test.ramp"}); // its first frame is frame 0
            ASSERT_TRUE(player.start());
            std::vector<float> samples;
            std::size_t sound = 0;
            ASSERT_TRUE(waitFor([&] {
                samples = capture.interleaved();
                for (sound = begin; sound + 1 < samples.size(); sound += 2)
                    if (samples[sound] != 0)
                        return true;
                return false;
            }));
            EXPECT_LT(Signal::rampFrame(samples[sound], 0), 2400U) << "frames were missed in round " << round;
            RecordProperty("missed" + std::to_string(int(mode)) + std::to_string(round),
                           int(Signal::rampFrame(samples[sound], 0)));
            player.remove();
            ASSERT_TRUE(waitFor([&] { return capture.recentPeak(4800) == 0; }));
        }
    }
}

TEST_F(Programs, SeveralStreamsOnSeveralOutputsAreAdded) {
    second.start(u"pw-cli"_s, QStringList());
    second.write(
        "create-node adapter { factory.name=support.null-audio-sink node.name=test.second media.class=Audio/Sink "
        "audio.position=[FL FR] priority.session=1 }\n");
    ASSERT_TRUE(server.start());
    ASSERT_TRUE(waitFor([&] { return !server.stateOf("test.second").empty(); }));
    const auto constant = [](const std::string& name, float value, const std::string& target) {
        TestSource::Options options{.name = name, .target = target};
        options.sample = [value](std::uint64_t, std::uint32_t channel) { return channel ? 2 * value : value; };
        auto player = std::make_unique<TestPlayer>(options);
        EXPECT_TRUE(player->start());
        return player;
    };
    const auto one = constant("test.one", 0.125F, "");
    const auto two = constant("test.two", 0.0625F, "test.second");
    const auto three = constant("test.three", 0.03125F, "");
    TestCapture capture({.target = "korvane.system-audio", .monitor = false});
    ASSERT_TRUE(capture.start());
    const auto ends = [&](float left) {
        return waitFor([&] {
            const auto samples = capture.interleaved();
            return samples.size() > 1 && samples[samples.size() - 2] == left && samples.back() == 2 * left;
        });
    };
    choose(Mode::Only, {"test.one", "TEST.TWO"});
    EXPECT_TRUE(ends(0.1875F));
    choose(Mode::AllBut, {"test.one"});
    EXPECT_TRUE(ends(0.09375F));
    choose(Mode::AllBut, {});
    EXPECT_TRUE(ends(0.21875F));
    choose(Mode::Only, {});
    EXPECT_TRUE(ends(0));
}

TEST_F(Programs, AStreamThatNoOutputPlaysIsLeftAlone) {
    TestPlayer player(
        TestSource::Options{.name = "test.silent", .mediaClass = "Stream/Output/Audio", .connects = false});
    ASSERT_TRUE(player.start());
    const auto other = tone("test.other", 440);
    ASSERT_TRUE(server.start());
    choose(Mode::AllBut, {"nothing"});
    TestCapture capture({.target = "korvane.system-audio", .monitor = false});
    ASSERT_TRUE(capture.start());
    expectFeeders({"test.other"});
    const auto position = player.position();
    (void)nextSecond(capture);
    EXPECT_EQ(player.position(), position) << "it was made to play";
    for (const QString& channel : {u"FL"_s, u"FR"_s})
        ASSERT_EQ(runTool(u"pw-link"_s, {u"test.silent:output_"_s + channel, u"sonaphex.output:playback_"_s + channel})
                      .status,
                  0);
    expectFeeders({"test.other", "test.silent"});
}

TEST_F(Programs, AVirtualOutputPlaysNothingTwice) {
    // A program plays into the virtual output, whose stream plays it on the real one.
    QProcess loopback;
    loopback.start(u"pw-loopback"_s, {u"--capture-props"_s, u"{ media.class=Audio/Sink node.name=test.virtual }"_s,
                                      u"--playback-props"_s, u"{ node.name=test.virtual.output }"_s});
    ASSERT_TRUE(server.start());
    ASSERT_TRUE(waitFor([&] { return !server.stateOf("test.virtual.output").empty(); }));
    const auto one = tone("test.one", 440, "test.virtual");
    TestCapture capture({.target = "korvane.system-audio", .monitor = false});
    ASSERT_TRUE(capture.start());
    choose(Mode::AllBut, {"nothing"});
    expectFeeders({"test.one"});
    expectTones(capture, {440}, {});
    choose(Mode::AllBut, {"test.one"});
    expectFeeders({});
    expectTones(capture, {}, {440});
    loopback.terminate();
    loopback.waitForFinished();
}

TEST_F(Programs, TheProgramsThatPlayAreListed) {
    EXPECT_TRUE(hardware->playingPrograms().empty());
    const auto found = [&](const QString& id) {
        const auto all = hardware->playingPrograms();
        const auto program = std::ranges::find(all, id, &Platform::PlayingProgram::id);
        return program == all.end() ? Platform::PlayingProgram{} : *program;
    };
    int changes = 0;
    const QObject context;
    QObject::connect(hardware.get(), &Platform::AudioHardware::playingProgramsChanged, &context, [&] { ++changes; });
    const auto two = tone("test.two", 1000);
    auto one = tone("test.one", 440);
    ASSERT_TRUE(waitFor([&] { return found(u"test.one"_s).isPlaying && found(u"test.two"_s).isPlaying; }));
    EXPECT_GT(changes, 0);
    // The executable is a property of the program's connection, not of its stream.
    const QString binary = QFileInfo(QCoreApplication::applicationFilePath()).fileName();
    EXPECT_TRUE(found(u"test.one"_s).parts.contains(binary)) << qPrintable(found(u"test.one"_s).parts.join(u' '));
    one->remove();
    EXPECT_TRUE(waitFor([&] { return found(u"test.one"_s).id.isEmpty(); }));
    EXPECT_TRUE(found(u"test.two"_s).isPlaying);
}

} // namespace
