// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <memory>

namespace Platform {

/// Turns SIGINT, SIGTERM and SIGHUP into a call on the main thread, so that a recording ends as a whole file. While it
/// lives these signals end the process no more; one object at a time. Main thread, with an event loop.
class TerminationSignals {
public:
    /// @param handler is called with the signal's number, once for each that arrives.
    explicit TerminationSignals(std::function<void(int signal)> handler);
    ~TerminationSignals();
    TerminationSignals(const TerminationSignals&) = delete;
    TerminationSignals& operator=(const TerminationSignals&) = delete;

private:
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace Platform
