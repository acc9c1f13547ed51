// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <cstdint>
#include <memory>

/// Another X client: a window that takes the focus, counts its key presses, and grabs combinations.
class OtherProgram {
public:
    OtherProgram();
    ~OtherProgram();
    OtherProgram(const OtherProgram&) = delete;
    OtherProgram& operator=(const OtherProgram&) = delete;

    /// Shows its window and waits until it has the focus.
    [[nodiscard]] bool takeFocus();
    /// Key presses received since the last call.
    [[nodiscard]] int presses();
    /// The X server's time of the last key press, in milliseconds.
    [[nodiscard]] std::uint32_t timeOfLastPress() const;
    /// The X server's current time. Its answer comes after all earlier events.
    [[nodiscard]] std::uint32_t serverTime();
    /// Whether the server auto-repeats a held key. In tests it does not, unless one enables it; the setting lasts until
    /// the end of this program.
    void letKeysRepeat(bool repeat);
    /// Grabs a combination like any other program. @p modifiers as in X11.
    [[nodiscard]] bool grab(std::uint8_t xKeyCode, std::uint16_t modifiers);
    /// Moves the keys of the keymap's modifier bit @p from (0 to 7) to @p to and clears @p from.
    [[nodiscard]] bool moveModifier(int from, int to);

private:
    struct Private;
    std::unique_ptr<Private> d;
};
