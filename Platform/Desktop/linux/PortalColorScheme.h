// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Desktop/ColorScheme.h"

#include <memory>

namespace Platform {

/// Asks the desktop portal's settings and follows their changes. The environment variable SONAPHEX_COLOR_SCHEME
/// ("light" or "dark") overrides the desktop.
[[nodiscard]] std::unique_ptr<ColorScheme> createColorScheme();

} // namespace Platform
