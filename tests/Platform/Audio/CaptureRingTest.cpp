// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Audio/CaptureRing.h"

#include "Platform/Audio/CycleAssembler.h"
#include "tests/support/TestSource.h"
#include "tests/support/UnitCapture.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <cerrno>
#include <cstring>
#include <fstream>
#include <sstream>
#include <thread>
#include <vector>

#include <sys/mman.h>
#include <unistd.h>

using namespace Platform;

namespace {

/// Writes a ramp into a ring, block by block; the test plays the role of the audio thread.
class Producer {
public:
    explicit Producer(CaptureRing& ring) : ring_(ring), samples_(ring.channels()), pointers_(ring.channels()) {}

    bool push(std::uint32_t frames, std::uint64_t lostBefore = 0, bool startsAnew = false) {
        position_ += lostBefore;
        for (std::uint32_t c = 0; c < ring_.channels(); ++c) {
            samples_[c].resize(frames);
            for (std::uint32_t i = 0; i < frames; ++i)
                samples_[c][i] = Signal::ramp(position_ + i, c);
            pointers_[c] = samples_[c].data();
        }
        const bool stored = ring_.pushRt(
            pointers_,
            {.hostTime = position_ * 1000, .lostBefore = lostBefore, .frames = frames, .startsAnew = startsAnew});
        position_ += frames;
        return stored;
    }

private:
    CaptureRing& ring_;
    std::vector<std::vector<float>> samples_;
    std::vector<const float*> pointers_;
    std::uint64_t position_ = 1000; // does not start at 0, so that the first values differ from silence
};

/// At a million frames per second a frame lasts a microsecond, so host times can be read as frame numbers.
constexpr double rate = 1e6;

std::vector<float> copyOf(const CycleAssembler& assembler, const CaptureCycle& cycle, std::uint32_t channel = 0) {
    return {assembler.channel(channel), assembler.channel(channel) + cycle.frames};
}

/// An address range; the end is not included.
using AddressRange = std::pair<std::uintptr_t, std::uintptr_t>;

/// The writable memory mappings of this process, in order.
std::vector<AddressRange> memoryTaken() {
    std::vector<AddressRange> all;
    std::ifstream maps("/proc/self/maps");
    for (std::string line; std::getline(maps, line);) {
        std::istringstream words(line);
        AddressRange each;
        char dash = 0;
        std::string rights;
        words >> std::hex >> each.first >> dash >> each.second >> rights;
        if (rights.starts_with("rw"))
            all.push_back(each);
    }
    return all;
}

/// The parts of @p all that lie outside @p others.
std::vector<AddressRange> without(const std::vector<AddressRange>& all, const std::vector<AddressRange>& others) {
    std::vector<AddressRange> left;
    for (auto [begin, end] : all) {
        for (const auto& [otherBegin, otherEnd] : others) {
            if (otherEnd <= begin || otherBegin >= end)
                continue;
            if (begin < otherBegin)
                left.emplace_back(begin, otherBegin);
            begin = std::min(end, otherEnd);
        }
        if (begin < end)
            left.emplace_back(begin, end);
    }
    return left;
}

std::size_t sizeOf(const std::vector<AddressRange>& ranges) {
    std::size_t sum = 0;
    for (const auto& [begin, end] : ranges)
        sum += end - begin;
    return sum;
}

/// Bytes of these ranges whose pages are resident.
std::size_t occupied(const std::vector<AddressRange>& ranges) {
    const auto page = std::size_t(sysconf(_SC_PAGESIZE));
    std::size_t pages = 0;
    for (const auto& [begin, end] : ranges) {
        std::vector<unsigned char> there((end - begin) / page);
        EXPECT_EQ(mincore(reinterpret_cast<void*>(begin), end - begin, there.data()), 0) << std::strerror(errno);
        pages += std::size_t(std::ranges::count_if(there, [](unsigned char each) { return (each & 1) != 0; }));
    }
    return pages * page;
}

} // namespace

