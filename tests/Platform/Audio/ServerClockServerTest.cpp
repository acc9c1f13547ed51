// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Captures a device that does not wait for its listeners: it follows the server's own clock, like a sound card. A
// machine that does not run the server in time loses cycles before they reach the program; these tests distinguish them
// from frames that the program loses.
#include "tests/support/BusyLoops.h"
#include "tests/support/PrivateAudioSession.h"
#include "tests/support/TestSource.h"
#include "tests/support/UnitCapture.h"
#include "tests/support/WaitFor.h"

#include <algorithm>
#include <cstdio>

using namespace Platform;
using namespace Qt::StringLiterals;

namespace {

class ServerClock : public testing::Test {
protected:
    /// Captures a ramp @p seconds long.
    void capture(std::uint32_t rate, double seconds) {
        TestSource source(
            {.name = "test.server.clock", .description = "On the server's clock", .rate = rate, .ownClock = false});
        ASSERT_TRUE(source.start());
        UnitCapture unit(*hardware_, waitForDevice(*hardware_, u"On the server's clock"_s));
        ASSERT_TRUE(unit.start());
        ASSERT_TRUE(waitFor([&] { return double(unit.frames()) >= seconds * rate; }, int(seconds * 1000) + 60000));
        unit.stop();
        lost_ = unit.unit().lostFrames();
        overrun_ = unit.unit().overrunFrames();
        left_ = unit.samples(0);
        // Each frame that was played since the first one either arrived or was counted as lost. More is counted when
        // the source, too, missed cycles of the server's clock: it played nothing in them.
        const auto first = std::ranges::find_if(left_, [](float value) { return value != 0; });
        ASSERT_NE(first, left_.end());
        const auto played = Signal::rampFrame(left_.back(), 0) - Signal::rampFrame(*first, 0) + 1;
        EXPECT_GE(std::uint64_t(left_.end() - first) + lost_, played) << "lost without being counted";
    }

    /// Captures until one attempt has no loss in the server. The program's own part must be right in every attempt.
    void expectNothingOfOursIsLost(std::uint32_t rate) {
        constexpr int attempts = 12;
        int costByTheServer = 0;
        bool whole = false;
        for (int i = 0; i < attempts && !whole; ++i) {
            const BusyLoops busy(4);
            capture(rate, 3);
            if (HasFatalFailure())
                return;
            EXPECT_EQ(overrun_, 0U) << "our ring overflowed in attempt " << i;
            whole = lost_ == 0;
            costByTheServer += whole ? 0 : 1;
        }
        std::printf("%u Hz beside four busy loops: the server cost %d attempts\n", rate, costByTheServer);
        RecordProperty("attemptsThatTheServerCost", costByTheServer);
        ASSERT_TRUE(whole) << "no attempt of " << attempts << " was whole: frames come too late each time";
        EXPECT_TRUE(isUnbrokenRamp(left_, 0));
    }

    PrivateAudioSession& session_ = PrivateAudioSession::shared();
    std::unique_ptr<AudioHardware> hardware_ = createAudioHardware();
    std::uint64_t lost_ = 0;
    std::uint64_t overrun_ = 0;
    std::vector<float> left_;
};

} // namespace

TEST_F(ServerClock, TheProgramLosesNothingAt48000BesideFourBusyLoops) {
    expectNothingOfOursIsLost(48000);
}

TEST_F(ServerClock, TheProgramLosesNothingAt44100BesideFourBusyLoops) {
    expectNothingOfOursIsLost(44100);
}

TEST_F(ServerClock, CountsRingOverrunsSeparatelyFromOtherLosses) {
    TestSource source({.name = "test.overrun", .description = "Overrun", .ownClock = false});
    ASSERT_TRUE(source.start());
    UnitCapture unit(*hardware_, waitForDevice(*hardware_, u"Overrun"_s), 0, false);
    ASSERT_TRUE(unit.start());
    ASSERT_TRUE(waitFor([&] { return unit.frames() > 0; }));
    unit.unit().holdCycles(); // longer than the ring can hold
    ASSERT_TRUE(waitFor([&] { return unit.unit().overrunFrames() > 0; }, 60000));
    EXPECT_LE(unit.unit().overrunFrames(), unit.unit().lostFrames());
    unit.unit().releaseCycles();
    // A device that leaves does not count as an overrun of the ring.
    const auto overrun = unit.unit().overrunFrames();
    ASSERT_TRUE(waitFor([&, before = unit.frames()] { return unit.frames() > before + 48000 * 11; }, 60000));
    source.remove();
    ASSERT_TRUE(waitFor([&] { return unit.heard(InputUnit::Event::DeviceLost); }));
    const auto lost = unit.unit().lostFrames();
    ASSERT_TRUE(source.start());
    ASSERT_TRUE(waitFor([&] { return unit.unit().lostFrames() > lost; }));
    EXPECT_EQ(unit.unit().overrunFrames(), overrun);
}
