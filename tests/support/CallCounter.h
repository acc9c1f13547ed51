// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// Counts what the calling thread asks of the heap and of mutexes while it lives. Under a sanitizer, which has its own
/// heap and mutexes, it counts nothing.
class CallCounter {
public:
    CallCounter();
    ~CallCounter();
    CallCounter(const CallCounter&) = delete;
    CallCounter& operator=(const CallCounter&) = delete;
    [[nodiscard]] long allocations() const;
    [[nodiscard]] long locks() const;
    /// Whether anything is counted in this build.
    [[nodiscard]] static bool counts();
};
