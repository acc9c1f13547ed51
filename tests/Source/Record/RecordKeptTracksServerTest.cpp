// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The kept tracks of two streams of a real sound server, and how a change of their balance is heard.
#include "Platform/Media/linux/play/PipeWireSounds.h"
#include "Source/Control/BalanceReader.h"
#include "Source/Model/RecordingTracks.h"
#include "tests/support/RecordOnServer.h"
#include "tests/support/TestCapture.h"

using namespace Qt::StringLiterals;

namespace {

class KeptTracksServer : public RecordOnServer {
protected:
    static TestSource::Options tone(const char* name, double pitch) {
        TestSource::Options options;
        options.name = name;
        options.description = name;
        options.sample = [pitch](std::uint64_t frame, std::uint32_t) {
            return Signal::tone(frame, pitch, 48000, 0.25);
        };
        return options;
    }
};

} // namespace

TEST_F(KeptTracksServer, EachSourceIsInItsTrackAndAChangeOfTheBalanceIsHeardAtOnce) {
    TestSource microphone(tone("test.microphone", 500));
    auto options = tone("test.computer", 1500);
    options.description = RecordSources::ComputerAudioName.toStdString();
    TestSource computer(std::move(options));
    ASSERT_TRUE(microphone.start());
    ASSERT_TRUE(computer.start());
    ASSERT_TRUE(deviceIsThere(u"test.microphone"_s));
    ASSERT_TRUE(deviceIsThere(RecordSources::ComputerAudioName));
    defaults.setObject(PreferenceStore::PreferenceKeepTracksKey, 1);
    begin(true, true);
    controller->chooseBuiltInDevice(int(controller->deviceNames().indexOf(u"test.microphone"_s)));
    controller->startAndStopRecord();
    ASSERT_TRUE(recorded(4));
    controller->startAndStopRecord();
    controller->finishAll();
    ASSERT_EQ(delegate.paths.size(), 1) << qPrintable(controller->notices().join(u'\n'));
    const auto tracks = RecordingTracks::stored(delegate.entries.front());
    ASSERT_TRUE(tracks.isWhole()) << qPrintable(controller->notices().join(u'\n'));
    const auto length = AudioCheck::framesByFfprobe(delegate.paths.front());
    EXPECT_EQ(AudioCheck::framesByFfprobe(tracks.input), length);
    EXPECT_EQ(AudioCheck::framesByFfprobe(tracks.computer), length);
    const auto input = AudioCheck::inner(decoded(tracks.input).at(0), 6000);
    const auto played = AudioCheck::inner(decoded(tracks.computer).at(0), 6000);
    EXPECT_NEAR(strength(input, 500), 0.25, 0.02);
    EXPECT_LT(strength(input, 1500), 1e-3);
    EXPECT_NEAR(strength(played, 1500), 0.25, 0.02);
    EXPECT_LT(strength(played, 500), 1e-3);

    const auto sounds = Platform::createSounds(*media);
    const auto controls = std::make_shared<BalanceControls>(BalanceSettings{0, BalanceSettings::kSilent, 0});
    auto reader = BalanceReader::open(tracks, controls);
    ASSERT_TRUE(reader);
    const auto sound = sounds->openReader(*std::move(reader), u"balance"_s, 0.1);
    TestCapture capture({.target = "sonaphex.output", .monitor = true, .rate = 48000});
    ASSERT_TRUE(capture.start());
    // The last quarter of a second that was heard, on the left channel.
    const auto heard = [&](double pitch) {
        const auto all = capture.interleaved();
        std::vector<float> left;
        for (std::size_t i = all.size() > 24000 ? all.size() - 24000 : 0; i + 1 < all.size(); i += 2)
            left.push_back(all[i]);
        return strength(left, pitch * 44100 / 48000);
    };
    ASSERT_TRUE(sound->play()) << qPrintable(sound->lastError());
    ASSERT_TRUE(waitFor([&] { return heard(500) > 0.15; }));
    EXPECT_LT(heard(1500), 0.01);
    const double changedAt = sound->currentTime();
    controls->set({BalanceSettings::kSilent, 0, 0});
    ASSERT_TRUE(waitFor([&] { return heard(1500) > 0.15 && heard(500) < 0.02; }));
    EXPECT_TRUE(sound->isPlaying()) << "the change is heard while it plays";
    EXPECT_LT(sound->currentTime() - changedAt, 2)
        << "0.2 s that were decoded, 0.25 s that are measured, and the machine";
    sound->stop();
}
