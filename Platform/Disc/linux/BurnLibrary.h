// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <stop_token>
#include <thread>

namespace Platform {

/// The only thread that calls libburn: the library keeps one list of drives per process, and its calls wait for the
/// drive. The first piece of work initialises the library; the destructor closes it.
class BurnLibrary {
public:
    using Work = std::function<void(const std::stop_token& stop)>;

    BurnLibrary();
    /// Asks the running work to stop, drops the pending work, and joins the thread.
    ~BurnLibrary();
    BurnLibrary(const BurnLibrary&) = delete;
    BurnLibrary& operator=(const BurnLibrary&) = delete;

    /// Runs @p work after all work that was posted earlier. Any thread.
    void post(Work work);

private:
    void run(const std::stop_token& stop);

    std::mutex mutex_;
    std::condition_variable_any changed_;
    std::deque<Work> waiting_; // guarded by mutex_
    std::jthread thread_;      // last: it uses the members above
};

} // namespace Platform
