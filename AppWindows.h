// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "AppDelegate.h"

/// The program's own windows.
[[nodiscard]] std::unique_ptr<AppDelegate::Windows> createAppWindows();
