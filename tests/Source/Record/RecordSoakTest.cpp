// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/RecordMix.h"
#include "tests/support/RecordOnServer.h"

namespace {
class RecordSoak : public RecordOnServer {};
} // namespace

TEST_F(RecordSoak, NoFrameIsLostOrRepeatedAtTwoHundredCuts) {
    expectExactCuts(200);
}

TEST_F(RecordMix, SourcesStayAlignedForTenMinutes) {
    expectTogether(600);
}
