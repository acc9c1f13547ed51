// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <functional>
#include <thread>
#include <vector>

#include <QString>

/// Writes down what the program asks of the disk while it lives: every fsync() and every rename(). One at a time.
class DiskCalls {
public:
    struct Call {
        enum class Kind { Sync, Rename };
        Kind kind = Kind::Sync;
        std::uint64_t inode = 0; ///< of the file or the folder, before a renaming
        std::int64_t size = 0;
        QString to; ///< of a renaming
        std::thread::id thread;
    };

    DiskCalls();
    ~DiskCalls();
    DiskCalls(const DiskCalls&) = delete;
    DiskCalls& operator=(const DiskCalls&) = delete;
    [[nodiscard]] std::vector<Call> calls() const;
    /// fsync() fails with this errno for files whose path @p which accepts. A file without a name has a path like
    /// "/folder/#123 (deleted)".
    void failSync(int error, std::function<bool(const QString& path)> which);
};
