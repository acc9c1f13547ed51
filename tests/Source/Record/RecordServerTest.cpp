// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Recordings on a real sound server, from playing streams to files of the library.
#include "CaptureComputerAudio/CaptureDriver.h"
#include "CaptureComputerAudio/KextInstallControl.h"
#include "Platform/Audio/linux/DeviceRegistry.h"
#include "tests/support/RecordOnServer.h"
#include "tests/support/ServerWatch.h"

#include <QProcess>

using namespace Qt::StringLiterals;

namespace {
class RecordServer : public RecordOnServer {};
} // namespace

TEST_F(RecordServer, ComputerAudioAloneWaitsForTheFirstSound) {
    std::atomic<bool> plays{false};
    TestSource computer(computerAudio(
        [&](std::uint64_t frame, std::uint32_t) { return plays ? Signal::tone(frame, 440, 48000, 0.25) : 0.0F; }));
    ASSERT_TRUE(computer.start());
    ASSERT_TRUE(deviceIsThere(RecordSources::ComputerAudioName));
    begin(false, true);
    controller->startAndStopRecord();
    const auto heardSilence = computer.position() + 24000;
    ASSERT_TRUE(waitFor([&] { return computer.position() > heardSilence; }));
    EXPECT_TRUE(controller->isWaittingForSound());
    EXPECT_EQ(controller->recordState_(), 0);
    plays = true;
    ASSERT_TRUE(recorded(1));
    controller->finishAll();
    ASSERT_EQ(delegate.paths.size(), 1);
    const auto samples = decoded(delegate.paths.front());
    ASSERT_EQ(samples.size(), 2U);
    const auto first =
        std::find_if(samples[0].begin(), samples[0].end(), [](float sample) { return std::fabs(sample) > 0.1F; });
    EXPECT_LT(first - samples[0].begin(), 2048) << "the file begins with the cycle of the first sound";
    EXPECT_NEAR(AudioCheck::pitchOf(AudioCheck::inner(samples[0], 6000), 44100), 440, 1);
}

TEST_F(RecordServer, TheSetTimeBeforeTheFirstSoundIsInTheRecording) {
    std::atomic<std::int64_t> begins{-1};
    TestSource computer(computerAudio([&](std::uint64_t frame, std::uint32_t) {
        const std::int64_t sound = begins;
        return sound >= 0 && frame >= std::uint64_t(sound) ? Signal::tone(frame, 440, 48000, 0.25) : 0.0F;
    }));
    ASSERT_TRUE(computer.start());
    ASSERT_TRUE(deviceIsThere(RecordSources::ComputerAudioName));
    defaults.setObject(PreferenceStore::PreferenceFilterKey, 0);
    defaults.setObject(PreferenceStore::PreferencePreRollMSKey, 500);
    begin(false, true);
    std::mt19937 random(815);
    for (int round = 0; round < 10; ++round) {
        begins = -1;
        const auto silent = computer.position() + 48000;
        ASSERT_TRUE(waitFor([&] { return computer.position() > silent; }));
        controller->startAndStopRecord();
        // A whole number of periods, so that the sound begins with its first rising edge wherever it begins.
        begins = std::int64_t(computer.position() + 9600 + random() % 4800) / 1200 * 1200;
        ASSERT_TRUE(recorded(0.8));
        controller->finishAll();
        ASSERT_EQ(delegate.paths.size(), round + 1);
        const auto samples = decoded(delegate.paths.back());
        ASSERT_EQ(samples.size(), 2U);
        const auto sound =
            std::find_if(samples[0].begin(), samples[0].end(), [](float sample) { return std::fabs(sample) > 0.1F; });
        // From 0 to 0.1 the tone takes 7 frames. The rest is what the encoder smears over the edge.
        EXPECT_NEAR(double(sound - samples[0].begin()), 0.5 * 44100 + 7, 4) << "round " << round;
    }
}

