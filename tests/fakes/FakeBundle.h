// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Foundation/Bundle.h"

/// A bundle with any identifier and any resource folder; the build's own by default.
class FakeBundle : public Platform::Bundle {
public:
    [[nodiscard]] QString bundleIdentifier() const override { return identifier; }
    [[nodiscard]] QString resourcePath() const override { return resources; }

    QString identifier = QStringLiteral("com.korvane.Sonaphex");
    QString resources = QStringLiteral(SONAPHEX_BIN_DIR "/Resources");
};
