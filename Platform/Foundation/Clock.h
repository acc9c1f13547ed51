// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <cstdint>

namespace Platform {

/// The three clocks of the program behind one interface, so that tests can control them. Any thread.
class Clock {
public:
    virtual ~Clock() = default;
    /// Seconds since 2001-01-01 00:00:00 UTC, with fractions.
    [[nodiscard]] virtual double timeIntervalSinceReferenceDate() const = 0;
    /// Nanoseconds of the steady clock. Inside a render callback this is the capture time of the current cycle, not the
    /// time of processing: a delayed thread must not look like silence.
    [[nodiscard]] virtual std::uint64_t hostTime() const = 0;
    /// Local date and time.
    [[nodiscard]] virtual QDateTime now() const = 0;
};

/// Makes hostTime() on the calling thread return @p nanoseconds while the object lives. The I/O threads of input units
/// wrap each render callback in one.
class HostTimeScope {
public:
    explicit HostTimeScope(std::uint64_t nanoseconds) noexcept;
    ~HostTimeScope();
    HostTimeScope(const HostTimeScope&) = delete;
    HostTimeScope& operator=(const HostTimeScope&) = delete;
    /// The time that applies on this thread; 0 when none is set.
    [[nodiscard]] static std::uint64_t current() noexcept;

private:
    std::uint64_t previous_;
};

} // namespace Platform
