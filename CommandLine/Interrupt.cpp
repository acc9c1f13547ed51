// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "CommandLine/Interrupt.h"

#include <array>
#include <atomic>
#include <csignal>

namespace CommandLine {

namespace {

constexpr std::array kSignals{SIGINT, SIGTERM, SIGHUP};
std::atomic<bool> wasRequested{false};
static_assert(std::atomic<bool>::is_always_lock_free, "written by a signal handler");
std::array<struct sigaction, kSignals.size()> before;

void note(int) {
    wasRequested = true;
}

} // namespace

Interrupt::Interrupt() {
    wasRequested = false;
    struct sigaction action {};
    action.sa_handler = note;
    action.sa_flags = SA_RESTART;
    for (std::size_t i = 0; i < kSignals.size(); ++i)
        sigaction(kSignals[i], &action, &before[i]);
}

Interrupt::~Interrupt() {
    for (std::size_t i = 0; i < kSignals.size(); ++i)
        sigaction(kSignals[i], &before[i], nullptr);
}

bool Interrupt::requested() {
    return wasRequested;
}

} // namespace CommandLine
