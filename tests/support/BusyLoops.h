// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <atomic>
#include <thread>
#include <vector>

/// Keeps processors busy while it lives.
class BusyLoops {
public:
    explicit BusyLoops(int count) {
        for (int i = 0; i < count; ++i)
            threads_.emplace_back([this] {
                while (!end_)
                    spin_.fetch_add(1, std::memory_order_relaxed);
            });
    }
    ~BusyLoops() {
        end_ = true;
        for (auto& each : threads_)
            each.join();
    }
    BusyLoops(const BusyLoops&) = delete;
    BusyLoops& operator=(const BusyLoops&) = delete;

private:
    std::atomic<bool> end_{false};
    std::atomic<unsigned> spin_{0};
    std::vector<std::thread> threads_;
};
