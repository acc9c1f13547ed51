// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/SimulatedHours.h"

using LongRecordingSoak = SimulatedHours;

TEST_F(LongRecordingSoak, GrowsNoMemoryInAnHourAndClosesInHalfASecond) {
    std::int64_t kept = 0;
    // What was still in the ring is encoded first: up to ten seconds of audio, a third of a second's work.
    EXPECT_LT(record(3600, kept), 1000);
    // A packet's size and place in the file take some bytes; an hour has 155,000 packets.
    EXPECT_LT(kept, 8 * 1024 * 1024);
}
