// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Devices and servers that are lost during a recording on a real sound server.
#include "CaptureComputerAudio/CaptureDriver.h"
#include "CaptureComputerAudio/KextInstallControl.h"
#include "Source/Model/RecordingTracks.h"
#include "tests/support/RecordOnServer.h"

using namespace Qt::StringLiterals;

namespace {

class LostSourceServer : public RecordOnServer {
protected:
    static TestSource::Options microphone() {
        return {.name = "test.microphone",
                .description = "Microphone",
                .content = TestSource::Content::Tone,
                .frequency = 440};
    }
    static TestSource::Options highTone() {
        return computerAudio([](std::uint64_t frame, std::uint32_t) { return Signal::tone(frame, 2000, 48000, 0.25); });
    }
    [[nodiscard]] bool noticed(const QString& words) {
        return waitFor([&] { return controller->notices().join(u' ').contains(words); });
    }
    [[nodiscard]] static bool played(const TestSource& source, double seconds) {
        const auto end = source.position() + std::uint64_t(seconds * 48000);
        return waitFor([&] { return source.position() >= end; }, 60000);
    }
};

} // namespace

TEST_F(LostSourceServer, ASourceLostBeforeTheFilterTimeDropsNothing) {
    TestSource input(microphone());
    TestSource computer(highTone());
    ASSERT_TRUE(input.start());
    ASSERT_TRUE(computer.start());
    ASSERT_TRUE(deviceIsThere(u"Microphone"_s));
    ASSERT_TRUE(deviceIsThere(RecordSources::ComputerAudioName));
    begin(true, true);
    defaults.setObject(PreferenceStore::PreferenceFilterKey, 1);
    defaults.setObject(PreferenceStore::PreferenceFilterTimeKey, u"3"_s);
    controller->startAndStopRecord();
    ASSERT_TRUE(recorded(1));
    input.remove();
    ASSERT_TRUE(noticed(u"The input device went away"_s));
    ASSERT_TRUE(played(computer, 3.5));
    controller->startAndStopRecord();
    controller->finishAll();
    EXPECT_EQ(controller->droppedRecordings(), 0);
    ASSERT_EQ(delegate.paths.size(), 1) << qPrintable(controller->notices().join(u'\n'));
    const auto samples = decoded(delegate.paths.front());
    ASSERT_EQ(samples.size(), 2U);
    EXPECT_GT(double(samples[0].size()) / 44100, 4);
    const std::vector<float> begun(samples[0].begin() + 8820, samples[0].begin() + 30870);
    const std::vector<float> ended(samples[0].end() - 44100, samples[0].end() - 8820);
    EXPECT_NEAR(strength(begun, 440), 0.25, 0.05) << "what the lost device gave is in it";
    EXPECT_LT(strength(ended, 440), 0.02);
    EXPECT_NEAR(strength(ended, 2000), 0.25, 0.05);
}

