// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/AudioCheck.h"
#include "tests/support/EngineRecording.h"

using namespace Qt::StringLiterals;
using Event = Platform::InputUnit::Event;

namespace {

class EngineServer : public EngineRecording {
protected:
    /// Writes both files; the M4A's frame count tells how long the recording is.
    [[nodiscard]] bool beginBoth() {
        wave_ = folder_.filePath(u"raw.wav"_s);
        return engine_.setOutPutAudioPath(wave_, 0) && begin(1);
    }
    /// A machine that does not run the sound server in time loses frames before they reach the engine, which reports
    /// it. Such a run is repeated; a run without a reported loss must be exact.
    template <typename Begin>
    [[nodiscard]] bool recordWithoutLoss(Begin begin, double seconds) {
        return recordWithoutLoss(begin, [&] { return recorded(seconds); });
    }
    template <typename Begin, typename Record>
    requires std::is_invocable_r_v<bool, Record>
    [[nodiscard]] bool recordWithoutLoss(Begin begin, Record record) {
        for (int attempt = 0; attempt < 8; ++attempt) {
            if (!begin() || !record())
                return false;
            engine_.stopRecordAudio();
            if (engine_.lostFrames() == 0)
                return true;
        }
        return false;
    }
    /// Expects a short part of the played ramp, without errors.
    static void expectRampAt(const std::vector<float>& samples, std::size_t at) {
        ASSERT_GT(samples.size(), at + 500);
        EXPECT_GT(
            AudioCheck::levelOf({samples.begin() + std::ptrdiff_t(at), samples.begin() + std::ptrdiff_t(at) + 500}),
            0.01);
        int steps = 0; // a cycle that the machine lost is one step
        for (std::size_t i = at + 1; i < at + 500; ++i)
            steps += Signal::rampFrame(samples[i], 0) != Signal::rampFrame(samples[i - 1], 0) + 1;
        EXPECT_LE(steps, 1);
    }
    QString wave_;
};

} // namespace

TEST_F(EngineServer, WritesEveryFrameAsItWasPlayed) {
    TestSource source({.name = "exact", .description = "Exact", .rate = 44100, .ownClock = true});
    ASSERT_TRUE(configure(source));
    EXPECT_EQ(engine_.sampleRate(), 44100);
    // The source counts what must be in the file: everything it plays between the two queries of its position.
    std::uint64_t begun = 0;
    std::uint64_t played = 0;
    ASSERT_TRUE(recordWithoutLoss(
        [&] {
            const bool begins = beginBoth();
            begun = source.position();
            return begins;
        },
        [&] {
            if (!waitFor([&] { return source.position() > begun + 3 * 44100; }))
                return false;
            played = source.position();
            // By the time the source has played for another second, it was captured and written.
            return waitFor([&] { return source.position() > played + 44100; });
        }));
    EXPECT_EQ(engine_.lostFrames(), 0U);
    const auto samples = AudioCheck::waveSamples(wave_);
    ASSERT_EQ(samples.size(), 2U);
    EXPECT_TRUE(isUnbrokenRamp(samples[0], 0));
    EXPECT_TRUE(isUnbrokenRamp(samples[1], 1));
    // The cycle that was running at the start is not recorded, nor the rest of the device's buffer.
    EXPECT_LE(Signal::rampFrame(samples[0].front(), 0), begun + 4 * 1024);
    EXPECT_GE(Signal::rampFrame(samples[0].back(), 0) + 1, played);
    EXPECT_EQ(AudioCheck::framesByFfprobe(path_), std::int64_t(samples[0].size())) << "both files hold the same";
    EXPECT_FALSE(engine_.writeError()) << qPrintable(engine_.writeError().text);
}

TEST_F(EngineServer, ConvertsToTheFilesRateWithoutAClick) {
    TestSource source({.name = "tone",
                       .description = "Tone 48",
                       .content = TestSource::Content::Tone,
                       .frequency = 1000,
                       .ownClock = true});
    ASSERT_TRUE(configure(source));
    ASSERT_TRUE(recordWithoutLoss([this] { return begin(1); }, 4));
    const double expected = double(engine_.framesAccepted()) * 44100 / 48000;
    EXPECT_NEAR(double(AudioCheck::framesByFfprobe(path_)), expected, 1.0);
    const auto samples = AudioCheck::decodedByFfmpeg(path_);
    ASSERT_EQ(samples.size(), 2U);
    EXPECT_NEAR(double(samples[0].size()), expected, 1024) << "whole encoder frames at most";
    for (const auto& channel : samples) {
        const auto middle = AudioCheck::inner(channel, 4096);
        EXPECT_NEAR(AudioCheck::pitchOf(middle, 44100), 1000, 0.1);
        EXPECT_NEAR(AudioCheck::levelOf(middle), 0.25 / std::numbers::sqrt2, 0.002);
        EXPECT_LT(AudioCheck::worstClick(middle, 1000, 44100), 0.004);
    }
}

