// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/DefaultSignals.h"

#include <QApplication>
#include <gtest/gtest.h>

int main(int argc, char** argv) {
    defaultSignals();
    testing::InitGoogleTest(&argc, argv);
    QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
