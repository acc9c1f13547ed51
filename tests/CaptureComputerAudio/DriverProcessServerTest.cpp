// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Audio/linux/ServerProbe.h"
#include "tests/support/HeardFrames.h"
#include "tests/support/PrivateAudioSession.h"
#include "tests/support/ServerWatch.h"
#include "tests/support/TestCapture.h"
#include "tests/support/TestSource.h"
#include "tests/support/WaitFor.h"

#include <QFile>
#include <QProcess>
#include <algorithm>
#include <cmath>
#include <spa/param/audio/raw.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

const QString kDriver = QStringLiteral(SONAPHEX_BIN_DIR "/Resources/ComputerAudioCapture.kext/CaptureDriver");

/// The driver's process alone, in a session that contains only an output.
class DriverProcess : public testing::Test {
protected:
    void SetUp() override {
        driver_.start(kDriver, QStringList());
        ASSERT_TRUE(driver_.waitForStarted());
        ASSERT_TRUE(Platform::PipeWire::serverIsThere(10000, true, "korvane.system-audio"));
    }
    ~DriverProcess() override {
        setDefaultOutput(u"sonaphex.output"_s);
        second_.closeWriteChannel();
        second_.terminate();
        second_.waitForFinished();
        driver_.terminate();
        driver_.waitForFinished();
    }

    /// A second output, "test.second". It is removed with the test.
    void addSecondOutput(const QByteArray& positions) {
        second_.start(u"pw-cli"_s, QStringList());
        second_.write("create-node adapter { factory.name=support.null-audio-sink node.name=test.second "
                      "media.class=Audio/Sink priority.session=1 audio.position=[" +
                      positions + "] }\n");
        ASSERT_TRUE(second_.waitForBytesWritten());
        ASSERT_TRUE(Platform::PipeWire::serverIsThere(10000, true, "test.second"));
    }
    static void setDefaultOutput(const QString& nodeName) {
        run(u"pw-metadata"_s,
            {u"0"_s, u"default.configured.audio.sink"_s, u"{\"name\":\"%1\"}"_s.arg(nodeName), u"Spa:String:JSON"_s});
    }
    static int run(const QString& program, const QStringList& arguments) {
        QProcess process;
        process.setStandardOutputFile(QProcess::nullDevice());
        process.start(program, arguments);
        return process.waitForFinished() ? process.exitCode() : -1;
    }
    /// Processor time used by the driver, in seconds.
    [[nodiscard]] double processorSeconds() const {
        QFile file(u"/proc/%1/stat"_s.arg(driver_.processId()));
        if (!file.open(QIODevice::ReadOnly))
            return -1;
        const QByteArray all = file.readAll();
        const auto fields = all.mid(all.lastIndexOf(')') + 2).split(' ');
        return (fields.value(11).toDouble() + fields.value(12).toDouble()) / double(sysconf(_SC_CLK_TCK));
    }
    /// Plays one value on each channel of an output.
    static TestSource::Options constant(const std::string& output, std::vector<float> values,
                                        std::vector<std::uint32_t> positions) {
        TestSource::Options options;
        options.target = output;
        options.channels = std::uint32_t(values.size());
        options.positions = std::move(positions);
        options.sample = [values = std::move(values)](std::uint64_t, std::uint32_t channel) { return values[channel]; };
        return options;
    }
    /// Waits until the last captured frame has these values.
    static testing::AssertionResult ends(const TestCapture& capture, double left, double right) {
        std::vector<float> samples;
        const auto arrived = [&] {
            samples = capture.interleaved();
            return samples.size() > 1 && std::abs(samples[samples.size() - 2] - left) < 1e-6 &&
                   std::abs(samples.back() - right) < 1e-6;
        };
        if (waitFor(arrived))
            return testing::AssertionSuccess();
        return testing::AssertionFailure()
               << samples[samples.size() - 2] << ' ' << samples.back() << " instead of " << left << ' ' << right;
    }

    PrivateAudioSession& session_ = PrivateAudioSession::shared();
    QProcess driver_;
    QProcess second_;
    const double minus3dB_ = std::sqrt(0.5);
};

TEST_F(DriverProcess, CapturesTheDefaultOutputBitForBit) {
    TestCapture capture({.target = "korvane.system-audio", .monitor = false});
    ASSERT_TRUE(capture.start());
    TestPlayer player;
    ASSERT_TRUE(player.start());
    // Even a busy machine soon has half a second without a lost cycle.
    EXPECT_TRUE(waitFor([&] { return HeardFrames(capture.interleaved()).longestRun > 24000; }, 30000));
    EXPECT_TRUE(HeardFrames(capture.interleaved()).exact);
}