TEST(CaptureRing, KeepsBlocksIntactAcrossItsEnd) {
    CaptureRing ring(2, 256);
    Producer producer(ring);
    std::vector<float> left;
    std::vector<float> right;
    for (int i = 0; i < 40; ++i) {
        ASSERT_TRUE(producer.push(100));
        std::array<float, 100> a{};
        std::array<float, 100> b{};
        const std::array<float*, 2> out = {a.data(), b.data()};
        ASSERT_EQ(ring.take(out, 100), 100u);
        left.insert(left.end(), a.begin(), a.end());
        right.insert(right.end(), b.begin(), b.end());
    }
    EXPECT_TRUE(isUnbrokenRamp(left, 0));
    EXPECT_TRUE(isUnbrokenRamp(right, 1));
    EXPECT_EQ(ring.lostFrames(), 0u);
}

TEST(CaptureRing, RejectsAndCountsABlockThatDoesNotFit) {
    CaptureRing ring(1, 256);
    Producer producer(ring);
    EXPECT_TRUE(producer.push(200));
    EXPECT_FALSE(producer.push(100));
    EXPECT_EQ(ring.lostFrames(), 100u);
    EXPECT_TRUE(producer.push(56));
    EXPECT_EQ(ring.lostFrames(), 100u);
}

TEST(CaptureRing, ReportsLostFramesWithTheNextBlock) {
    CaptureRing ring(1, 256);
    Producer producer(ring);
    ASSERT_TRUE(producer.push(256));
    ASSERT_FALSE(producer.push(60));
    ASSERT_FALSE(producer.push(40));
    std::array<float, 256> samples{};
    const std::array<float*, 1> out = {samples.data()};
    ASSERT_EQ(ring.take(out, 256), 256u);
    ASSERT_TRUE(producer.push(10, 7));
    CaptureBlock block;
    std::uint32_t taken = 0;
    ASSERT_TRUE(ring.front(block, taken));
    EXPECT_EQ(block.lostBefore, 107u);
    EXPECT_EQ(ring.lostFrames(), 107u);
}

TEST(CaptureRing, TheTimeBeforeANewConnectionIsCountedApart) {
    CaptureRing ring(1, 256);
    const std::array<float, 10> samples{};
    const std::array<const float*, 1> in = {samples.data()};
    ASSERT_TRUE(ring.pushRt(in, {.lostBefore = 7, .frames = 10}));
    EXPECT_EQ(ring.awayFrames(), 0u);
    ASSERT_TRUE(ring.pushRt(in, {.lostBefore = 1000, .frames = 10, .startsAnew = true}));
    EXPECT_EQ(ring.awayFrames(), 1000u);
    EXPECT_EQ(ring.lostFrames(), 1007u);
}

TEST(CaptureRing, CountsLostFramesWhenFullOfSmallBlocks) {
    CaptureRing ring(1, 1024);
    Producer producer(ring);
    std::uint64_t stored = 0;
    for (int i = 0; i < 1000; ++i)
        stored += producer.push(1) ? 1 : 0;
    EXPECT_EQ(stored + ring.lostFrames(), 1000u);
    EXPECT_GT(ring.lostFrames(), 0u);
}

TEST(CaptureRing, AMissingChannelIsSilent) {
    CaptureRing ring(2, 64);
    const std::array<float, 4> samples = {1, 1, 1, 1};
    const std::array<const float*, 2> pointers = {samples.data(), nullptr};
    ASSERT_TRUE(ring.pushRt(pointers, {.frames = 4}));
    std::array<float, 4> a{};
    std::array<float, 4> b = {9, 9, 9, 9};
    const std::array<float*, 2> out = {a.data(), b.data()};
    ASSERT_EQ(ring.take(out, 4), 4u);
    EXPECT_EQ(a[3], 1.0f);
    EXPECT_EQ(b[3], 0.0f);
}

TEST(CaptureRing, TouchesOnlyTheMemoryThatItNeeded) {
    constexpr std::size_t frames = 1 << 25;
    constexpr std::size_t whole = 2 * frames * sizeof(float);
    const auto before = memoryTaken();
    CaptureRing ring(2, frames);
    const auto own = without(memoryTaken(), before);
    ASSERT_GE(sizeOf(own), whole) << "the ring's memory is among what came";
    ASSERT_LT(sizeOf(own), 2 * whole) << "and little else";
    const std::vector<float> samples(1 << 14, 1.0f);
    const std::array<const float*, 2> in = {samples.data(), samples.data()};
    std::vector<float> taken(samples.size());
    const std::array<float*, 2> out = {taken.data(), taken.data()};
    for (std::size_t passed = 0; passed < 2 * frames; passed += samples.size()) {
        ASSERT_TRUE(ring.pushRt(in, {.frames = std::uint32_t(samples.size())}));
        ASSERT_EQ(ring.take(out, std::uint32_t(samples.size())), samples.size());
    }
    EXPECT_GE(occupied(own), 2 * CaptureRing::readyFrames * sizeof(float));
    EXPECT_LT(occupied(own), whole / 4);
}

