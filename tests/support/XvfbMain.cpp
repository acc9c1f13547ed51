// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/DefaultSignals.h"
#include "tests/support/DragClient.h"
#include "tests/support/XvfbSession.h"

#include <QApplication>
#include <gtest/gtest.h>

int main(int argc, char** argv) {
    if (const int status = DragClient::run(argc, argv); status >= 0)
        return status; // runs as a second program on the first one's display
    defaultSignals();
    testing::InitGoogleTest(&argc, argv);
    XvfbSession session;
    if (!session.problem().isEmpty()) {
        std::fprintf(stderr, "no display for the tests: %s\n", qPrintable(session.problem()));
        return 1;
    }
    QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
