// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/Platform/Media/DamagedFiles.h"

TEST(DamagedFiles, NeitherCrashNorBlockTheReader) {
    MediaTest::readDamagedFiles(300, 20261121);
}
