// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Foundation/Clock.h"

namespace Platform {
namespace {
thread_local std::uint64_t hostTimeOfCycle = 0;
}

HostTimeScope::HostTimeScope(std::uint64_t nanoseconds) noexcept : previous_(hostTimeOfCycle) {
    hostTimeOfCycle = nanoseconds;
}

HostTimeScope::~HostTimeScope() {
    hostTimeOfCycle = previous_;
}

std::uint64_t HostTimeScope::current() noexcept {
    return hostTimeOfCycle;
}

} // namespace Platform