TEST_F(EngineServer, RecordsAMonoDeviceOnBothChannels) {
    TestSource source({.name = "mono", .description = "Mono", .rate = 44100, .channels = 1, .ownClock = true});
    ASSERT_TRUE(configure(source));
    ASSERT_TRUE(beginBoth());
    ASSERT_TRUE(recorded(1));
    engine_.stopRecordAudio();
    const auto samples = AudioCheck::waveSamples(wave_);
    ASSERT_EQ(samples.size(), 2U);
    EXPECT_GT(AudioCheck::levelOf(samples[0]), 0.1);
    EXPECT_EQ(samples[0], samples[1]);
}

TEST_F(EngineServer, RecordsTheFirstTwoOfManyChannels) {
    TestSource source({.name = "many", .description = "Many", .rate = 44100, .channels = 6, .ownClock = true});
    ASSERT_TRUE(configure(source));
    ASSERT_TRUE(beginBoth());
    ASSERT_TRUE(recorded(1));
    engine_.stopRecordAudio();
    const auto samples = AudioCheck::waveSamples(wave_);
    ASSERT_EQ(samples.size(), 2U);
    for (std::size_t i = 20000; i < 40000; ++i) {
        const std::uint32_t frame = Signal::rampFrame(samples[0][i], 0);
        ASSERT_EQ(samples[0][i], Signal::ramp(frame, 0));
        ASSERT_EQ(samples[1][i], Signal::ramp(frame, 1)) << "no other channel is mixed in";
    }
}

TEST_F(EngineServer, LosesNothingBetweenTwoFiles) {
    TestSource source({.name = "cut",
                       .description = "Cut",
                       .content = TestSource::Content::Tone,
                       .frequency = 1000,
                       .ownClock = true});
    ASSERT_TRUE(configure(source));
    ASSERT_TRUE(begin(1));
    const QString first = path_;
    const QString second = folder_.filePath(u"second.m4a"_s);
    ASSERT_TRUE(recorded(1.5));
    std::atomic<bool> closed{false};
    engine_.holdCycles();
    const auto before = engine_.framesAccepted();
    ASSERT_TRUE(engine_.exchangeM4aFile(second, [&](const QString& path, OSStatus status) {
        EXPECT_EQ(path, first);
        EXPECT_EQ(status, noErr);
        closed = true;
    }));
    engine_.releaseCycles();
    ASSERT_TRUE(recorded(1.5));
    engine_.stopRecordAudio();
    ASSERT_TRUE(waitFor([&] { return closed.load(); }));
    const double expected = double(before + engine_.framesAccepted()) * 44100 / 48000;
    const auto frames = AudioCheck::framesByFfprobe(first);
    EXPECT_NEAR(double(frames + AudioCheck::framesByFfprobe(second)), expected, 1.0);
    // The tone continues across the cut; the encoders' priming and padding are removed.
    auto samples = AudioCheck::decodedByFfmpeg(first).at(0);
    samples.resize(std::size_t(frames));
    const auto rest = AudioCheck::decodedByFfmpeg(second).at(0);
    const auto seam = samples.size();
    samples.insert(samples.end(), rest.begin(), rest.end());
    EXPECT_NEAR(AudioCheck::pitchOf(AudioCheck::inner(samples, 4096), 44100), 1000, 1);
    EXPECT_GT(seam, 60000U);
}

