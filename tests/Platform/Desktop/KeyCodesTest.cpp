// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Desktop/KeyCodes.h"

#include <gtest/gtest.h>

using namespace Platform::KeyCodes;

TEST(KeyCodes, MapTheLettersOfTheDefaultShortcuts) {
    EXPECT_EQ(physicalKey(1), 31);  // S
    EXPECT_EQ(physicalKey(35), 25); // P
    EXPECT_EQ(physicalKey(45), 49); // N
    EXPECT_EQ(physicalKey(0), 30);  // A, whose code 0 does not mean "none"
}

TEST(KeyCodes, RoundTripEveryKey) {
    int known = 0;
    for (std::uint16_t code = 0; code < 128; ++code) {
        const auto key = physicalKey(code);
        if (!key)
            continue;
        ++known;
        EXPECT_EQ(virtualKeyCode(*key), code);
        EXPECT_EQ(virtualKeyCodeOfScanCode(*key + 8U), code);
        EXPECT_FALSE(keysymName(code).isEmpty()) << code;
    }
    EXPECT_GT(known, 100);
}

TEST(KeyCodes, UnknownKeysHaveNoCode) {
    EXPECT_FALSE(physicalKey(0xFFFF));
    EXPECT_FALSE(virtualKeyCode(0));
    EXPECT_FALSE(virtualKeyCodeOfScanCode(0));
    EXPECT_FALSE(virtualKeyCodeOfScanCode(7));
    EXPECT_FALSE(virtualKeyCodeOfScanCode(0xFFFFFFFF));
    EXPECT_FALSE(virtualKeyCodeOfSign(Qt::Key_unknown));
    EXPECT_TRUE(keysymName(0xFFFF).isEmpty());
}

TEST(KeyCodes, MapCharactersToTheirAnsiKeys) {
    EXPECT_EQ(virtualKeyCodeOfSign(Qt::Key_S), 1);
    EXPECT_EQ(virtualKeyCodeOfSign(Qt::Key_F5), 96);
    EXPECT_EQ(virtualKeyCodeOfSign(Qt::Key_Space), 49);
}
