// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Media/PlayerRing.h"

#include <gtest/gtest.h>
#include <numeric>
#include <thread>

using Platform::PlayerRing;

namespace {

std::vector<float> ramp(int from, std::size_t count) {
    std::vector<float> values(count);
    std::iota(values.begin(), values.end(), float(from));
    return values;
}

/// A ring whose decoder runs step by step under the test's control.
class PlayerRingTest : public testing::Test {
protected:
    void decode(std::int64_t upTo = 1 << 20) {
        if (std::int64_t frame = 0; ring.takeJump(frame)) {
            next = frame;
            ring.beginSegment();
        }
        const auto count = std::min<std::int64_t>(std::int64_t(ring.room()), upTo - next);
        ring.push(ramp(int(next), std::size_t(count)));
        next += count;
        if (next == upTo)
            ring.endSegment();
    }
    std::vector<float> hear(std::size_t frames) {
        std::vector<float> out(frames, -1);
        out.resize(ring.popRt(out));
        return out;
    }

    PlayerRing ring{64, 1};
    std::int64_t next = 0;
};

TEST_F(PlayerRingTest, DeliversTheFramesInOrderAcrossItsEnd) {
    ring.requestJump(0);
    for (int i = 0; i < 50; ++i) {
        decode();
        EXPECT_EQ(hear(37), ramp(i * 37, 37));
        EXPECT_EQ(ring.position(), (i + 1) * 37);
    }
}

TEST_F(PlayerRingTest, PlaysNothingOfTheOldPositionAfterAJump) {
    ring.requestJump(0);
    decode();
    EXPECT_EQ(hear(10), ramp(0, 10));
    ring.requestJump(1000);
    EXPECT_EQ(ring.position(), 1000) << "before the decoder knows of it";
    EXPECT_TRUE(hear(10).empty());
    decode();
    EXPECT_EQ(ring.position(), 1000);
    decode();
    EXPECT_EQ(hear(10), ramp(1000, 10));
    EXPECT_EQ(ring.position(), 1010);
}

TEST_F(PlayerRingTest, PlaysOnlyTheLastOfManyJumps) {
    ring.requestJump(0);
    decode();
    hear(5);
    for (int i = 1; i <= 100; ++i)
        ring.requestJump(i * 10);
    decode();
    hear(1);
    decode();
    const auto frames = hear(2);
    ASSERT_EQ(frames.size(), 2U);
    EXPECT_EQ(frames[1], float(ring.position() - 1));
    EXPECT_GE(ring.position(), 1002);
    EXPECT_LT(ring.position(), 1064);
    for (int i = 1; i <= 100; ++i) {
        ring.requestJump(i * 7);
        decode();
    }
    hear(0);
    decode();
    EXPECT_EQ(hear(5), ramp(700, 5));
}

TEST_F(PlayerRingTest, ReportsTheLastPlayedFrameAndFillsUpWithSilence) {
    ring.requestJump(90);
    decode(100);
    EXPECT_FALSE(ring.atEnd());
    std::vector<float> out(16, -1);
    EXPECT_EQ(ring.popRt(out), 10U);
    EXPECT_EQ(out[9], 99.0F);
    EXPECT_EQ(out[10], 0.0F);
    EXPECT_EQ(out[15], 0.0F);
    EXPECT_TRUE(ring.atEnd());
    EXPECT_FALSE(ring.starvedRt());
    ring.requestJump(0);
    EXPECT_FALSE(ring.atEnd());
}

TEST_F(PlayerRingTest, CountsAsStarvedOnlyAfterTheFirstFrame) {
    ring.requestJump(0);
    EXPECT_TRUE(hear(8).empty());
    EXPECT_FALSE(ring.starvedRt());
    decode();
    hear(64);
    EXPECT_TRUE(hear(8).empty());
    EXPECT_TRUE(ring.starvedRt());
}

TEST(PlayerRing, WorksBetweenThreeThreads) {
    PlayerRing ring(256, 2);
    std::atomic<bool> over{false};
    ring.requestJump(0);
    std::thread decoder([&] {
        std::int64_t next = 0;
        std::vector<float> block;
        while (!over) {
            if (std::int64_t frame = 0; ring.takeJump(frame)) {
                next = frame;
                ring.beginSegment();
            }
            const auto room = std::min<std::size_t>(ring.room(), 33);
            block.clear();
            for (std::size_t i = 0; i < room; ++i, ++next)
                block.insert(block.end(), {float(next), -float(next)});
            ring.push(block);
        }
    });
    std::atomic<int> broken{0};
    std::thread audio([&] {
        std::vector<float> out(2 * 48);
        while (!over) {
            const auto frames = ring.popRt(out);
            for (std::size_t i = 0; i < frames; ++i)
                broken += out[2 * i] != -out[2 * i + 1] || (i > 0 && out[2 * i] != out[2 * i - 2] + 1);
        }
    });
    for (int i = 0; i < 20000; ++i)
        ring.requestJump(i % 1000 * 1000);
    over = true;
    decoder.join();
    audio.join();
    EXPECT_EQ(broken, 0);
}

} // namespace
