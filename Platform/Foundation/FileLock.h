// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <utility>

namespace Platform {

/// A lock of the kernel on a file that it makes at need. It ends with its holder, however that ends, and is not handed
/// to programs that the holder starts. Any thread; one object by one thread at a time.
class FileLock {
public:
    enum class Result {
        Held,      ///< it is ours
        Elsewhere, ///< another holds it
        Failed     ///< see problem()
    };

    FileLock() = default;
    /// Gives the lock free; the file stays.
    ~FileLock() { release(); }
    FileLock(FileLock&& other) noexcept
        : descriptor_(std::exchange(other.descriptor_, -1)), path_(std::move(other.path_)) {}
    FileLock& operator=(FileLock&& other) noexcept {
        release();
        descriptor_ = std::exchange(other.descriptor_, -1);
        path_ = std::move(other.path_);
        return *this;
    }

    /// Takes the lock without waiting. The file at @p path is made when missing, never followed when it is a link.
    [[nodiscard]] Result take(const QString& path);
    [[nodiscard]] bool isHeld() const { return descriptor_ >= 0; }
    [[nodiscard]] QString path() const { return path_; }
    /// Why take() failed, for people.
    [[nodiscard]] QString problem() const { return problem_; }
    void release();
    /// Removes the file, then gives the lock free.
    void removeAndRelease();

private:
    int descriptor_ = -1;
    QString path_;
    QString problem_;
};

} // namespace Platform
