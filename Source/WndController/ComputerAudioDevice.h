// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <functional>

/// Installs and removes the computer-audio device for the preferences window.
struct ComputerAudioDevice {
    std::function<bool()> isExist;
    std::function<bool()> install;   ///< blocks; a local event loop keeps the windows responsive
    std::function<bool()> uninstall; ///< like install
    std::function<bool()> isBusy;
    std::function<QString()> lastError; ///< one line; empty after success
    /// Why the device cannot be changed now, as a sentence for the user; empty when it can. Without this function it
    /// always can.
    std::function<QString()> whyNotNow{};

    /// The device of this system.
    [[nodiscard]] static ComputerAudioDevice system(std::function<QString()> whyNotNow = {});
};