TEST(CaptureRing, LosesAndRepeatsNothingBetweenTwoThreads) {
    CaptureRing ring(2, 4096);
    constexpr std::uint64_t total = 400'000;
    std::atomic<std::uint64_t> consumed{0};
    std::thread audio([&] {
        Producer producer(ring);
        std::uint64_t pushed = 0;
        for (std::uint32_t size = 1; pushed < total; size = size % 700 + 13) {
            // A real source runs at its own rate; here it waits for the reader, so that nothing may be lost.
            while (pushed + size > consumed.load(std::memory_order_acquire) + 4096)
                std::this_thread::yield();
            ASSERT_TRUE(producer.push(size));
            pushed += size;
        }
    });
    CycleAssembler assembler(ring, rate, 512);
    std::vector<float> left;
    std::vector<float> right;
    while (left.size() + 512 <= total) {
        CaptureCycle cycle;
        if (!assembler.next(cycle, false)) {
            consumed.store(left.size(), std::memory_order_release);
            std::this_thread::yield();
            continue;
        }
        const auto a = copyOf(assembler, cycle, 0);
        const auto b = copyOf(assembler, cycle, 1);
        left.insert(left.end(), a.begin(), a.end());
        right.insert(right.end(), b.begin(), b.end());
        consumed.store(left.size(), std::memory_order_release);
    }
    audio.join();
    EXPECT_TRUE(isUnbrokenRamp(left, 0));
    EXPECT_TRUE(isUnbrokenRamp(right, 1));
    EXPECT_EQ(ring.lostFrames(), 0u);
}

TEST(CaptureRing, CountsEveryFrameLostToASlowReader) {
    CaptureRing ring(1, 2048);
    constexpr std::uint64_t total = 300'000;
    std::atomic<bool> done{false};
    std::thread audio([&] {
        Producer producer(ring);
        for (std::uint64_t pushed = 0; pushed < total; pushed += 100)
            (void)producer.push(100);
        done = true;
    });
    CycleAssembler assembler(ring, rate, 256);
    std::uint64_t received = 0;
    for (bool last = false; !last;) {
        last = done;
        CaptureCycle cycle;
        while (assembler.next(cycle, false, last))
            received += cycle.frames;
        std::this_thread::yield();
    }
    audio.join();
    EXPECT_EQ(received + ring.lostFrames(), total);
}

TEST(CycleAssembler, MakesCyclesOfOneSizeFromBlocksOfAnySize) {
    CaptureRing ring(1, 4096);
    Producer producer(ring);
    CycleAssembler assembler(ring, rate, 256);
    std::vector<float> samples;
    std::uint64_t sampleTime = 0;
    for (const std::uint32_t size : {100u, 100u, 100u, 941u, 1u, 7u, 512u, 912u}) {
        ASSERT_TRUE(producer.push(size));
        CaptureCycle cycle;
        while (assembler.next(cycle, false)) {
            EXPECT_EQ(cycle.frames, 256u);
            EXPECT_EQ(cycle.sampleTime, sampleTime);
            EXPECT_EQ(cycle.hostTime, (1000 + sampleTime) * 1000);
            sampleTime += cycle.frames;
            const auto part = copyOf(assembler, cycle);
            samples.insert(samples.end(), part.begin(), part.end());
        }
    }
    EXPECT_EQ(samples.size(), 2673u / 256 * 256);
    EXPECT_TRUE(isUnbrokenRamp(samples, 0));
}