TEST_F(RecordServer, SilencesBetweenSongsCutTheRecording) {
    constexpr double pitches[] = {330, 550, 770};
    constexpr std::uint64_t song = 2 * 48000;
    constexpr std::uint64_t all = 3 * (song + 24000);
    std::atomic<std::int64_t> begins{-1};
    TestSource computer(computerAudio([&](std::uint64_t frame, std::uint32_t) {
        const std::int64_t start = begins;
        if (start < 0 || frame < std::uint64_t(start) || frame - std::uint64_t(start) >= all)
            return 0.0F;
        const std::uint64_t at = frame - std::uint64_t(start);
        const std::uint64_t number = at / (song + 24000);
        return at % (song + 24000) < song ? Signal::tone(frame, pitches[number], 48000, 0.25) : 0.0F;
    }));
    ASSERT_TRUE(computer.start());
    ASSERT_TRUE(deviceIsThere(RecordSources::ComputerAudioName));
    g_SplitTimeMS = 300;
    defaults.setObject(PreferenceStore::PreferenceFilterKey, 1);
    defaults.setObject(PreferenceStore::PreferenceFilterTimeKey, u"1"_s);
    begin(false, true);
    // A machine that does not run the sound server in time loses frames before they reach the program, which reports
    // it. Such a run says nothing about lengths and is repeated, and so is one that the test ended so late that the
    // silence after the last song became a part.
    bool isInTime = false;
    for (int attempt = 0; attempt < 8 && !isInTime; ++attempt) {
        delegate.paths.clear();
        begins = -1;
        controller->startAndStopRecord();
        begins = std::int64_t(computer.position()) + 9600;
        ASSERT_TRUE(recorded(7.4));
        controller->startAndStopRecord();
        const auto latest = begins + std::int64_t(all + 24000);
        isInTime = controller->lostFrames() == 0 && std::int64_t(computer.position()) < latest;
        controller->finishAll();
    }
    ASSERT_TRUE(isInTime);
    ASSERT_EQ(delegate.paths.size(), 3) << qPrintable(delegate.paths.join(u' '));
    double seconds = 0;
    for (int i = 0; i < 3; ++i) {
        const auto samples = decoded(delegate.paths.at(i));
        ASSERT_EQ(samples.size(), 2U);
        seconds += double(samples[0].size()) / 44100;
        // Each part contains its whole song, and begins with the rest of the silence before it.
        const auto loud = [](float sample) { return std::fabs(sample) > 0.05F; };
        const auto first = std::find_if(samples[0].begin(), samples[0].end(), loud);
        const auto last = std::find_if(samples[0].rbegin(), samples[0].rend(), loud).base();
        EXPECT_NEAR(double(last - first) / 44100, 2, 0.03);
        if (i > 0) {
            EXPECT_NEAR(double(first - samples[0].begin()) / 44100, 0.2, 0.06);
        }
        const std::vector<float> middle(first + 8192, last - 8192);
        EXPECT_NEAR(AudioCheck::pitchOf(middle, 44100), pitches[i], 1);
    }
    EXPECT_NEAR(seconds, 3 * 2 + 2 * 0.5 + 0.3, 0.1);
}

TEST_F(RecordServer, NoFrameIsLostOrRepeatedAtCuts) {
    expectExactCuts(12);
}

TEST_F(RecordServer, TwoSourcesBecomeOneFileWithBoth) {
    TestSource microphone({.name = "test.microphone",
                           .description = "Microphone",
                           .content = TestSource::Content::Tone,
                           .frequency = 440});
    TestSource computer(
        computerAudio([](std::uint64_t frame, std::uint32_t) { return Signal::tone(frame, 2000, 48000, 0.25); }));
    ASSERT_TRUE(microphone.start());
    ASSERT_TRUE(computer.start());
    ASSERT_TRUE(deviceIsThere(u"Microphone"_s));
    ASSERT_TRUE(deviceIsThere(RecordSources::ComputerAudioName));
    begin(true, true);
    controller->startAndStopRecord();
    ASSERT_TRUE(recorded(3));
    controller->finishAll();
    ASSERT_EQ(delegate.paths.size(), 1) << qPrintable(controller->notices().join(u'\n'));
    const auto samples = decoded(delegate.paths.front());
    ASSERT_EQ(samples.size(), 2U);
    EXPECT_GE(double(samples[0].size()) / 44100, 2.9);
    const auto middle = AudioCheck::inner(samples[0], 22050);
    EXPECT_NEAR(strength(middle, 440), 0.25, 0.03);
    EXPECT_NEAR(strength(middle, 2000), 0.25, 0.03);
    EXPECT_TRUE(QDir(g_strTmpPath).isEmpty());
}

TEST_F(RecordServer, WithoutAMicrophoneComputerAudioIsRecordedAndTheInputIsReportedOff) {
    TestSource computer(
        computerAudio([](std::uint64_t frame, std::uint32_t) { return Signal::tone(frame, 2000, 48000, 0.25); }));
    ASSERT_TRUE(computer.start());
    ASSERT_TRUE(deviceIsThere(RecordSources::ComputerAudioName));
    begin(true, true);
    ASSERT_TRUE(controller->deviceNames().isEmpty());
    controller->startAndStopRecord();
    ASSERT_TRUE(recorded(1));
    EXPECT_TRUE(controller->notices().join(u' ').contains(u"The input device is off"_s));
    controller->finishAll();
    EXPECT_EQ(delegate.paths.size(), 1);
}

