// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Disc/BurnJobs.h"

#include "Platform/Foundation/MainQueue.h"

namespace Platform {

BurnJobs::~BurnJobs() {
    for (Job& job : jobs_)
        if (!job.ended)
            job.abort();
    for (Job& job : jobs_)
        job.thread.join();
}

void BurnJobs::start(std::function<void()> work, std::function<void()> abort) {
    jobs_.remove_if([](Job& job) {
        if (!job.ended)
            return false;
        job.thread.join();
        return true;
    });
    Job& job = jobs_.emplace_back();
    job.abort = std::move(abort);
    job.thread = std::thread([&job, work = std::move(work)]() mutable {
        work();
        work = nullptr; // releases the burn before the job counts as ended
        job.ended = true;
    });
}

void ReportedStatus::report(const std::shared_ptr<DRObject>& owner, const DRStatus& status) {
    MainQueue::post([this, owner, status] {
        shown_ = status;
        if (const auto center = center_.lock())
            center->deliver({notification_, owner});
    });
}

} // namespace Platform
