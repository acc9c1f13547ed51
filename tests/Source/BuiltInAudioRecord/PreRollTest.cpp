// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/BuiltInAudioRecord/PreRoll.h"

#include "Platform/Foundation/Services.h"
#include "Source/BuiltInAudioRecord/BuildInAudioRecord.h"
#include "tests/fakes/FakeAudioHardware.h"
#include "tests/fakes/FakeMediaFiles.h"
#include "tests/support/CallCounter.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include <random>

using namespace std::chrono_literals;

namespace {

constexpr std::uint32_t CycleFrames = 480;

/// Starts the engine in the first cycle with a sound in its first channel.
struct StartsWithTheSound : BuildInAudioRecordDelegate {
    void clientRecievedComputerAudioData(float level) override {
        if (isArmed && level > 0)
            isArmed = !engine->startRecordAudio();
    }
    BuildInAudioRecord* engine = nullptr;
    bool isArmed = false;
};

struct PreRollTest : testing::Test {
    Platform::ServicesScope scope;
    QTemporaryDir dir;
    FakeAudioHardware hardware;
    FakeMediaFiles media;
    StartsWithTheSound starter;
    BuildInAudioRecord engine;
    PreRollTest() {
        Platform::services().audioHardware = &hardware;
        Platform::services().mediaFiles = &media;
        media.keepSamples = true;
        starter.engine = &engine;
        engine.setDelegate(&starter);
        engine.setIsecordComputerAudio_(true);
    }
    ~PreRollTest() override { engine.cleanUp(); }

    void arm() {
        ASSERT_TRUE(engine.setOutPutAudioPath(dir.filePath(QStringLiteral("raw.m4a")), 1));
        starter.isArmed = true;
    }
    /// Delivers frames up to @p end. The first channel is a sound from frame @p sound on; only that one starts a
    /// recording. The second one contains the number of each frame, but silence in front of the sound in its cycle.
    void play(std::uint32_t end, std::uint32_t sound) {
        for (; position < end; position += CycleFrames) {
            std::vector<std::vector<float>> cycle(2, std::vector<float>(CycleFrames));
            const bool isSilent = position + CycleFrames <= sound;
            for (std::uint32_t i = 0; i < CycleFrames; ++i) {
                const std::uint32_t frame = position + i;
                cycle[0][i] = frame >= sound ? 0.5F : 0.0F;
                cycle[1][i] = isSilent || frame >= sound ? float(frame) : 0.0F;
            }
            ASSERT_EQ(hardware.unit()->feed(cycle, std::uint64_t((position + 480000) / 48000.0 * 1e9)), noErr);
        }
    }
    /// Whether the file contains the frames from @p first on, without a gap.
    [[nodiscard]] testing::AssertionResult beginsWith(std::uint32_t first) {
        const auto& numbers = media.last().samples[1];
        if (numbers.size() != position - first)
            return testing::AssertionFailure() << numbers.size() << " frames, not " << position - first;
        for (std::size_t i = 0; i < numbers.size(); ++i)
            if (numbers[i] != 0 && numbers[i] != float(first + i))
                return testing::AssertionFailure() << "frame " << i << " is " << numbers[i];
        return testing::AssertionSuccess();
    }

    std::uint32_t position = 0; ///< number of the next frame
};

std::vector<float> newest(const PreRoll& ring, std::uint32_t ago, std::uint32_t frames) {
    auto* list = BuildInAudioRecord::allocateAudioBufferList(1, frames * 4);
    ring.copy(ago, frames, *list);
    const auto* samples = static_cast<const float*>(list->mBuffers[0].mData);
    EXPECT_EQ(list->mBuffers[0].mDataByteSize, frames * 4);
    std::vector<float> copy(samples, samples + frames);
    BuildInAudioRecord::destroyAudioBufferList(list);
    return copy;
}

void append(PreRoll& ring, std::vector<float> samples) {
    AudioBufferList list{1, {{1, std::uint32_t(samples.size() * 4), samples.data()}}};
    ring.append(list, std::uint32_t(samples.size()));
}

} // namespace

TEST(PreRoll, KeepsTheNewestFrames) {
    PreRoll ring;
    ring.allocate(1, 5);
    EXPECT_EQ(ring.count(), 0U);
    append(ring, {1, 2, 3});
    EXPECT_EQ(ring.count(), 3U);
    EXPECT_EQ(newest(ring, 3, 3), (std::vector<float>{1, 2, 3}));
    append(ring, {4, 5, 6});
    EXPECT_EQ(ring.count(), 5U);
    EXPECT_EQ(newest(ring, 5, 5), (std::vector<float>{2, 3, 4, 5, 6})) << "across the end of the memory";
    EXPECT_EQ(newest(ring, 4, 2), (std::vector<float>{3, 4}));
    append(ring, {7, 8, 9, 10, 11, 12, 13});
    EXPECT_EQ(newest(ring, 5, 5), (std::vector<float>{9, 10, 11, 12, 13})) << "a cycle longer than the ring";
    ring.clear();
    EXPECT_EQ(ring.count(), 0U);
}