TEST_F(EngineServer, KeepsTheAudioBeforeAndAfterTheDeviceWasUnplugged) {
    TestSource source({.name = "plug", .description = "Plug", .rate = 44100, .ownClock = true});
    ASSERT_TRUE(configure(source));
    ASSERT_TRUE(beginBoth());
    ASSERT_TRUE(recorded(1));
    source.remove();
    ASSERT_TRUE(waitFor([&] { return heard(Event::DeviceLost); }));
    const auto before = engine_.framesAccepted();
    ASSERT_TRUE(source.start());
    ASSERT_TRUE(waitFor([&] { return heard(Event::DeviceReturned); }));
    ASSERT_TRUE(recorded(double(before) / 44100 + 1));
    EXPECT_EQ(engine_.recordStatus(), 1);
    engine_.stopRecordAudio();
    const auto samples = AudioCheck::waveSamples(wave_);
    ASSERT_EQ(samples.size(), 2U);
    EXPECT_EQ(std::int64_t(samples[0].size()), engine_.framesAccepted());
    EXPECT_NEAR(double(AudioCheck::framesByFfprobe(path_)), double(engine_.framesAccepted()), 1.0);
    expectRampAt(samples[0], 20000);
    expectRampAt(samples[0], samples[0].size() - 20000);
}

TEST_F(EngineServer, KeepsTheAudioBeforeAndAfterAServerRestart) {
    TestSource source({.name = "restart", .description = "Restart", .rate = 44100, .ownClock = true});
    ASSERT_TRUE(configure(source));
    ASSERT_TRUE(beginBoth());
    ASSERT_TRUE(recorded(1));
    ASSERT_TRUE(session_.stopServer());
    ASSERT_TRUE(waitFor([&] { return heard(Event::ServerLost); }));
    const auto before = engine_.framesAccepted();
    source.remove();
    ASSERT_TRUE(session_.startServer());
    ASSERT_TRUE(source.start());
    ASSERT_TRUE(recorded(double(before) / 44100 + 1));
    engine_.stopRecordAudio();
    const auto samples = AudioCheck::waveSamples(wave_);
    ASSERT_EQ(samples.size(), 2U);
    expectRampAt(samples[0], 20000);
    expectRampAt(samples[0], samples[0].size() - 20000);
    EXPECT_NEAR(double(AudioCheck::framesByFfprobe(path_)), double(engine_.framesAccepted()), 1.0);
}

TEST_F(EngineServer, ReportsTheCaptureTimeOfItsFirstFrame) {
    const auto now = [] { return std::int64_t(std::chrono::steady_clock::now().time_since_epoch().count()); };
    TestSource source({.name = "stamp", .description = "Stamp", .rate = 44100, .ownClock = true});
    const auto before = now();
    ASSERT_TRUE(configure(source));
    ASSERT_TRUE(beginBoth());
    ASSERT_TRUE(waitFor([&] { return source.position() > 0; }));
    const auto begun = now();
    ASSERT_TRUE(recorded(0.2));
    const auto stamp = std::int64_t(engine_.captureSpan().firstHostTime);
    EXPECT_LT(stamp, now());
    engine_.stopRecordAudio();
    // The first frame encodes its position, and so its time on the source's clock, which started between the two
    // queries.
    const auto samples = AudioCheck::waveSamples(wave_);
    ASSERT_EQ(samples.size(), 2U);
    const auto first = std::ranges::find_if(samples[0], [](float sample) { return sample != 0; });
    ASSERT_NE(first, samples[0].end());
    const auto frame = std::int64_t(Signal::rampFrame(*first, 0)) - (first - samples[0].begin());
    const auto began = stamp - frame * 1'000'000'000 / 44100;
    constexpr std::int64_t cycle = 25'000'000;
    EXPECT_GT(began, before - cycle);
    EXPECT_LT(began, begun + cycle);
}

TEST_F(EngineServer, ClosesItsFileWithoutBlockingItsCaller) {
    TestSource source({.name = "later", .description = "Later", .ownClock = true});
    ASSERT_TRUE(configure(source));
    ASSERT_TRUE(begin(1));
    ASSERT_TRUE(recorded(1));
    std::atomic<bool> closed{false};
    ASSERT_TRUE(engine_.stopRecordAudioLater([&](const QString&, OSStatus status) {
        EXPECT_EQ(status, noErr);
        closed = true;
    }));
    EXPECT_EQ(engine_.recordStatus(), 0);
    ASSERT_TRUE(waitFor([&] { return closed.load(); }));
    EXPECT_NEAR(double(AudioCheck::framesByFfprobe(path_)), double(engine_.framesAccepted()) * 44100 / 48000, 1.0);
}
