// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Foundation/Dictionary.h"

#include <gtest/gtest.h>

using Platform::boolValue;
using Platform::intValue;
using Platform::isNumber;

TEST(Dictionary, ReadsTheLeadingDigitsOfAText) {
    EXPECT_EQ(intValue(QStringLiteral("300ms")), 300);
    EXPECT_EQ(intValue(QStringLiteral("  -7 days")), -7);
    EXPECT_EQ(intValue(QStringLiteral("soon")), 0);
    EXPECT_EQ(intValue(QString()), 0);
    EXPECT_EQ(intValue(QStringLiteral("99999999999")), std::numeric_limits<int>::max());
}

TEST(Dictionary, TruncatesNumbersTowardsZero) {
    EXPECT_EQ(intValue(2.9), 2);
    EXPECT_EQ(intValue(-2.9), -2);
    EXPECT_EQ(intValue(true), 1);
    EXPECT_EQ(intValue(std::nan("")), 0);
}

TEST(Dictionary, GivesZeroForOtherTypes) {
    EXPECT_EQ(intValue(QVariant()), 0);
    EXPECT_EQ(intValue(QVariantList{1, 2}), 0);
    EXPECT_FALSE(boolValue(QVariantMap{{QStringLiteral("a"), 1}}));
}

TEST(Dictionary, DistinguishesNumbersFromBooleansAndTexts) {
    EXPECT_TRUE(isNumber(0));
    EXPECT_TRUE(isNumber(qulonglong(7)));
    EXPECT_TRUE(isNumber(0.5));
    EXPECT_FALSE(isNumber(true));
    EXPECT_FALSE(isNumber(QStringLiteral("7")));
    EXPECT_FALSE(isNumber(QVariant()));
}

TEST(Dictionary, ConvertsStoredObjectsToBooleans) {
    EXPECT_TRUE(boolValue(1));
    EXPECT_TRUE(boolValue(QStringLiteral("YES")));
    EXPECT_TRUE(boolValue(QStringLiteral("0012")));
    EXPECT_FALSE(boolValue(QStringLiteral("000")));
    EXPECT_FALSE(boolValue(QStringLiteral("NO")));
    EXPECT_FALSE(boolValue(0.0));
}