TEST(CycleAssembler, LeavesBlocksInTheRingThatBeginTooLate) {
    CaptureRing ring(1, 4096);
    Producer producer(ring);
    CycleAssembler assembler(ring, rate, 256);
    ASSERT_TRUE(producer.push(300));
    ASSERT_TRUE(producer.push(300));
    CaptureCycle cycle;
    EXPECT_FALSE(assembler.next(cycle, false, false, 999'999));
    ASSERT_TRUE(assembler.next(cycle, false, false, 1'299'999));
    EXPECT_FALSE(assembler.next(cycle, false, false, 1'299'999)) << "the second block is not ripe";
    ASSERT_TRUE(assembler.next(cycle, false, false, 1'300'000));
    EXPECT_EQ(cycle.frames, 256u);
    EXPECT_EQ(cycle.hostTime, 1'256'000u) << "nothing was lost";
}

TEST(CycleAssembler, EndsACycleEarlyWhereFramesWereLost) {
    CaptureRing ring(1, 4096);
    Producer producer(ring);
    CycleAssembler assembler(ring, rate, 256);
    ASSERT_TRUE(producer.push(300));
    ASSERT_TRUE(producer.push(300, 50));
    CaptureCycle cycle;
    ASSERT_TRUE(assembler.next(cycle, false));
    EXPECT_EQ(cycle.frames, 256u);
    ASSERT_TRUE(assembler.next(cycle, false));
    EXPECT_EQ(cycle.frames, 44u);
    ASSERT_TRUE(assembler.next(cycle, false));
    EXPECT_EQ(cycle.frames, 256u);
    EXPECT_EQ(cycle.sampleTime, 350u);
    EXPECT_EQ(cycle.hostTime, 1'350'000u);
    EXPECT_FALSE(assembler.next(cycle, false));
}

TEST(CycleAssembler, ReplacesLostFramesWithSilenceOfEqualLength) {
    CaptureRing ring(1, 4096);
    Producer producer(ring);
    CycleAssembler assembler(ring, rate, 256);
    ASSERT_TRUE(producer.push(300));
    ASSERT_TRUE(producer.push(300, 1000));
    std::vector<float> samples;
    CaptureCycle cycle;
    while (assembler.next(cycle, true)) {
        EXPECT_EQ(cycle.frames, 256u);
        EXPECT_EQ(cycle.hostTime, (1000 + samples.size()) * 1000);
        EXPECT_EQ(cycle.sampleTime, samples.size());
        const auto part = copyOf(assembler, cycle);
        samples.insert(samples.end(), part.begin(), part.end());
    }
    ASSERT_EQ(samples.size(), 1536u);
    for (std::uint64_t i = 0; i < samples.size(); ++i)
        ASSERT_EQ(samples[i], i >= 300 && i < 1300 ? 0.0f : Signal::ramp(1000 + i, 0)) << i;
}

TEST(CycleAssembler, RestartsTheTimeWithANewConnection) {
    CaptureRing ring(1, 4096);
    Producer producer(ring);
    CycleAssembler assembler(ring, rate, 256);
    ASSERT_TRUE(producer.push(100));
    ASSERT_TRUE(producer.push(256, 500, true));
    CaptureCycle cycle;
    ASSERT_TRUE(assembler.next(cycle, false));
    EXPECT_EQ(cycle.frames, 100u);
    EXPECT_FALSE(cycle.startsAnew);
    ASSERT_TRUE(producer.push(256));
    ASSERT_TRUE(assembler.next(cycle, false));
    EXPECT_EQ(cycle.frames, 256u);
    EXPECT_EQ(cycle.hostTime, 1'600'000u);
    EXPECT_TRUE(cycle.startsAnew);
    ASSERT_TRUE(assembler.next(cycle, false));
    EXPECT_FALSE(cycle.startsAnew);
}

TEST(CycleAssembler, DeliversAnIncompleteCycleOnFlush) {
    CaptureRing ring(1, 4096);
    Producer producer(ring);
    CycleAssembler assembler(ring, rate, 256);
    ASSERT_TRUE(producer.push(100));
    CaptureCycle cycle;
    EXPECT_FALSE(assembler.next(cycle, false));
    ASSERT_TRUE(assembler.next(cycle, false, true));
    EXPECT_EQ(cycle.frames, 100u);
    EXPECT_FALSE(assembler.next(cycle, false, true));
}

TEST(CycleAssembler, FillsAGapLongerThanTheRing) {
    CaptureRing ring(2, 256);
    Producer producer(ring);
    CycleAssembler assembler(ring, rate, 64);
    ASSERT_TRUE(producer.push(10));
    ASSERT_TRUE(producer.push(10, 100'000, true));
    std::uint64_t frames = 0;
    CaptureCycle cycle;
    while (assembler.next(cycle, true, true))
        frames += cycle.frames;
    EXPECT_EQ(frames, 100'020u);
    EXPECT_EQ(ring.lostFrames(), 100'000u);
}