TEST_F(DriverProcess, CapturesAllPlayingPrograms) {
    TestCapture capture({.target = "korvane.system-audio", .monitor = false});
    ASSERT_TRUE(capture.start());
    const auto constant = [](float value) {
        TestSource::Options options;
        options.sample = [value](std::uint64_t, std::uint32_t channel) { return channel ? 2 * value : value; };
        return options;
    };
    auto one = constant(0.125F);
    one.name = "test.player.one";
    auto two = constant(0.0625F);
    two.name = "test.player.two";
    TestPlayer first(one);
    TestPlayer second(two);
    ASSERT_TRUE(first.start());
    ASSERT_TRUE(second.start());
    EXPECT_TRUE(waitFor([&] {
        const auto samples = capture.interleaved();
        return samples.size() > 1 && samples[samples.size() - 2] == 0.1875F && samples.back() == 0.375F;
    }));
}

TEST_F(DriverProcess, RunsOnlyOncePerSession) {
    TestCapture capture({.target = "korvane.system-audio", .monitor = false});
    ASSERT_TRUE(capture.start());
    QProcess second;
    second.start(kDriver, QStringList());
    EXPECT_TRUE(second.waitForFinished());
    EXPECT_EQ(second.exitCode(), 0);
    EXPECT_EQ(driver_.state(), QProcess::Running);
}

TEST_F(DriverProcess, EndsWithTheSoundServer) {
    TestCapture capture({.target = "korvane.system-audio", .monitor = false});
    ASSERT_TRUE(capture.start());
    ASSERT_TRUE(session_.stopServer());
    EXPECT_TRUE(waitFor([&] { return driver_.state() == QProcess::NotRunning; }));
    EXPECT_EQ(driver_.exitCode(), 0);
    ASSERT_TRUE(session_.startServer());
}

TEST_F(DriverProcess, EndsWhenThereIsNoSoundServer) {
    QProcess alone;
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"PIPEWIRE_RUNTIME_DIR"_s, u"/nonexistent"_s);
    alone.setProcessEnvironment(environment);
    alone.start(kDriver, QStringList());
    EXPECT_TRUE(alone.waitForFinished());
    EXPECT_EQ(alone.exitCode(), 1);
    EXPECT_TRUE(alone.readAllStandardError().contains("no sound server"));
}

TEST_F(DriverProcess, DeliversAgainAfterALongIdleTime) {
    {
        TestCapture capture({.target = "korvane.system-audio", .monitor = false});
        ASSERT_TRUE(capture.start());
    }
    // The session manager suspends an idle output after some seconds; the driver's node is idle but not suspended.
    ServerWatch server;
    ASSERT_TRUE(server.start());
    ASSERT_TRUE(waitFor([&] { return server.stateOf("sonaphex.output") == "suspended"; }, 60000))
        << server.stateOf("sonaphex.output");
    EXPECT_EQ(server.stateOf("korvane.system-audio"), "idle");
    TestCapture capture({.target = "korvane.system-audio", .monitor = false});
    ASSERT_TRUE(capture.start());
    TestPlayer player({.content = TestSource::Content::Tone});
    ASSERT_TRUE(player.start());
    EXPECT_TRUE(waitFor([&] { return capture.recentPeak() > 0.2F; }));
}

TEST_F(DriverProcess, MixesAllSixChannelsOfAnOutput) {
    addSecondOutput("FL FR FC LFE RL RR");
    setDefaultOutput(u"test.second"_s);
    TestCapture capture({.target = "korvane.system-audio", .monitor = false});
    ASSERT_TRUE(capture.start());
    TestPlayer player(constant("test.second", {0.1F, 0.2F, 0.3F, 0.04F, 0.15F, 0.25F},
                               {SPA_AUDIO_CHANNEL_FL, SPA_AUDIO_CHANNEL_FR, SPA_AUDIO_CHANNEL_FC, SPA_AUDIO_CHANNEL_LFE,
                                SPA_AUDIO_CHANNEL_RL, SPA_AUDIO_CHANNEL_RR}));
    ASSERT_TRUE(player.start());
    EXPECT_TRUE(ends(capture, 0.1 + minus3dB_ * 0.3 + 0.5 * 0.04 + minus3dB_ * 0.15,
                     0.2 + minus3dB_ * 0.3 + 0.5 * 0.04 + minus3dB_ * 0.25));
}

