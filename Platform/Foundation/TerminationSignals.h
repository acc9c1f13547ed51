// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <csignal>
#include <functional>
#include <memory>

namespace Platform {

/// Installs a handler for SIGINT, SIGTERM and SIGHUP while it lives, then restores the previous dispositions. A signal
/// that was ignored stays ignored: nohup and the shell's background jobs rely on it.
class TerminationHandler {
public:
    /// @param handler runs on any thread and must be async-signal-safe.
    explicit TerminationHandler(void (*handler)(int signal));
    ~TerminationHandler();
    TerminationHandler(const TerminationHandler&) = delete;
    TerminationHandler& operator=(const TerminationHandler&) = delete;

private:
    static constexpr std::array signals{SIGINT, SIGTERM, SIGHUP};
    std::array<struct sigaction, signals.size()> before_{};
};

/// Turns SIGINT, SIGTERM and SIGHUP into a call on the main thread, so that a recording ends with a complete file.
/// While it lives these signals do not end the process; those that were ignored before stay ignored. One object at a
/// time. Main thread, with an event loop.
class TerminationSignals {
public:
    /// @param handler is called with the signal's number, once per signal.
    explicit TerminationSignals(std::function<void(int signal)> handler);
    ~TerminationSignals();
    TerminationSignals(const TerminationSignals&) = delete;
    TerminationSignals& operator=(const TerminationSignals&) = delete;

private:
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace Platform
