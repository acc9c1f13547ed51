// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Foundation/Services.h"
#include "Platform/Media/linux/MediaFilesLinux.h"
#include "Platform/Media/linux/play/PipeWireSounds.h"
#include "RingtoneMaker/CustomSound.h"
#include "tests/fakes/FakeSourceFiles.h"
#include "tests/support/HeardFrames.h"
#include "tests/support/LogCatcher.h"
#include "tests/support/PrivateAudioSession.h"
#include "tests/support/TestCapture.h"
#include "tests/support/TestSource.h"
#include "tests/support/WaitFor.h"

#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace {

constexpr std::uint32_t kRate = 48000;
constexpr double kSeconds = 20;

/// Plays files whose samples encode their own frame number into the session's output, and captures that output.
class SoundTest : public testing::Test {
protected:
    SoundTest() {
        auto& source = files.addSource(path, 0, [](int channel, std::int64_t frame) {
            return Signal::ramp(std::uint64_t(frame), std::uint32_t(channel));
        });
        source.rate = kRate;
        source.frames = std::int64_t(kSeconds * kRate);
    }
    void SetUp() override { ASSERT_TRUE(capture.start()); }

    HeardFrames heardFrames() { return HeardFrames(capture.interleaved()); }
    /// The frames of the file that were played, in order.
    std::vector<std::int64_t> heard() { return heardFrames().frames; }
    void listenAnew() {
        capture.stop();
        ASSERT_TRUE(capture.start());
    }

    PrivateAudioSession& session = PrivateAudioSession::shared();
    FakeSourceFiles files;
    std::unique_ptr<Platform::Sounds> sounds = Platform::createSounds(files);
    QTemporaryDir folder;
    QString path = folder.filePath(u"ramp.wav"_s);
    TestCapture capture{{.target = "sonaphex.output", .monitor = true, .rate = kRate}};
};

TEST_F(SoundTest, PlaysEveryFrameOnceAtVolumeOne) {
    constexpr std::size_t length = kRate / 2;
    files.sources[path].frames = length;
    auto sound = sounds->open(path);
    EXPECT_EQ(sound->duration(), 0.5);
    int finished = 0;
    QObject::connect(sound.get(), &Platform::Sound::finished, [&] { ++finished; });
    // A busy machine loses cycles: such rounds are repeated, all others count.
    for (int turn = 1; turn <= 20; ++turn) {
        listenAnew();
        ASSERT_TRUE(sound->play());
        EXPECT_TRUE(sound->isPlaying());
        ASSERT_TRUE(waitFor([&] { return finished == turn; }));
        EXPECT_FALSE(sound->isPlaying());
        EXPECT_EQ(sound->currentTime(), 0.0);
        const auto end = capture.frames() + 8192;
        ASSERT_TRUE(waitFor([&] { return capture.frames() > end; }));
        const auto all = heardFrames();
        ASSERT_TRUE(all.exact);
        if (all.frames.size() == length && all.silentWithin == 0) {
            EXPECT_EQ(all.frames.front(), 0);
            EXPECT_EQ(all.lostCycles, 0U);
            return;
        }
    }
    FAIL() << "never heard in full";
}

TEST_F(SoundTest, PlaysLongerThanItsRingWithoutSilence) {
    constexpr std::size_t length = 3 * kRate; // the ring holds 0.75 s
    files.sources[path].frames = length;
    auto sound = sounds->open(path);
    // Cycles that the machine lost are silent or missing as a whole; then the round is repeated. A late decoder would
    // show in each round, and is reported in lateFrames().
    for (int turn = 0; turn < 10; ++turn) {
        listenAnew();
        const LogCatcher log;
        ASSERT_TRUE(sound->play());
        ASSERT_TRUE(waitFor([&] { return !sound->isPlaying(); }));
        const auto end = capture.frames() + 8192;
        ASSERT_TRUE(waitFor([&] { return capture.frames() > end; }));
        ASSERT_TRUE(log.lines().filter(u"too late"_s).isEmpty()) << log.lines().join(u'\n').toStdString();
        const auto all = heardFrames();
        ASSERT_TRUE(all.exact);
        ASSERT_EQ(all.silentWithin % HeardFrames::cycle, 0U);
        if (all.frames.size() == length && all.silentWithin == 0)
            return;
    }
    FAIL() << "never heard without a gap";
}

