// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Audio/linux/ServerProbe.h"
#include "tests/support/HeardFrames.h"
#include "tests/support/PrivateAudioSession.h"
#include "tests/support/ServerWatch.h"
#include "tests/support/TestCapture.h"
#include "tests/support/TestSource.h"
#include "tests/support/WaitFor.h"

#include <QProcess>

using namespace Qt::StringLiterals;

namespace {

const QString kDriver = QStringLiteral(SONAPHEX_BIN_DIR "/Resources/ComputerAudioCapture.kext/CaptureDriver");

/// The driver's process by itself, in a session that has nothing but an output.
class DriverProcess : public testing::Test {
protected:
    void SetUp() override {
        driver_.start(kDriver, QStringList());
        ASSERT_TRUE(driver_.waitForStarted());
        ASSERT_TRUE(Platform::PipeWire::serverIsThere(10000, true, "korvane.system-audio"));
    }
    ~DriverProcess() override {
        driver_.terminate();
        driver_.waitForFinished();
    }

    PrivateAudioSession& session_ = PrivateAudioSession::shared();
    QProcess driver_;
};

TEST_F(DriverProcess, CarriesWhatTheDefaultOutputPlaysSampleForSample) {
    TestCapture capture({.target = "korvane.system-audio", .monitor = false});
    ASSERT_TRUE(capture.start());
    TestPlayer player;
    ASSERT_TRUE(player.start());
    // Half a second without the loss of a cycle comes soon even on a busy machine.
    EXPECT_TRUE(waitFor([&] { return HeardFrames(capture.interleaved()).longestRun > 24000; }, 30000));
    EXPECT_TRUE(HeardFrames(capture.interleaved()).exact);
}

TEST_F(DriverProcess, CarriesAllProgramsThatPlay) {
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

TEST_F(DriverProcess, ComesUpOnlyOnceInASession) {
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

TEST_F(DriverProcess, FlowsAgainAfterALongRest) {
    {
        TestCapture capture({.target = "korvane.system-audio", .monitor = false});
        ASSERT_TRUE(capture.start());
    }
    // The session manager puts an output that is idle to sleep after some seconds; the driver's node rests awake.
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

} // namespace
