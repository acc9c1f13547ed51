// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/SimulatedHours.h"

using LongRecording = SimulatedHours;

TEST_F(LongRecording, UsesConstantMemoryForTwoMinutes) {
    std::int64_t kept = 0;
    record(120, kept);
    EXPECT_LT(kept, 512 * 1024);
}
