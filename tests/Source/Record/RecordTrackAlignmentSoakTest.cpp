// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/TrackAlignment.h"

TEST_F(TrackAlignment, TracksStayTogetherForAnHour) {
    expectAligned(3600);
}
