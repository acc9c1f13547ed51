// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <functional>

/// Installing and removing the computer-audio device, as the preferences window sees it.
struct ComputerAudioDevice {
    std::function<bool()> isExist;
    std::function<bool()> install;   ///< blocks, while a local event loop keeps windows alive
    std::function<bool()> uninstall; ///< likewise
    std::function<bool()> isBusy;
    std::function<QString()> lastError; ///< one line; empty after a success
    /// Why it stays as it is now, in a sentence for people; empty when it may change. None: it always may.
    std::function<QString()> whyNotNow{};

    /// The device of this system.
    [[nodiscard]] static ComputerAudioDevice system(std::function<QString()> whyNotNow = {});
};
