// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace CommandLine {

/// While it lives, SIGINT, SIGTERM and SIGHUP end nothing but are noted, so that the work at hand can stop cleanly.
/// One at a time.
class Interrupt {
public:
    Interrupt();
    ~Interrupt();
    Interrupt(const Interrupt&) = delete;
    Interrupt& operator=(const Interrupt&) = delete;
    /// Whether one of the signals came since the object was made. Any thread.
    [[nodiscard]] static bool requested();
};

} // namespace CommandLine
