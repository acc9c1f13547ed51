// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>

#include <QString>
#include <Qt>

/// Maps between the ANSI virtual key codes that shortcuts are stored with and the keys of this system. Both name
/// positions on the keyboard, not letters: a shortcut stays on its key when the layout changes.
namespace Platform::KeyCodes {

/// The kernel's number of the key with an ANSI virtual key code.
[[nodiscard]] std::optional<std::uint16_t> physicalKey(std::uint16_t virtualKeyCode);
/// The inverse of physicalKey().
[[nodiscard]] std::optional<std::uint16_t> virtualKeyCode(std::uint16_t physicalKey);

/// X11 and Wayland count from 8 where the kernel counts from 0.
[[nodiscard]] std::optional<std::uint16_t> virtualKeyCodeOfScanCode(std::uint32_t nativeScanCode);

/// For key events without a scan code: the key that has this character on an ANSI keyboard.
[[nodiscard]] std::optional<std::uint16_t> virtualKeyCodeOfSign(Qt::Key key);

/// The key's name for desktop portals ("s", "F5", "Page_Up"); empty for an unknown code.
[[nodiscard]] QString keysymName(std::uint16_t virtualKeyCode);

} // namespace Platform::KeyCodes