TEST_F(RecordServer, TheRecordingFollowsTheDefaultOutput) {
    QString why;
    ASSERT_TRUE(
        CaptureDriver::load(QStringLiteral(SONAPHEX_BIN_DIR "/Resources/ComputerAudioCapture.kext"), why, 10000))
        << qPrintable(why);
    QProcess second;
    second.start(u"pw-cli"_s, QStringList());
    second.write("create-node adapter { factory.name=support.null-audio-sink node.name=test.second "
                 "node.description=\"Second Output\" media.class=Audio/Sink audio.position=[FL FR] "
                 "priority.session=1 }\n");
    const auto outputIsThere = [&](const QString& wanted) {
        return waitFor([&] {
            QString name;
            for (const auto device : hardware->devices())
                if (hardware->getDeviceName(device, name) == noErr && name == wanted)
                    return true;
            return false;
        });
    };
    ASSERT_TRUE(outputIsThere(u"Second Output"_s));
    // Two programs play, each to a different output.
    const auto playing = [](const std::string& name, const std::string& target, double pitch) {
        TestSource::Options options;
        options.name = name;
        options.target = target;
        options.sample = [pitch](std::uint64_t frame, std::uint32_t) {
            return Signal::tone(frame, pitch, 48000, 0.25);
        };
        return options;
    };
    TestPlayer one(playing("test.one", "sonaphex.output", 440));
    TestPlayer other(playing("test.other", "test.second", 2000));
    ASSERT_TRUE(one.start());
    ASSERT_TRUE(other.start());

    begin(false, true);
    controller->startAndStopRecord();
    ASSERT_TRUE(recorded(1.5));
    ServerWatch server;
    ASSERT_TRUE(server.start());
    ASSERT_EQ(server.feedersOf("korvane.system-audio"), std::set<std::string>{"sonaphex.output"});
    (void)Platform::DeviceRegistry::shared()->setMetadata(0, "default.configured.audio.sink", "Spa:String:JSON",
                                                          "{\"name\":\"test.second\"}");
    ASSERT_TRUE(
        waitFor([&] { return server.feedersOf("korvane.system-audio") == std::set<std::string>{"test.second"}; }));
    // The device links the new output before it unlinks the old one: the driver causes no gap, however long the machine
    // takes for the change.
    EXPECT_EQ(server.timesCutOff("korvane.system-audio"), 0);
    ASSERT_TRUE(recorded(controller->recordedSeconds() + 4));
    controller->finishAll();
    controller.reset();
    EXPECT_TRUE(CaptureDriver::unload(20000));
    (void)Platform::DeviceRegistry::shared()->setMetadata(0, "default.configured.audio.sink", "Spa:String:JSON",
                                                          "{\"name\":\"sonaphex.output\"}");
    second.closeWriteChannel();
    second.terminate();
    second.waitForFinished();

    ASSERT_EQ(delegate.paths.size(), 1);
    const auto samples = decoded(delegate.paths.front());
    ASSERT_EQ(samples.size(), 2U);
    const auto& left = samples[0];
    // In tenths of a second: a busy machine may silence a player for a while.
    const auto loudest = [](const std::vector<float>& samples, double pitch) {
        double most = 0;
        for (auto part = samples.begin(); samples.end() - part >= 4410; part += 4410)
            most = std::max(most, strength({part, part + 4410}, pitch));
        return most;
    };
    const std::vector<float> begun(left.begin() + 4410, left.begin() + 44100);
    const std::vector<float> ended(left.end() - 44100, left.end() - 4410);
    EXPECT_GT(loudest(begun, 440), 0.2);
    EXPECT_LT(loudest(begun, 2000), 0.02) << "it plays elsewhere still";
    EXPECT_GT(loudest(ended, 2000), 0.2);
}

TEST_F(RecordServer, ComputerAudioContinuesAfterARestartOfTheSoundServer) {
    QTemporaryDir folder;
    const KextInstallControl::ExtensionsFolderScope extensions(folder.path());
    ASSERT_TRUE(QFile::link(QStringLiteral(SONAPHEX_BIN_DIR "/Resources/ComputerAudioCapture.kext"),
                            KextInstallControl::installedBundlePath()));
    QString why;
    ASSERT_TRUE(CaptureDriver::load(KextInstallControl::installedBundlePath(), why, 10000)) << qPrintable(why);
    {
        TestSource::Options options;
        options.sample = [](std::uint64_t frame, std::uint32_t) { return Signal::tone(frame, 440, 48000, 0.25); };
        TestPlayer player(options);
        ASSERT_TRUE(player.start());
        begin(false, true);
        controller->startAndStopRecord();
        ASSERT_TRUE(recorded(1));
    }
    ASSERT_TRUE(session.stopServer());
    ASSERT_TRUE(waitFor([&] { return controller->notices().join(u' ').contains(u"went away"_s); }));
    ASSERT_TRUE(session.startServer());
    const double before = controller->recordedSeconds();
    EXPECT_TRUE(waitFor([&] { return controller->recordedSeconds() > before + 1; }, 30000))
        << qPrintable(controller->notices().join(u'\n'));
    EXPECT_TRUE(controller->notices().join(u' ').contains(u"computer audio was away"_s));
    controller->finishAll();
    controller.reset();
    EXPECT_EQ(delegate.paths.size(), 1);
    EXPECT_TRUE(CaptureDriver::unload(20000));
}
