// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Desktop/SleepInhibitor.h"

/// Records whether sleep is inhibited.
struct FakeSleepInhibitor : Platform::SleepInhibitor {
    void setInhibited(bool on, const QString& reason) override {
        inhibited = on;
        if (on)
            why = reason;
    }
    [[nodiscard]] bool isInhibited() const override { return inhibited; }

    bool inhibited = false;
    QString why;
};
