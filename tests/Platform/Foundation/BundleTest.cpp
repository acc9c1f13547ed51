// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Foundation/linux/LinuxFoundation.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>
#include <QTimeZone>

#include <chrono>

TEST(Bundle, FindsItsResourcesBesideTheProgramFirst) {
    QTemporaryDir dir;
    QDir(dir.path()).mkpath(QStringLiteral("bin"));
    const QString bin = dir.filePath(QStringLiteral("bin"));
    const auto installed = Platform::createBundle(bin);
    EXPECT_EQ(installed->resourcePath(), dir.filePath(QStringLiteral("share/sonaphex")));
    EXPECT_TRUE(installed->toolsPath().startsWith(dir.filePath(QStringLiteral("lib"))))
        << qPrintable(installed->toolsPath());
    EXPECT_TRUE(installed->toolsPath().endsWith(QStringLiteral("/sonaphex"))) << qPrintable(installed->toolsPath());
    QDir(bin).mkpath(QStringLiteral("Resources"));
    const auto bundle = Platform::createBundle(bin);
    EXPECT_EQ(bundle->resourcePath(), bin + QStringLiteral("/Resources"));
    EXPECT_EQ(bundle->pathForTool(QStringLiteral("SetArtWork")), bin + QStringLiteral("/Resources/SetArtWork"));
    EXPECT_EQ(bundle->bundleIdentifier(), QStringLiteral("com.korvane.Sonaphex"));
}

TEST(Bundle, KnowsTheFolderOfTheRunningProgram) {
    EXPECT_TRUE(Platform::createBundle()->resourcePath().startsWith(QStringLiteral(SONAPHEX_BIN_DIR)));
}

TEST(Clock, CountsFromTheFirstOfJanuary2001) {
    const auto clock = Platform::createClock();
    const QDateTime reference(QDate(2001, 1, 1), QTime(0, 0), QTimeZone::utc());
    const QDateTime before = QDateTime::currentDateTimeUtc();
    const double seconds = clock->timeIntervalSinceReferenceDate();
    const QDateTime now = clock->now();
    const QDateTime after = QDateTime::currentDateTimeUtc();
    EXPECT_GE(seconds, double(reference.msecsTo(before)) / 1000.0 - 0.001);
    EXPECT_LE(seconds, double(reference.msecsTo(after)) / 1000.0 + 0.001);
    EXPECT_GE(now, before);
    EXPECT_LE(now, after);
}

TEST(Clock, ReturnsTheCaptureTimeInsideACycle) {
    const auto clock = Platform::createClock();
    const auto before = clock->hostTime();
    {
        const Platform::HostTimeScope cycle(42);
        EXPECT_EQ(clock->hostTime(), 42U);
        {
            const Platform::HostTimeScope inner(43);
            EXPECT_EQ(clock->hostTime(), 43U);
        }
        EXPECT_EQ(clock->hostTime(), 42U);
    }
    EXPECT_GE(clock->hostTime(), before);
}
