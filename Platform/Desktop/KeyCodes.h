// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>

#include <QString>
#include <Qt>

/// Between the ANSI virtual key codes that shortcuts are stored with and the keys of this system. Both name places on
/// the keyboard, not letters: a shortcut stays on its key when the layout changes.
namespace Platform::KeyCodes {

/// The kernel's number of the key with an ANSI virtual key code.
[[nodiscard]] std::optional<std::uint16_t> physicalKey(std::uint16_t virtualKeyCode);
/// The way back.
[[nodiscard]] std::optional<std::uint16_t> virtualKeyCode(std::uint16_t physicalKey);

/// X11 and Wayland count from 8 where the kernel counts from 0.
[[nodiscard]] std::optional<std::uint16_t> virtualKeyCodeOfScanCode(std::uint32_t nativeScanCode);

/// For key events without a scan code: the key that carries this sign on an ANSI keyboard.
[[nodiscard]] std::optional<std::uint16_t> virtualKeyCodeOfSign(Qt::Key key);

/// The key's name for desktop portals ("s", "F5", "Page_Up"); empty for an unknown code.
[[nodiscard]] QString keysymName(std::uint16_t virtualKeyCode);

} // namespace Platform::KeyCodes
