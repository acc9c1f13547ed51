// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Foundation/Services.h"
#include "Platform/Media/linux/MediaFilesLinux.h"
#include "Platform/Media/linux/PipeWireSounds.h"
#include "RingtoneMaker/CustomSound.h"
#include "tests/fakes/FakeSourceFiles.h"
#include "tests/support/PrivateAudioSession.h"
#include "tests/support/TestCapture.h"
#include "tests/support/TestSource.h"
#include "tests/support/WaitFor.h"

#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace {

constexpr std::uint32_t kRate = 48000;
constexpr double kSeconds = 20;

/// Plays files whose samples name their own frames into the session's output, and listens at that output.
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

    /// The frames of the file that were heard, in their order; silence is left out.
    std::vector<std::int64_t> heard() {
        std::vector<std::int64_t> frames;
        const auto samples = capture.interleaved();
        for (std::size_t i = 0; i + 1 < samples.size(); i += 2) {
            if (samples[i] == 0 && samples[i + 1] == 0)
                continue;
            EXPECT_EQ(Signal::rampFrame(samples[i], 0), Signal::rampFrame(samples[i + 1], 1));
            frames.push_back(Signal::rampFrame(samples[i], 0));
        }
        return frames;
    }
    static bool unbroken(const std::vector<std::int64_t>& frames) {
        for (std::size_t i = 1; i < frames.size(); ++i)
            if (frames[i] != frames[i - 1] + 1) {
                ADD_FAILURE() << "frame " << frames[i] << " after " << frames[i - 1];
                return false;
            }
        return true;
    }

    PrivateAudioSession& session = PrivateAudioSession::shared();
    FakeSourceFiles files;
    std::unique_ptr<Platform::Sounds> sounds = Platform::createSounds(files);
    QTemporaryDir folder;
    QString path = folder.filePath(u"ramp.wav"_s);
    TestCapture capture{{.target = "sonaphex.output", .monitor = true, .rate = kRate}};
};

TEST_F(SoundTest, PlaysEveryFrameOnceAtVolumeOne) {
    files.sources[path].frames = 2 * kRate;
    auto sound = sounds->open(path);
    EXPECT_EQ(sound->duration(), 2.0);
    bool finished = false;
    QObject::connect(sound.get(), &Platform::Sound::finished, [&] { finished = true; });
    ASSERT_TRUE(sound->play());
    EXPECT_TRUE(sound->isPlaying());
    ASSERT_TRUE(waitFor([&] { return finished; }));
    EXPECT_FALSE(sound->isPlaying());
    EXPECT_EQ(sound->currentTime(), 0.0);
    ASSERT_TRUE(waitFor([&] { return heard().size() >= 2 * kRate; }));
    const auto frames = heard();
    EXPECT_EQ(frames.size(), 2 * kRate);
    EXPECT_EQ(frames.front(), 0);
    EXPECT_TRUE(unbroken(frames));
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
        Platform::MediaError error;
        auto writer = media->createWriter(file, kAudioFileWAVEType, format, kAudioFileFlags_EraseFile, error);
        ASSERT_TRUE(writer) << qPrintable(error.text);
        AudioStreamBasicDescription client = format;
        client.mFormatFlags = kAudioFormatFlagIsFloat | kAudioFormatFlagIsPacked | kAudioFormatFlagIsNonInterleaved;
        client.mBytesPerPacket = client.mBytesPerFrame = 4;
        ASSERT_EQ(writer->setClientDataFormat(client), noErr);
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
    ASSERT_TRUE(waitFor([&] { return heard().size() >= kRate; }));
    EXPECT_EQ(heard().size(), std::size_t(kRate));
    EXPECT_EQ(heard().front(), 0);
    EXPECT_TRUE(unbroken(heard()));
}

TEST_F(SoundTest, GoesOnAtTheFrameWhereItPaused) {
    auto sound = sounds->open(path);
    ASSERT_TRUE(sound->play());
    for (std::size_t rounds = 1; rounds <= 5; ++rounds) {
        ASSERT_TRUE(waitFor([&] { return heard().size() > rounds * 12000; }));
        EXPECT_TRUE(sound->pause());
        EXPECT_TRUE(sound->isPlaying()) << "a paused sound counts as playing";
        ASSERT_TRUE(waitFor([&] { return capture.recentPeak(2000) == 0; }));
        const auto time = sound->currentTime();
        EXPECT_EQ(std::llround(time * kRate), heard().back() + 1);
        EXPECT_TRUE(sound->resume());
    }
    ASSERT_TRUE(waitFor([&] { return heard().size() > 90000; }));
    sound->stop();
    EXPECT_EQ(heard().front(), 0);
    EXPECT_TRUE(unbroken(heard()));
}

TEST_F(SoundTest, LandsOnTheFrameOfASeek) {
    auto sound = sounds->open(path);
    ASSERT_TRUE(sound->play());
    ASSERT_TRUE(waitFor([&] { return heard().size() > 5000; }));
    ASSERT_TRUE(sound->pause());
    ASSERT_TRUE(waitFor([&] { return capture.recentPeak(2000) == 0; }));
    const auto before = heard().size();
    sound->setCurrentTime(12.34567);
    EXPECT_NEAR(sound->currentTime(), 12.34567, 1.0 / kRate);
    ASSERT_TRUE(sound->resume());
    ASSERT_TRUE(waitFor([&] { return heard().size() > before + 5000; }));
    EXPECT_EQ(heard()[before], std::llround(12.34567 * kRate));
    sound->stop();
    const auto frames = heard();
    EXPECT_TRUE(unbroken({frames.begin() + std::ptrdiff_t(before), frames.end()}));
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

TEST_F(SoundTest, PlaysFromWhereAStoppedSoundWasSetTo) {
    auto sound = sounds->open(path);
    sound->setCurrentTime(19);
    EXPECT_FALSE(sound->isPlaying());
    EXPECT_EQ(sound->currentTime(), 19.0);
    ASSERT_TRUE(sound->play());
    ASSERT_TRUE(waitFor([&] { return heard().size() > 1000; }));
    EXPECT_EQ(heard().front(), 19 * kRate);
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

TEST_F(SoundTest, DoesNotPlayWhatCannotBeRead) {
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
