// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Desktop/Alerts.h"

/// Alerts as dialogs above the active window.
class QtAlerts : public Platform::Alerts {
public:
    int runModal(const QString& title, const QString& text, const QStringList& buttons) override;
};