TEST_F(SoundTest, PlaysAWaveFileAsItIs) {
    const auto media = Platform::createMediaFiles();
    const auto file = folder.filePath(u"real.wav"_s);
    {
        AudioStreamBasicDescription format;
        format.mSampleRate = kRate;
        format.mFormatID = kAudioFormatLinearPCM;
        format.mFormatFlags = kAudioFormatFlagIsSignedInteger | kAudioFormatFlagIsPacked;
        format.mBytesPerPacket = format.mBytesPerFrame = 8;
        format.mFramesPerPacket = 1;
        format.mChannelsPerFrame = 2;
        format.mBitsPerChannel = 32;
        auto created = media->createWriter(file, kAudioFileWAVEType, format, kAudioFileFlags_EraseFile);
        ASSERT_TRUE(created) << qPrintable(created.error().text);
        const auto writer = *std::move(created);
        ASSERT_EQ(writer->setClientDataFormat(planarFloatFormat(kRate, 2)), noErr);
        std::vector<float> planes[2];
        for (std::uint32_t i = 0; i < kRate; ++i)
            for (std::uint32_t c = 0; c < 2; ++c)
                planes[c].push_back(Signal::ramp(i, c));
        struct {
            AudioBufferList head;
            AudioBuffer second;
        } list{{2, {{1, kRate * 4, planes[0].data()}}}, {1, kRate * 4, planes[1].data()}};
        ASSERT_EQ(writer->write(kRate, &list.head), noErr);
        ASSERT_EQ(writer->dispose(), noErr);
    }
    auto sound = Platform::createSounds(*media)->open(file);
    EXPECT_EQ(sound->duration(), 1.0);
    ASSERT_TRUE(sound->play());
    ASSERT_TRUE(waitFor([&] { return !sound->isPlaying(); }));
    EXPECT_TRUE(heardFrames().exact);
    EXPECT_GT(heardFrames().longestRun, std::size_t(kRate / 5));
}

TEST_F(SoundTest, ContinuesAtTheFrameWhereItPaused) {
    auto sound = sounds->open(path);
    ASSERT_TRUE(sound->play());
    int exactRounds = 0;
    for (int round = 0; round < 30 && exactRounds < 5; ++round) {
        const auto before = heard().size();
        ASSERT_TRUE(waitFor([&] { return heard().size() > before + 6000; }));
        EXPECT_TRUE(sound->pause());
        EXPECT_TRUE(sound->isPlaying()) << "a paused sound counts as playing";
        ASSERT_TRUE(waitFor([&] { return capture.recentPeak(4096) == 0; }));
        const auto time = std::llround(sound->currentTime() * kRate);
        const auto paused = heard();
        EXPECT_TRUE(sound->resume());
        ASSERT_TRUE(waitFor([&] { return heard().size() > paused.size() + 2000; }));
        // A busy machine may lose the last and the first cycle around the pause; then another round counts.
        exactRounds += paused.back() + 1 == time && heard()[paused.size()] == time;
    }
    EXPECT_EQ(exactRounds, 5);
    EXPECT_TRUE(heardFrames().exact);
    EXPECT_EQ(heard().front() % HeardFrames::cycle, 0);
}

TEST_F(SoundTest, LandsOnTheFrameOfASeek) {
    auto sound = sounds->open(path);
    ASSERT_TRUE(sound->play());
    const auto wanted = std::llround(12.34567 * kRate);
    bool landed = false;
    for (int round = 0; round < 10 && !landed; ++round) {
        ASSERT_TRUE(waitFor([&] { return heard().size() > 5000; }));
        ASSERT_TRUE(sound->pause());
        ASSERT_TRUE(waitFor([&] { return capture.recentPeak(4096) == 0; }));
        listenAnew();
        sound->setCurrentTime(12.34567);
        EXPECT_NEAR(sound->currentTime(), 12.34567, 1.0 / kRate);
        ASSERT_TRUE(sound->resume());
        ASSERT_TRUE(waitFor([&] { return heard().size() > 5000; }));
        const auto all = heardFrames();
        ASSERT_TRUE(all.exact);
        // The first cycle may be lost on a busy machine, but never a part of one.
        ASSERT_EQ((all.frames.front() - wanted) % HeardFrames::cycle, 0) << all.frames.front();
        landed = all.frames.front() == wanted;
    }
    EXPECT_TRUE(landed);
}

