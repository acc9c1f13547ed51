// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "AppDelegate.h"

#include <QApplication>

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    AppDelegate delegate;
    return 0;
}