TEST(PreRoll, KeepsNothingWithoutRoom) {
    PreRoll ring;
    append(ring, {1, 2});
    EXPECT_EQ(ring.count(), 0U);
    ring.allocate(1, 0);
    append(ring, {1, 2});
    EXPECT_EQ(ring.count(), 0U);
}

TEST_F(PreRollTest, ARecordingBeginsSoMuchBeforeTheFirstFrameOfTheSound) {
    engine.setPreRoll(500ms);
    ASSERT_TRUE(engine.configureAudioUnit(7));
    std::mt19937 random(4711);
    for (int round = 0; round < 10; ++round) {
        const std::uint32_t sound = position + 48000 + random() % 9600;
        arm();
        play(sound + 24000, sound);
        EXPECT_TRUE(beginsWith(sound - 24000)) << "round " << round;
        // The capture time that the mix of two sources uses belongs to the first frame of the file.
        EXPECT_NEAR(double(engine.captureSpan().firstHostTime), (sound - 24000 + 480000) / 48000.0 * 1e9, 1e5);
        ASSERT_TRUE(engine.stopRecordAudio());
    }
}

TEST_F(PreRollTest, ATimeShorterThanTheCycleBeginsInsideTheCycle) {
    engine.setPreRoll(2ms); // 96 frames
    ASSERT_TRUE(engine.configureAudioUnit(7));
    arm();
    play(4800, 480 * 5 + 200);
    EXPECT_TRUE(beginsWith(480 * 5 + 104));
}

TEST_F(PreRollTest, WithoutATimeTheRecordingBeginsWithTheCycle) {
    ASSERT_TRUE(engine.configureAudioUnit(7));
    arm();
    play(4800, 480 * 5 + 200);
    EXPECT_TRUE(beginsWith(480 * 5));
}

TEST_F(PreRollTest, IsAsLongAsTheTimeThatTheDeviceHasDelivered) {
    engine.setPreRoll(5s);
    ASSERT_TRUE(engine.configureAudioUnit(7));
    arm();
    play(4800, 960);
    EXPECT_TRUE(beginsWith(0));
}

TEST_F(PreRollTest, IsKeptBeforeTheRecordingIsArmed) {
    engine.setPreRoll(100ms);
    ASSERT_TRUE(engine.configureAudioUnit(7));
    play(48000, 0); // a sound plays already
    arm();
    play(52800, 0);
    EXPECT_TRUE(beginsWith(48000 - 4800));
}

TEST_F(PreRollTest, RepeatsNoFrameOfTheRecordingBefore) {
    engine.setPreRoll(5s);
    ASSERT_TRUE(engine.configureAudioUnit(7));
    arm();
    play(48000, 24000);
    ASSERT_TRUE(engine.stopRecordAudio());
    arm();
    play(96000, 72000);
    EXPECT_TRUE(beginsWith(48000));
}

TEST_F(PreRollTest, EndsAtAGap) {
    engine.setPreRoll(500ms);
    ASSERT_TRUE(engine.configureAudioUnit(7));
    arm();
    play(9600, 100000);
    hardware.opened.back()->startsAnew = true;
    play(28800, 19200);
    EXPECT_TRUE(beginsWith(9600)) << "what was delivered before does not belong to the sound";
}

TEST_F(PreRollTest, EndsWhereFramesWereLost) {
    engine.setPreRoll(500ms);
    ASSERT_TRUE(engine.configureAudioUnit(7));
    arm();
    play(9600, 100000);
    hardware.unit()->loseFrames(77);
    play(28800, 19200);
    EXPECT_TRUE(beginsWith(9600));
}

TEST_F(PreRollTest, ANewTimeForgetsTheOldFrames) {
    engine.setPreRoll(500ms);
    ASSERT_TRUE(engine.configureAudioUnit(7));
    play(9600, 100000);
    engine.setPreRoll(1s);
    arm();
    play(28800, 19200);
    EXPECT_TRUE(beginsWith(9600));
    ASSERT_TRUE(engine.stopRecordAudio());
    engine.setPreRoll(0ms);
    arm();
    play(48000, 38400);
    EXPECT_TRUE(beginsWith(38400)) << "and with 0 none are kept";
}

TEST_F(PreRollTest, AnotherDeviceForgetsTheOldFrames) {
    engine.setPreRoll(500ms);
    ASSERT_TRUE(engine.configureAudioUnit(7));
    play(9600, 100000);
    ASSERT_TRUE(engine.configureAudioUnit(8));
    arm();
    play(28800, 19200);
    EXPECT_TRUE(beginsWith(9600));
}

#if SONAPHEX_COUNTS_CALLS
TEST_F(PreRollTest, ACycleThatIsKeptAllocatesNothing) {
    engine.setPreRoll(500ms);
    ASSERT_TRUE(engine.configureAudioUnit(7));
    const std::vector<std::vector<float>> cycle(2, std::vector<float>(CycleFrames));
    ASSERT_EQ(hardware.unit()->feed(cycle, 1), noErr);
    const CallCounter counter;
    for (int i = 0; i < 200; ++i)
        (void)hardware.unit()->feed(cycle, 1);
    EXPECT_EQ(counter.allocations(), 0);
}
#endif
