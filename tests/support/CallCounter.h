// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// 0 under a sanitizer, which replaces the heap and the mutexes: tests that use a CallCounter are not built then.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
#define SONAPHEX_COUNTS_CALLS 0
#else
#define SONAPHEX_COUNTS_CALLS 1
#endif

#if SONAPHEX_COUNTS_CALLS
/// Counts the calling thread's heap and mutex calls while it lives.
class CallCounter {
public:
    CallCounter();
    ~CallCounter();
    CallCounter(const CallCounter&) = delete;
    CallCounter& operator=(const CallCounter&) = delete;
    [[nodiscard]] long allocations() const;
    [[nodiscard]] long locks() const;
};
#endif
