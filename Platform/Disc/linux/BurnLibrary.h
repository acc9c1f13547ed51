// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <condition_variable>
#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <stop_token>
#include <thread>

namespace Platform {

/// What a look at the disc in a drive found.
struct MediaFacts {
    bool isPresent = false;
    bool isBlank = false;
    bool isErasable = false;
    std::int64_t blocksFree = 0;
    float maximumWriteSpeed = 0; ///< kilobytes (1000) a second
    QString kind;                ///< "CD-R"
    QString problem;             ///< why the drive could not be looked at; empty otherwise
};

/// The one thread that calls libburn: the library keeps one list of drives for the whole process, and its calls wait
/// for the drive. It is initialised by the first piece of work and closed with this object.
class BurnLibrary {
public:
    using Work = std::function<void(const std::stop_token& stop)>;

    BurnLibrary();
    /// Asks the work that runs to stop, drops what waits, and ends the thread when it has.
    ~BurnLibrary();
    BurnLibrary(const BurnLibrary&) = delete;
    BurnLibrary& operator=(const BurnLibrary&) = delete;

    /// Runs @p work after all that was posted before. Any thread.
    void post(Work work);

private:
    void run(const std::stop_token& stop);

    std::mutex mutex_;
    std::condition_variable_any changed_;
    std::deque<Work> waiting_; // guarded by mutex_
    std::jthread thread_;      // last: it uses what stands above
};

} // namespace Platform
