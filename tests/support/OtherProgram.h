// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <cstdint>
#include <memory>

/// Another X client: a window that takes the focus and counts the keys that reach it, and that grabs combinations.
class OtherProgram {
public:
    OtherProgram();
    ~OtherProgram();
    OtherProgram(const OtherProgram&) = delete;
    OtherProgram& operator=(const OtherProgram&) = delete;

    /// Shows its window and waits until it has the focus.
    [[nodiscard]] bool takeFocus();
    /// Key presses that arrived since the last call.
    [[nodiscard]] int presses();
    /// The X server's time of the last of them, in milliseconds.
    [[nodiscard]] std::uint32_t timeOfLastPress() const;
    /// The X server's time now. Its answer comes after all that it had to do until then.
    [[nodiscard]] std::uint32_t serverTime();
    /// Whether the server repeats a key that is held. In tests it does not, unless one asks for it, until the end of
    /// this program.
    void letKeysRepeat(bool repeat);
    /// Takes a combination as any program may. @p modifiers as in X11.
    [[nodiscard]] bool grab(std::uint8_t xKeyCode, std::uint16_t modifiers);
    /// Makes the keymap's modifier bit @p from (0 to 7) empty and gives its keys to @p to.
    [[nodiscard]] bool moveModifier(int from, int to);

private:
    struct Private;
    std::unique_ptr<Private> d;
};
