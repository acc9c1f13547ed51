// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QByteArrayView>

#include <cstddef>
#include <cstdint>
#include <utility>

namespace Platform {

/// An open file that is closed at the end of its scope.
class Descriptor {
public:
    Descriptor() = default;
    explicit Descriptor(int fd) : fd_(fd) {}
    ~Descriptor() { close(); }
    Descriptor(Descriptor&& other) noexcept : fd_(other.release()) {}
    Descriptor& operator=(Descriptor&& other) noexcept {
        reset(other.release());
        return *this;
    }
    explicit operator bool() const { return fd_ >= 0; }
    [[nodiscard]] int get() const { return fd_; }
    void reset(int fd) {
        close();
        fd_ = fd;
    }
    /// Hands the file to the caller, who must close it.
    [[nodiscard]] int release() { return std::exchange(fd_, -1); }
    /// Some file systems report a full disk only here. @return 0 or an errno
    int close();

private:
    int fd_ = -1;
};

/// Writes all of @p bytes, in as many calls as it takes: at the current position, or at an offset. On failure the
/// answer is false, errno says why, and a part may have been written.
[[nodiscard]] bool writeAll(int fd, QByteArrayView bytes);
[[nodiscard]] bool writeAllAt(int fd, QByteArrayView bytes, std::int64_t offset);

/// Reads @p size bytes at an offset, in as many calls as it takes; fewer at the end of the file.
/// @return the bytes read, or an errno below zero
[[nodiscard]] std::int64_t readAllAt(int fd, void* to, std::size_t size, std::int64_t offset);

/// Copies a part of a file to another one at an offset. Uses the kernel's own copy where both file systems allow it.
/// On failure the answer is false and errno says why; EIO when the source ends early.
[[nodiscard]] bool copyBytes(int from, std::int64_t fromOffset, std::int64_t length, int to, std::int64_t toOffset);

/// Waits until the content of a file is on the disk. A file system that cannot sync counts as synced.
/// @return false with errno
[[nodiscard]] bool syncFile(int fd);

/// Makes a rename in the folder durable: without it a power cut can undo the rename.
void syncFolder(const QByteArray& folder);

/// The folder of a path; "." when the path has none.
[[nodiscard]] QByteArray folderOf(const QByteArray& path);

/// rename() that never overwrites. @return 0 or an errno; EEXIST when something stands at the target.
[[nodiscard]] int renameWithoutOverwriting(const QByteArray& from, const QByteArray& to);

} // namespace Platform
