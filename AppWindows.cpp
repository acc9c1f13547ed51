// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "AppWindows.h"

std::unique_ptr<AppDelegate::Windows> createAppWindows() {
    return nullptr;
}