TEST_F(LostSourceServer, KeptTracksAreAsLongAsWhatWasHeardAndTheLostSourceIsSilentMeanwhile) {
    auto input = std::make_unique<TestSource>(microphone());
    TestSource computer(highTone());
    ASSERT_TRUE(input->start());
    ASSERT_TRUE(computer.start());
    ASSERT_TRUE(deviceIsThere(u"Microphone"_s));
    ASSERT_TRUE(deviceIsThere(RecordSources::ComputerAudioName));
    defaults.setObject(PreferenceStore::PreferenceKeepTracksKey, 1);
    begin(true, true);
    const auto begun = computer.position();
    controller->startAndStopRecord();
    ASSERT_TRUE(recorded(2));
    const double lostAfter = double(computer.position() - begun) / 48000;
    input->remove();
    ASSERT_TRUE(noticed(u"The input device went away"_s));
    ASSERT_TRUE(played(computer, 2));
    ASSERT_TRUE(input->start());
    ASSERT_TRUE(noticed(u"was away. The recording goes on."_s));
    const double backAfter = double(computer.position() - begun) / 48000;
    ASSERT_TRUE(played(computer, 3));
    controller->startAndStopRecord();
    const double heard = double(computer.position() - begun) / 48000;
    controller->finishAll();
    ASSERT_EQ(delegate.paths.size(), 1) << qPrintable(controller->notices().join(u'\n'));
    const auto tracks = RecordingTracks::stored(delegate.entries.front());
    ASSERT_TRUE(tracks.isWhole()) << qPrintable(controller->notices().join(u'\n'));
    const auto frames = AudioCheck::framesByFfprobe(delegate.paths.front());
    std::printf("heard %.3f s, recorded %.3f s, lost at %.3f s, back at %.3f s\n", heard, double(frames) / 44100,
                lostAfter, backAfter);
    // The positions are those of the source, up to one quantum and the start of the streams ahead.
    EXPECT_NEAR(double(frames) / 44100, heard, 0.5);
    EXPECT_EQ(AudioCheck::framesByFfprobe(tracks.input), frames);
    EXPECT_EQ(AudioCheck::framesByFfprobe(tracks.computer), frames);
    const auto mix = decoded(delegate.paths.front());
    const auto inputTrack = decoded(tracks.input);
    const auto computerTrack = decoded(tracks.computer);
    ASSERT_EQ(mix.size(), 2U);
    ASSERT_EQ(inputTrack.size(), 2U);
    ASSERT_EQ(computerTrack.size(), 2U);
    // Half a second of a track from @p seconds on.
    const auto part = [](const std::vector<float>& samples, double seconds) {
        const auto from = samples.begin() + std::ptrdiff_t(seconds * 44100);
        return std::vector<float>(from, from + 22050);
    };
    const double end = double(frames) / 44100;
    for (const double at : {0.5, lostAfter + 0.7, end - 1}) {
        EXPECT_NEAR(strength(part(computerTrack[0], at), 2000), 0.25, 0.02) << "at " << at;
        EXPECT_NEAR(strength(part(mix[0], at), 2000), 0.25, 0.02) << "at " << at;
        EXPECT_LT(strength(part(computerTrack[0], at), 440), 0.01) << "at " << at;
    }
    for (const double at : {0.5, end - 1}) {
        EXPECT_NEAR(strength(part(inputTrack[0], at), 440), 0.25, 0.02) << "at " << at;
        EXPECT_NEAR(strength(part(mix[0], at), 440), 0.25, 0.02) << "at " << at;
    }
    EXPECT_LT(strength(part(inputTrack[0], lostAfter + 0.7), 440), 0.01) << "it was away";
    EXPECT_LT(strength(part(mix[0], lostAfter + 0.7), 440), 0.01);
}

TEST_F(LostSourceServer, AnArmedWaitReportsALostDriverAndContinuesWhenItReturns) {
    TestSource computer(computerAudio([](std::uint64_t, std::uint32_t) { return 0.0F; }));
    ASSERT_TRUE(computer.start());
    ASSERT_TRUE(deviceIsThere(RecordSources::ComputerAudioName));
    begin(false, true);
    controller->startAndStopRecord();
    ASSERT_TRUE(controller->isWaittingForSound());
    computer.remove();
    EXPECT_TRUE(noticed(u"Computer audio went away. The wait for the first sound continues when it is back."_s));
    EXPECT_EQ(controller->state(), RecordState::Armed);
    // The device returns under the same name, and now it plays.
    TestSource again(highTone());
    ASSERT_TRUE(again.start());
    EXPECT_TRUE(noticed(u"Computer audio is back."_s));
    ASSERT_TRUE(recorded(1));
    controller->finishAll();
    ASSERT_EQ(delegate.paths.size(), 1);
    const auto samples = decoded(delegate.paths.front());
    ASSERT_EQ(samples.size(), 2U);
    EXPECT_NEAR(AudioCheck::pitchOf(AudioCheck::inner(samples[0], 8192), 44100), 2000, 2);
}

TEST_F(LostSourceServer, AnArmedWaitReportsALostServerAndContinuesWithTheNext) {
    QTemporaryDir folder;
    const KextInstallControl::ExtensionsFolderScope extensions(folder.path());
    ASSERT_TRUE(QFile::link(QStringLiteral(SONAPHEX_BIN_DIR "/Resources/ComputerAudioCapture.kext"),
                            KextInstallControl::installedBundlePath()));
    QString why;
    ASSERT_TRUE(CaptureDriver::load(KextInstallControl::installedBundlePath(), why, 10000)) << qPrintable(why);
    begin(false, true);
    controller->startAndStopRecord();
    ASSERT_TRUE(controller->isWaittingForSound());
    ASSERT_TRUE(session.stopServer());
    EXPECT_TRUE(noticed(u"The sound server went away. The wait for the first sound continues when it is back."_s));
    EXPECT_TRUE(controller->isWaittingForSound());
    ASSERT_TRUE(session.startServer());
    EXPECT_TRUE(noticed(u"Computer audio is back."_s));
    TestSource::Options options;
    options.sample = [](std::uint64_t frame, std::uint32_t) { return Signal::tone(frame, 440, 48000, 0.25); };
    TestPlayer player(options);
    ASSERT_TRUE(player.start());
    EXPECT_TRUE(recorded(1)) << qPrintable(controller->notices().join(u'\n'));
    controller->finishAll();
    controller.reset();
    EXPECT_EQ(delegate.paths.size(), 1);
    EXPECT_TRUE(CaptureDriver::unload(20000));
}