TEST_F(SoundTest, TakesAHundredSeeksInARow) {
    CustomSound sound(path);
    sound.setSound(sounds->open(path));
    sound.play();
    for (int i = 0; i < 100; ++i) {
        sound.setCurrentTime(i % 17 + 0.25);
        ASSERT_TRUE(sound.isPlaying());
        if (i % 7 == 0)
            QThread::msleep(1);
    }
    sound.setCurrentTime(3);
    ASSERT_TRUE(waitFor([&] { return sound.currentTime() > 3.2; }));
    EXPECT_LT(sound.currentTime(), 13);
    sound.pause();
    sound.setCurrentTime(9);
    EXPECT_EQ(sound.currentTime(), 9.0);
    EXPECT_TRUE(sound.isPause());
}

TEST_F(SoundTest, PlaysFromThePositionSetWhileStopped) {
    auto sound = sounds->open(path);
    sound->setCurrentTime(19);
    EXPECT_FALSE(sound->isPlaying());
    EXPECT_EQ(sound->currentTime(), 19.0);
    ASSERT_TRUE(sound->play());
    ASSERT_TRUE(waitFor([&] { return heard().size() > 1000; }));
    EXPECT_GE(heard().front(), 19 * kRate);
    EXPECT_EQ((heard().front() - 19 * kRate) % HeardFrames::cycle, 0);
    ASSERT_TRUE(sound->stop());
    EXPECT_EQ(sound->currentTime(), 0.0);
}

TEST_F(SoundTest, ScalesByItsVolume) {
    files.sources[path].signal = [](int, std::int64_t) { return 0.5F; };
    auto sound = sounds->open(path);
    sound->setVolume(0.25F);
    EXPECT_EQ(sound->volume(), 0.25F);
    ASSERT_TRUE(sound->play());
    EXPECT_TRUE(waitFor([&] { return capture.recentPeak(200) == 0.125F; }));
    sound->setVolume(1);
    EXPECT_TRUE(waitFor([&] { return capture.recentPeak(200) == 0.5F; }));
    sound->setVolume(0);
    EXPECT_TRUE(waitFor([&] { return capture.recentPeak(200) == 0; }));
    sound->setVolume(7);
    EXPECT_EQ(sound->volume(), 1.0F);
}

TEST_F(SoundTest, StopsCleanlyWhenTheServerGoesAway) {
    auto sound = sounds->open(path);
    bool finished = false;
    QObject::connect(sound.get(), &Platform::Sound::finished, [&] { finished = true; });
    ASSERT_TRUE(sound->play());
    ASSERT_TRUE(waitFor([&] { return heard().size() > 1000; }));
    capture.stop();
    ASSERT_TRUE(session.stopServer());
    EXPECT_TRUE(waitFor([&] { return finished; }));
    EXPECT_FALSE(sound->isPlaying());
    EXPECT_FALSE(sound->lastError().isEmpty());
    EXPECT_FALSE(sound->play()) << "no server";
    ASSERT_TRUE(session.startServer());
    EXPECT_TRUE(sound->play());
    EXPECT_TRUE(waitFor([&] { return sound->currentTime() > 0.1; }));
}

TEST_F(SoundTest, DoesNotPlayAnUnreadableFile) {
    auto sound = sounds->open(folder.filePath(u"missing.wav"_s));
    ASSERT_TRUE(sound);
    EXPECT_EQ(sound->duration(), 0.0);
    EXPECT_EQ(sound->currentTime(), 0.0);
    sound->setCurrentTime(5);
    EXPECT_FALSE(sound->play());
    EXPECT_FALSE(sound->pause());
    EXPECT_FALSE(sound->stop());
    EXPECT_FALSE(sound->isPlaying());
    EXPECT_FALSE(sound->lastError().isEmpty());
}

} // namespace
