// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Disc/linux/BurnLibrary.h"

#include "Platform/Disc/linux/LibBurn.h"

namespace Platform {

BurnLibrary::BurnLibrary() : thread_([this](const std::stop_token& stop) { run(stop); }) {
}

BurnLibrary::~BurnLibrary() {
    thread_.request_stop();
    thread_.join();
}

void BurnLibrary::post(Work work) {
    const std::lock_guard lock(mutex_);
    waiting_.push_back(std::move(work));
    changed_.notify_one();
}

void BurnLibrary::run(const std::stop_token& stop) {
    for (;;) {
        Work work;
        {
            std::unique_lock lock(mutex_);
            if (!changed_.wait(lock, stop, [this] { return !waiting_.empty(); }) || stop.stop_requested())
                break;
            work = std::move(waiting_.front());
            waiting_.pop_front();
        }
        work(stop);
    }
    LibBurn::finish();
}

} // namespace Platform
