// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Desktop/Autostart.h"

/// Keeps the switch in a variable that the test owns.
struct FakeAutostart : Platform::Autostart {
    struct Desktop {
        bool enabled = false;
        QString problem; ///< why a change fails
        int changes = 0;
    };
    explicit FakeAutostart(Desktop& desktop) : desktop(desktop) {}
    [[nodiscard]] bool isEnabled() const override { return desktop.enabled; }
    void setEnabled(bool enabled, Done done) override {
        ++desktop.changes;
        if (desktop.problem.isEmpty())
            desktop.enabled = enabled;
        done(desktop.problem);
    }
    Desktop& desktop;
};
