// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Audio/CaptureRing.h"
#include "Platform/Audio/CycleAssembler.h"

#include <array>
#include <malloc.h>

#include <gtest/gtest.h>

using namespace Platform;

namespace {

/// Bytes in use on the heap.
std::size_t heapInUse() {
    return mallinfo2().uordblks + mallinfo2().hblkhd;
}

} // namespace

TEST(CaptureHour, UsesNoMoreMemoryAtItsEndThanAtItsBeginning) {
    constexpr double rate = 48000;
    CaptureRing ring(2, std::size_t(10 * rate));
    CycleAssembler assembler(ring, rate, 1024);
    std::array<float, 2048> samples{};
    const std::array<const float*, 2> pointers = {samples.data(), samples.data()};
    const std::size_t before = heapInUse();
    std::uint64_t pushed = 0;
    std::uint64_t received = 0;
    // Quanta of changing size, an occasional lost one, and a reader that sleeps for a while every minute.
    for (std::uint32_t size = 512; pushed < std::uint64_t(3600 * rate); size = size == 2048 ? 480 : size + 8) {
        const std::uint64_t lost = pushed % 1000 == 0 ? 100 : 0;
        (void)ring.pushRt(pointers, {.hostTime = pushed, .lostBefore = lost, .frames = size});
        pushed += size;
        const bool asleep = std::uint64_t(double(pushed) / rate) % 60 < 12;
        CaptureCycle cycle;
        while (!asleep && assembler.next(cycle, true))
            received += cycle.frames;
    }
    CaptureCycle cycle;
    while (assembler.next(cycle, true, true))
        received += cycle.frames;
    EXPECT_EQ(heapInUse(), before);
    // Every frame came out, either unchanged or as silence; the lost frames were replaced by silence.
    EXPECT_GT(ring.lostFrames(), 0u);
    EXPECT_GE(received, pushed - 12 * 48000);
}
