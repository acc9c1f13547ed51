// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Media/linux/encode/PlaneRing.h"

#include <array>
#include <thread>

using namespace Platform;

namespace {

std::size_t pushRamp(PlaneRing& ring, std::uint64_t from, std::size_t frames) {
    std::vector<float> left(frames);
    std::vector<float> right(frames);
    for (std::size_t i = 0; i < frames; ++i) {
        left[i] = float((from + i) % 65536);
        right[i] = -left[i];
    }
    const std::array<const float*, 2> rows = {left.data(), right.data()};
    return ring.push(rows.data(), 1, frames);
}

} // namespace

TEST(PlaneRing, StartsAtTheBeginningOfItsMemoryWhenEmpty) {
    PlaneRing ring(2, 1024);
    std::vector<const float*> rows;
    ASSERT_EQ(pushRamp(ring, 0, 300), 300u);
    ASSERT_EQ(ring.peek(rows, 1024), 300u);
    const auto start = rows;
    ring.release(300);
    ASSERT_EQ(pushRamp(ring, 300, 300), 300u);
    ASSERT_EQ(ring.peek(rows, 1024), 300u);
    EXPECT_EQ(rows, start);
    ring.release(299);
    ASSERT_EQ(pushRamp(ring, 600, 300), 300u);
    EXPECT_EQ(ring.peek(rows, 1024), 301u) << "what waits stays where it is";
    EXPECT_EQ(rows[0], start[0] + 299);
}

TEST(PlaneRing, StoresAsMuchAsFitsAcrossItsEnd) {
    PlaneRing ring(2, 1024);
    std::vector<const float*> rows;
    ASSERT_EQ(pushRamp(ring, 0, 1000), 1000u);
    ASSERT_EQ(ring.peek(rows, 900), 900u);
    ring.release(900);
    ASSERT_EQ(pushRamp(ring, 1000, 2000), 924u);
    EXPECT_EQ(pushRamp(ring, 1924, 1), 0u);
    for (std::uint64_t next = 900; next < 1924;) {
        const std::size_t count = ring.peek(rows, 5000);
        ASSERT_GT(count, 0u);
        for (std::size_t i = 0; i < count; ++i, ++next) {
            ASSERT_EQ(rows[0][i], float(next));
            ASSERT_EQ(rows[1][i], -float(next));
        }
        ring.release(count);
    }
    EXPECT_EQ(ring.peek(rows, 1), 0u);
}

TEST(PlaneRing, LosesAndRepeatsNothingBetweenTwoThreads) {
    PlaneRing ring(2, 4096);
    constexpr std::uint64_t total = 2'000'000;
    std::thread producer([&] {
        std::uint64_t pushed = 0;
        for (std::size_t size = 1; pushed < total; size = size % 700 + 13) {
            pushed += pushRamp(ring, pushed, size);
            std::this_thread::yield();
        }
    });
    std::vector<const float*> rows;
    std::uint64_t next = 0;
    std::uint64_t wrong = 0;
    while (next < total) {
        const std::size_t count = ring.peek(rows, 512);
        for (std::size_t i = 0; i < count; ++i, ++next)
            wrong += rows[0][i] != float(next % 65536) || rows[1][i] != -rows[0][i];
        ring.release(count);
        if (count == 0)
            std::this_thread::yield();
    }
    producer.join();
    EXPECT_EQ(wrong, 0u);
}
