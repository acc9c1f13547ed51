// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Foundation/linux/LinuxFoundation.h"

#include <chrono>

namespace Platform {
namespace {

class LinuxClock final : public Clock {
public:
    double timeIntervalSinceReferenceDate() const override {
        using namespace std::chrono;
        constexpr sys_days reference = year{2001} / January / 1;
        return duration<double>(system_clock::now() - reference).count();
    }
    std::uint64_t hostTime() const override {
        if (const auto ofCycle = HostTimeScope::current())
            return ofCycle;
        // CLOCK_MONOTONIC, the clock that the sound server stamps its cycles with.
        const auto now = std::chrono::steady_clock::now().time_since_epoch();
        return std::uint64_t(std::chrono::duration_cast<std::chrono::nanoseconds>(now).count());
    }
    QDateTime now() const override { return QDateTime::currentDateTime(); }
};

} // namespace

std::unique_ptr<Clock> createClock() {
    return std::make_unique<LinuxClock>();
}

} // namespace Platform
