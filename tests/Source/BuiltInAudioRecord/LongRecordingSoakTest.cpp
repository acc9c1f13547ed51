// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/SimulatedHours.h"

using LongRecordingSoak = SimulatedHours;

TEST_F(LongRecordingSoak, UsesConstantMemoryForAnHour) {
    std::int64_t kept = 0;
    record(3600, kept);
    // The size and position of each packet take some bytes; an hour has 155,000 packets.
    EXPECT_LT(kept, 8 * 1024 * 1024);
}
