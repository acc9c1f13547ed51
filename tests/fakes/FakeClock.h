// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Foundation/Clock.h"

#include <atomic>

#include <QTimeZone>

/// A clock that only moves when the test advances it. Any thread. A HostTimeScope overrides its host time, as with the
/// real clock.
class FakeClock : public Platform::Clock {
public:
    [[nodiscard]] double timeIntervalSinceReferenceDate() const override { return seconds_; }
    [[nodiscard]] std::uint64_t hostTime() const override {
        const std::uint64_t ofCycle = Platform::HostTimeScope::current();
        return ofCycle != 0 ? ofCycle : nanoseconds_.load();
    }
    /// The reference date plus the seconds, in UTC: tests do not depend on the machine's time zone.
    [[nodiscard]] QDateTime now() const override {
        return QDateTime(QDate(2001, 1, 1), QTime(0, 0), QTimeZone::utc())
            .addMSecs(static_cast<qint64>(seconds_ * 1000));
    }

    /// Moves all three forward.
    void advance(double seconds) {
        seconds_ = seconds_ + seconds;
        nanoseconds_ += static_cast<std::uint64_t>(seconds * 1e9);
    }
    void setReferenceSeconds(double seconds) { seconds_ = seconds; }
    void setHostTime(std::uint64_t nanoseconds) { nanoseconds_ = nanoseconds; }

private:
    std::atomic<double> seconds_{817430400.0}; // 2026-11-27
    std::atomic<std::uint64_t> nanoseconds_{1'000'000'000};
};
