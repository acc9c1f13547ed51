// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace Platform {

/// Says what the user is typing into, for code that knows no widgets. Main thread.
class FocusProbe {
public:
    virtual ~FocusProbe() = default;
    /// Whether the field with the focus captures a key combination: hot keys rest while one is being chosen.
    [[nodiscard]] virtual bool isEditKeybordShortcutControl() const = 0;
};

} // namespace Platform
