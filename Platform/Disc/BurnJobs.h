// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Disc/DiscRecording.h"

#include <atomic>
#include <functional>
#include <list>
#include <thread>

namespace Platform {

/// The threads of the running burns and erases. Main thread.
class BurnJobs {
public:
    BurnJobs() = default;
    /// Aborts running jobs and waits until they have ended.
    ~BurnJobs();
    BurnJobs(const BurnJobs&) = delete;
    BurnJobs& operator=(const BurnJobs&) = delete;

    /// Runs @p work on a new thread. @p abort makes it end early; it is called on the main thread.
    void start(std::function<void()> work, std::function<void()> abort);

private:
    struct Job {
        std::function<void()> abort;
        std::atomic<bool> ended{false};
        std::thread thread;
    };
    std::list<Job> jobs_;
};

/// The status of one burn or erase. Its thread sets it; the main thread sees each value together with its notification.
class ReportedStatus {
public:
    ReportedStatus(std::weak_ptr<DRNotificationCenter> center, QString notification)
        : center_(std::move(center)), notification_(std::move(notification)) {}

    /// Main thread.
    [[nodiscard]] const DRStatus& shown() const { return shown_; }
    /// Sets it without a notification. Main thread.
    void set(const DRStatus& status) { shown_ = status; }
    /// Later sets shown() on the main thread and notifies the observers at once. @p owner is the object that contains
    /// this one. Any thread.
    void report(const std::shared_ptr<DRObject>& owner, const DRStatus& status);

private:
    std::weak_ptr<DRNotificationCenter> center_;
    QString notification_;
    DRStatus shown_;
};

} // namespace Platform
