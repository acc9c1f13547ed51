// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <atomic>
#include <cstdint>

/// While it lives, statvfs() reports this number of free bytes for every file system. One object at a time.
class DiskRoom {
public:
    explicit DiskRoom(std::int64_t bytes) { free() = bytes; }
    ~DiskRoom() { free() = -1; }
    DiskRoom(const DiskRoom&) = delete;
    DiskRoom& operator=(const DiskRoom&) = delete;
    void set(std::int64_t bytes) { free() = bytes; }

    /// -1: the real number.
    static std::atomic<std::int64_t>& free();
};
