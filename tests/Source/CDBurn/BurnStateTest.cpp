// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/CDBurn/BurnState.h"

#include <gtest/gtest.h>

namespace {

std::string messageOf(const BurnConditions& conditions) {
    return burnStateMessage(burnState(conditions)).toStdString();
}

constexpr BurnConditions kReady{
    .listIsEmpty = false, .mounted = true, .blank = true, .erasable = false, .musicSize = 686, .discFreeSize = 686};

} // namespace

TEST(BurnStates, TheFirstReasonThatAppliesIsReported) {
    BurnConditions all{.listIsEmpty = true, .mounted = false, .blank = false, .erasable = true, .musicSize = 1};
    EXPECT_EQ(messageOf(all), "Waiting for the import Music File");
    all.mounted = all.blank = true;
    EXPECT_EQ(messageOf(all), "Waiting for the import Music File");
    all.listIsEmpty = all.mounted = false;
    EXPECT_EQ(messageOf(all), "Waiting for the inserted Disc");
    all.mounted = true;
    all.blank = false;
    EXPECT_EQ(messageOf(all), "Is not blank, Please erase the Disc");
    all.erasable = false;
    EXPECT_EQ(messageOf(all), "Is not blank, Please replace the Disc");
    all.blank = true;
    EXPECT_EQ(messageOf(all), "Disc space not enough for music");
}

TEST(BurnStates, MusicThatJustFitsIsReady) {
    BurnConditions conditions = kReady;
    EXPECT_EQ(messageOf(conditions), "Ready to burn");
    ++conditions.musicSize;
    EXPECT_EQ(messageOf(conditions), "Disc space not enough for music");
    conditions.musicSize = 0;
    conditions.discFreeSize = -1;
    EXPECT_EQ(messageOf(conditions), "Disc space not enough for music") << "sizes are signed";
}

TEST(BurnStates, AnErasableBlankDiscIsReadyToo) {
    BurnConditions conditions = kReady;
    conditions.erasable = true;
    EXPECT_EQ(burnState(conditions), BurnState::Ready);
}
