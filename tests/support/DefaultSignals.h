// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <csignal>
#include <initializer_list>

/// Gives the signals that end a recording their default action. When the tests run in the background or under nohup,
/// the programs that they start would inherit the ignored signals and keep them ignored.
inline void defaultSignals() {
    for (const int signal : {SIGINT, SIGTERM, SIGHUP})
        (void)std::signal(signal, SIG_DFL);
}
