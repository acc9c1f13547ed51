// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Foundation/TerminationSignals.h"

namespace CommandLine {

/// While it lives, SIGINT, SIGTERM and SIGHUP end nothing but are noted, so that the work at hand can stop cleanly.
/// Those that were ignored before stay ignored. One at a time.
class Interrupt {
public:
    Interrupt();
    /// Whether one of the signals came since the object was made. Any thread.
    [[nodiscard]] static bool requested();

private:
    Platform::TerminationHandler handler_;
};

} // namespace CommandLine
