// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace Platform {

/// Tells which kind of control has the focus, for code that does not use widgets. Main thread.
class FocusProbe {
public:
    virtual ~FocusProbe() = default;
    /// Whether the focused field captures a key combination. Hot keys are disabled while the user chooses one.
    [[nodiscard]] virtual bool isEditKeybordShortcutControl() const = 0;
};

} // namespace Platform
