// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Foundation/TerminationSignals.h"

namespace CommandLine {

/// While it lives, SIGINT, SIGTERM and SIGHUP are only recorded, so that the current work can stop cleanly. Signals
/// that were ignored before stay ignored. One object at a time.
class Interrupt {
public:
    Interrupt();
    /// Whether one of the signals arrived since the object was created. Any thread.
    [[nodiscard]] static bool requested();

private:
    Platform::TerminationHandler handler_;
};

} // namespace CommandLine
