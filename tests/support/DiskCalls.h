// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <functional>
#include <thread>
#include <vector>

#include <QByteArray>
#include <QString>

/// Records the program's disk calls while it lives: every fsync(), fdatasync(), rename(), pwrite() and ftruncate(). One
/// object at a time.
class DiskCalls {
public:
    struct Call {
        enum class Kind { Sync, Rename, Write, Cut };
        Kind kind = Kind::Sync;
        std::uint64_t inode = 0; ///< of the file or the folder, before a rename
        std::int64_t size = 0;   ///< of the file before the call; after it for Cut
        QString to{};            ///< of a rename
        std::thread::id thread{};
        std::int64_t offset = 0; ///< of a Write
        QByteArray bytes{};      ///< of a Write
    };

    DiskCalls();
    ~DiskCalls();
    DiskCalls(const DiskCalls&) = delete;
    DiskCalls& operator=(const DiskCalls&) = delete;
    [[nodiscard]] std::vector<Call> calls() const;
    /// Kills the process in the call with this number, counted from 0: a Write is then half done, any other call not
    /// done at all. For use in a forked process.
    void killIn(int call);
    /// Makes fsync() fail with this errno for files whose path @p which accepts. A file without a name has a path like
    /// "/folder/#123 (deleted)".
    void failSync(int error, std::function<bool(const QString& path)> which);
};
