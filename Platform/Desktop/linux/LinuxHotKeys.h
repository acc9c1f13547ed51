// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Desktop/HotKeys.h"

#include <memory>

namespace Platform {

/// The implementation for this session: the desktop portal under Wayland, grabs under X11, else none. Under Wayland
/// grabs are not used even when DISPLAY is set: they would only work while an X program has the focus.
[[nodiscard]] std::unique_ptr<HotKeys> createHotKeys();

/// Grabs on the X server of DISPLAY; null when there is none.
[[nodiscard]] std::unique_ptr<HotKeys> createXcbHotKeys();

/// The portal's global shortcuts over the session bus.
[[nodiscard]] std::unique_ptr<HotKeys> createPortalHotKeys();

} // namespace Platform
