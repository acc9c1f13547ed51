// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// What a unit does while its cycles are needed for nothing, or only later.
#include "tests/support/PrivateAudioSession.h"
#include "tests/support/ServerWatch.h"
#include "tests/support/TestCapture.h"
#include "tests/support/TestSource.h"
#include "tests/support/UnitCapture.h"
#include "tests/support/WaitFor.h"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <memory>

using namespace Platform;
using namespace Qt::StringLiterals;
using Event = InputUnit::Event;
using Use = InputUnit::Use;

namespace {

class InputUnitUseTest : public testing::Test {
protected:
    AudioObjectID add(TestSource& source) {
        EXPECT_TRUE(source.start());
        return waitForDevice(*hardware_, QString::fromStdString(source.options().description));
    }
    /// Waits until so many frames came since the call.
    [[nodiscard]] static bool captures(const UnitCapture& capture, std::uint64_t frames) {
        return waitFor([&, before = capture.frames()] { return capture.frames() >= before + frames; });
    }

    PrivateAudioSession& session_ = PrivateAudioSession::shared();
    std::unique_ptr<AudioHardware> hardware_ = createAudioHardware();
};

/// Frames that were delivered when everything that was captured until now is.
std::uint64_t framesUntilNow(UnitCapture& capture) {
    const HeldCycles held(&capture.unit());
    return capture.frames();
}

std::vector<float> from(const std::vector<float>& samples, std::uint64_t first) {
    return {samples.begin() + std::ptrdiff_t(first), samples.end()};
}

} // namespace

TEST_F(InputUnitUseTest, WhatIsNeededForNothingIsNotCapturedAndItsDeviceSleeps) {
    TestSource source({.name = "test.unused", .description = "Unused"});
    UnitCapture capture(*hardware_, add(source));
    ASSERT_TRUE(capture.start());
    ASSERT_TRUE(captures(capture, 24000));
    ServerWatch server;
    ASSERT_TRUE(server.start());
    EXPECT_EQ(server.stateOf("test.unused"), "running");
    capture.unit().setUse(Use::Nothing);
    EXPECT_TRUE(waitFor([&] { return server.stateOf("test.unused") == "suspended"; }, 30000));
    const auto before = capture.frames();
    const auto played = source.position();
    EXPECT_EQ(capture.unit().lostFrames(), 0U);
    EXPECT_FALSE(capture.heard(Event::NothingComes));

    capture.unit().setUse(Use::Now);
    EXPECT_GT(source.position(), played) << "it returned before the device delivered";
    ASSERT_TRUE(captures(capture, 48000));
    capture.stop();
    EXPECT_EQ(capture.unit().lostFrames(), 0U);
    EXPECT_TRUE(isUnbrokenRamp(from(capture.samples(0), before), 0));
}

TEST_F(InputUnitUseTest, EachFrameAfterTheReturnIsDelivered) {
    TestSource source({.name = "test.again", .description = "Used again"});
    UnitCapture capture(*hardware_, add(source));
    ASSERT_TRUE(capture.start());
    for (int i = 0; i < 5; ++i) {
        ASSERT_TRUE(captures(capture, 12000));
        capture.unit().setUse(Use::Nothing);
        // The pause reaches the device a moment later, or not at all when it is over before.
        ServerWatch server;
        ASSERT_TRUE(server.start());
        if (i % 2 == 0) {
            EXPECT_TRUE(waitFor([&] { return server.stateOf("test.again") == "idle"; }));
        }
        capture.unit().setUse(Use::Now);
        const auto returned = source.position();
        const auto first = framesUntilNow(capture);
        ASSERT_TRUE(captures(capture, 24000));
        const auto samples = from(capture.samples(0), first);
        EXPECT_TRUE(isUnbrokenRamp(samples, 0));
        // Position counts what the source has played, up to two of its cycles more than what was captured.
        EXPECT_LE(Signal::rampFrame(samples.front(), 0), returned + 2048);
    }
    capture.stop();
    EXPECT_EQ(capture.unit().lostFrames(), 0U);
}

TEST_F(InputUnitUseTest, WhatIsNeededLaterComesTwiceASecondAndAllOfIt) {
    TestSource source({.description = "Later"});
    UnitCapture capture(*hardware_, add(source));
    std::atomic<std::int64_t> longest{0};
    capture.inCycle = [&, last = std::chrono::steady_clock::time_point{}]() mutable {
        const auto now = std::chrono::steady_clock::now();
        if (last != std::chrono::steady_clock::time_point{})
            longest = std::max<std::int64_t>(longest, std::chrono::nanoseconds(now - last).count());
        last = now;
    };
    ASSERT_TRUE(capture.start());
    capture.unit().setUse(Use::Later);
    longest = 0;
    ASSERT_TRUE(captures(capture, 96000));
    EXPECT_GE(longest, 400'000'000) << "the thread woke more often";
    int complete = 0; // the hold waits for a tenth of a second only: a busy machine may need more
    for (int i = 0; i < 5; ++i) {
        const auto played = source.position();
        ASSERT_TRUE(waitFor([&] { return source.position() > played + 12000; }));
        const auto before = source.position();
        complete += framesUntilNow(capture) + 3 * 2048 >= before ? 1 : 0;
    }
    EXPECT_GE(complete, 3) << "a hold did not deliver what was captured";
    capture.stop();
    EXPECT_TRUE(isUnbrokenRamp(capture.samples(0), 0));
    EXPECT_EQ(capture.unit().lostFrames(), 0U);
}

TEST_F(InputUnitUseTest, ADeviceThatReturnsWhileItIsNotNeededIsReportedAndNotCaptured) {
    TestSource source({.name = "test.unused.unplug", .description = "Unused, unplugged"});
    UnitCapture capture(*hardware_, add(source));
    capture.unit().setUse(Use::Nothing);
    ASSERT_TRUE(capture.start());
    source.remove();
    ASSERT_TRUE(waitFor([&] { return capture.heard(Event::DeviceLost); }));
    ASSERT_TRUE(source.start());
    ASSERT_TRUE(waitFor([&] { return capture.heard(Event::DeviceReturned); }));
    ServerWatch server;
    ASSERT_TRUE(server.start());
    EXPECT_TRUE(waitFor([&] { return server.stateOf("test.unused.unplug") == "suspended"; }, 30000));
    capture.unit().setUse(Use::Later);
    const auto first = framesUntilNow(capture);
    ASSERT_TRUE(captures(capture, 24000));
    capture.stop();
    EXPECT_TRUE(isUnbrokenRamp(from(capture.samples(0), first), 0));
}
