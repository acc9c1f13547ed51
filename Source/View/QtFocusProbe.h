// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Desktop/FocusProbe.h"

/// Looks at the widget with the focus in the active window.
class QtFocusProbe : public Platform::FocusProbe {
public:
    [[nodiscard]] bool isEditKeybordShortcutControl() const override;
};