TEST_F(DriverProcess, MixesAllEightChannelsOfAnOutputWithoutLimitingTheSum) {
    addSecondOutput("FL FR FC LFE RL RR SL SR");
    setDefaultOutput(u"test.second"_s);
    TestCapture capture({.target = "korvane.system-audio", .monitor = false});
    ASSERT_TRUE(capture.start());
    TestPlayer player(
        constant("test.second", {1, -1, 1, 1, 1, -1, 1, -1},
                 {SPA_AUDIO_CHANNEL_FL, SPA_AUDIO_CHANNEL_FR, SPA_AUDIO_CHANNEL_FC, SPA_AUDIO_CHANNEL_LFE,
                  SPA_AUDIO_CHANNEL_RL, SPA_AUDIO_CHANNEL_RR, SPA_AUDIO_CHANNEL_SL, SPA_AUDIO_CHANNEL_SR}));
    ASSERT_TRUE(player.start());
    EXPECT_TRUE(ends(capture, 1.5 + 3 * minus3dB_, -0.5 - minus3dB_));
}

TEST_F(DriverProcess, SwitchesBetweenStereoAndSixChannelOutputsWithoutAGap) {
    addSecondOutput("FL FR FC LFE RL RR");
    TestCapture capture({.target = "korvane.system-audio", .monitor = false});
    ASSERT_TRUE(capture.start());
    // The server downmixes six channels for the stereo output; the driver's mix must be the same. Each output has a
    // player of its own: WirePlumber 0.5 leaves a player unlinked that it moves again within some 10 ms.
    const auto playInto = [this](const std::string& output) {
        auto options = constant(output, {0.1F, 0.2F, 0.3F, 0.0F, 0.15F, 0.25F},
                                {SPA_AUDIO_CHANNEL_FL, SPA_AUDIO_CHANNEL_FR, SPA_AUDIO_CHANNEL_FC,
                                 SPA_AUDIO_CHANNEL_LFE, SPA_AUDIO_CHANNEL_RL, SPA_AUDIO_CHANNEL_RR});
        options.name = "test.player." + output;
        options.staysAtTarget = true;
        return options;
    };
    TestPlayer first(playInto("sonaphex.output"));
    TestPlayer second(playInto("test.second"));
    ServerWatch server;
    ASSERT_TRUE(server.start());
    ASSERT_TRUE(first.start());
    ASSERT_TRUE(second.start());
    // A session manager that does not know the new output yet sends its player to the default one, and leaves it there.
    ASSERT_TRUE(waitFor([&] {
        if (server.feedersOf("sonaphex.output").contains("test.player.test.second")) {
            EXPECT_TRUE(second.start());
        }
        return server.feedersOf("test.second").contains("test.player.test.second");
    }));
    const double left = 0.1 + minus3dB_ * (0.3 + 0.15);
    const double right = 0.2 + minus3dB_ * (0.3 + 0.25);
    ASSERT_TRUE(ends(capture, left, right));
    const auto fedBy = [&](const std::string& node) {
        return waitFor([&] { return server.feedersOf("korvane.system-audio") == std::set<std::string>{node}; });
    };
    ASSERT_TRUE(fedBy("sonaphex.output"));
    for (int i = 0; i < 3; ++i) {
        setDefaultOutput(u"test.second"_s);
        ASSERT_TRUE(fedBy("korvane.system-audio.mix"));
        ASSERT_TRUE(ends(capture, left, right));
        setDefaultOutput(u"sonaphex.output"_s);
        ASSERT_TRUE(fedBy("sonaphex.output"));
        ASSERT_TRUE(ends(capture, left, right));
    }
    EXPECT_EQ(server.timesCutOff("korvane.system-audio"), 0);
}

TEST_F(DriverProcess, IdlesWhenAPatchbayHasAlreadyMadeItsLink) {
    addSecondOutput("FL FR");
    TestCapture capture({.target = "korvane.system-audio", .monitor = false});
    ASSERT_TRUE(capture.start());
    TestPlayer player(constant("test.second", {0.5F, 0.25F}, {}));
    ASSERT_TRUE(player.start());
    ASSERT_EQ(run(u"pw-link"_s, {u"test.second:monitor_FL"_s, u"korvane.system-audio:input_FL"_s}), 0);
    setDefaultOutput(u"test.second"_s);
    ASSERT_TRUE(ends(capture, 0.5, 0.25));
    const double before = processorSeconds();
    const auto frames = capture.frames();
    ASSERT_TRUE(waitFor([&] { return capture.frames() > frames + 96000; }));
    EXPECT_LT(processorSeconds() - before, 0.1) << "of two seconds";
    // The link of another program is removed; the driver makes sure that both sides arrive.
    ASSERT_EQ(run(u"pw-link"_s, {u"-d"_s, u"test.second:monitor_FL"_s, u"korvane.system-audio:input_FL"_s}), 0);
    EXPECT_TRUE(ends(capture, 0.5, 0.25));
}

} // namespace
