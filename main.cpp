// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "AppDelegate.h"
#include "CommandLine/CommandLine.h"

#include <QApplication>

int main(int argc, char** argv) {
    if (const auto status = CommandLine::runCommand(argc, argv))
        return *status;
    QApplication application(argc, argv);
    AppDelegate delegate;
    return 0;
}
