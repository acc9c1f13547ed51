// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Foundation/Result.h"

#include <QString>

#include <chrono>
#include <utility>

namespace Platform {

/// A kernel lock on a file, which is created when it is missing. The lock ends with the process that holds it, however
/// the process ends; child processes do not inherit it. Any thread; one object by one thread at a time.
class FileLock {
public:
    FileLock() = default;
    /// Releases the lock; the file is kept.
    ~FileLock() { release(); }
    FileLock(FileLock&& other) noexcept
        : descriptor_(std::exchange(other.descriptor_, -1)), path_(std::move(other.path_)) {}
    FileLock& operator=(FileLock&& other) noexcept {
        release();
        descriptor_ = std::exchange(other.descriptor_, -1);
        path_ = std::move(other.path_);
        return *this;
    }

    /// Takes the lock; waits for another holder at most @p patience. The file at @p path is created when it is missing;
    /// a link is not followed. Error::Kind::Busy: another process or object still holds the lock.
    Result<> take(const QString& path, std::chrono::milliseconds patience = {});
    /// As take(), but other shared locks on the file are allowed.
    Result<> takeShared(const QString& path, std::chrono::milliseconds patience = {});
    [[nodiscard]] bool isHeld() const { return descriptor_ >= 0; }
    [[nodiscard]] QString path() const { return path_; }
    void release();
    /// Removes the file, then releases the lock.
    void removeAndRelease();

private:
    Result<> take(const QString& path, bool shared, std::chrono::milliseconds patience);

    int descriptor_ = -1;
    QString path_;
};

} // namespace Platform
