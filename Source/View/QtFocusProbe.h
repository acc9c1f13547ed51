// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Desktop/FocusProbe.h"

/// Checks the focused widget of the active window.
class QtFocusProbe : public Platform::FocusProbe {
public:
    [[nodiscard]] bool isEditKeybordShortcutControl() const override;
};
