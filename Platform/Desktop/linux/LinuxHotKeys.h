// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Desktop/HotKeys.h"

#include <memory>

namespace Platform {

/// The way of this session: the desktop portal under Wayland, grabs under X11, else none. Under Wayland grabs are never
/// used, also with DISPLAY set: they would reach the windows of other X programs only, and look as if they worked.
[[nodiscard]] std::unique_ptr<HotKeys> createHotKeys();

/// Grabs on the X server of DISPLAY; null when there is none.
[[nodiscard]] std::unique_ptr<HotKeys> createXcbHotKeys();

/// The portal's global shortcuts, asked on the session bus.
[[nodiscard]] std::unique_ptr<HotKeys> createPortalHotKeys();

} // namespace Platform
