// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// Whether a burn may start, and why not.
enum class BurnState { NoMusic, NoDisc, Erasable, NotBlank, NoRoom, Ready };

/// The values that determine the state.
struct BurnConditions {
    bool listIsEmpty = true; ///< no entries at all, ticked or not
    bool mounted = false;    ///< the chosen drive holds a disc that the system knows
    bool blank = false;
    bool erasable = false;
    int musicSize = 0;    ///< megabytes of the ticked entries
    int discFreeSize = 0; ///< megabytes as the burn window counts them
};

/// The first reason that applies, in the order of the enumeration.
[[nodiscard]] BurnState burnState(const BurnConditions& conditions);

/// The window's message for a state.
[[nodiscard]] QString burnStateMessage(BurnState state);
