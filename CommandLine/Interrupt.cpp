// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "CommandLine/Interrupt.h"

#include <atomic>

namespace CommandLine {

namespace {

std::atomic<bool> wasRequested{false};
static_assert(std::atomic<bool>::is_always_lock_free, "written by a signal handler");

using Handler = void (*)(int);

/// Clears the signals of an earlier object before the handler is installed, so that none is lost in between.
Handler newHandler() {
    wasRequested = false;
    return [](int) { wasRequested = true; };
}

} // namespace

Interrupt::Interrupt() : handler_(newHandler()) {
}

bool Interrupt::requested() {
    return wasRequested;
}

} // namespace CommandLine
