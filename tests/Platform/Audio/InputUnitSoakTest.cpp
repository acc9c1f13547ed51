// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/BusyLoops.h"
#include "tests/support/PrivateAudioSession.h"
#include "tests/support/TestSource.h"
#include "tests/support/UnitCapture.h"
#include "tests/support/WaitFor.h"

#include <vector>

using namespace Platform;
using namespace Qt::StringLiterals;

namespace {

/// Captures a ramp for this long and compares every frame with the one before it, without storing them.
void captureExactly(std::uint32_t rate, double seconds, int busyLoops) {
    PrivateAudioSession::shared();
    const auto hardware = createAudioHardware();
    TestSource source({.name = "test.soak", .description = "Soak", .rate = rate});
    ASSERT_TRUE(source.start());
    const BusyLoops busy(busyLoops);
    UnitCapture capture(*hardware, waitForDevice(*hardware, u"Soak"_s));
    ASSERT_TRUE(capture.start());
    std::uint64_t checked = 0;
    std::vector<float> last(2);
    while (double(checked) < seconds * rate) {
        ASSERT_TRUE(waitFor([&] { return capture.frames() >= std::uint64_t(rate) * 5; }, 60000));
        auto taken = capture.takeAll();
        const auto frames = taken[0].size();
        for (std::uint32_t channel = 0; channel < 2; ++channel) {
            if (checked > 0)
                taken[channel].insert(taken[channel].begin(), last[channel]);
            ASSERT_TRUE(isUnbrokenRamp(taken[channel], channel)) << "after " << double(checked) / rate << " s";
            last[channel] = taken[channel].back();
        }
        checked += frames;
        ASSERT_EQ(capture.unit().lostFrames(), 0u) << "after " << double(checked) / rate << " s";
    }
}

} // namespace

TEST(InputUnitSoak, LosesNothingInAMinuteAt44100BesideFourBusyLoops) {
    captureExactly(44100, 60, 4);
}

TEST(InputUnitSoak, LosesNothingInAMinuteAt48000BesideFourBusyLoops) {
    captureExactly(48000, 60, 4);
}

TEST(InputUnitSoak, LosesNothingInTenMinutesAt44100) {
    captureExactly(44100, 600, 0);
}

TEST(InputUnitSoak, LosesNothingInTenMinutesAt48000) {
    captureExactly(48000, 600, 0);
}
