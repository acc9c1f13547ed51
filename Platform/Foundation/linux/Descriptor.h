// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QByteArrayView>

#include <cstddef>
#include <cstdint>
#include <utility>

namespace Platform {

/// Owns a file descriptor and closes it.
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
    /// Passes the descriptor to the caller, who must close it.
    [[nodiscard]] int release() { return std::exchange(fd_, -1); }
    /// Some file systems report a full disk only at close. @return 0 or an errno
    int close();

private:
    int fd_ = -1;
};

/// Writes all of @p bytes, with as many calls as needed: at the current position, or at an offset. On failure it
/// returns false with errno set, and a part may have been written.
[[nodiscard]] bool writeAll(int fd, QByteArrayView bytes);
[[nodiscard]] bool writeAllAt(int fd, QByteArrayView bytes, std::int64_t offset);

/// Reads @p size bytes at an offset, with as many calls as needed; fewer at the end of the file.
/// @return the bytes read, or a negative errno
[[nodiscard]] std::int64_t readAllAt(int fd, void* to, std::size_t size, std::int64_t offset);

/// Copies a part of a file to an offset of another file. Uses the kernel's copy where both file systems support it. On
/// failure it returns false with errno set; EIO when the source ends early.
[[nodiscard]] bool copyBytes(int from, std::int64_t fromOffset, std::int64_t length, int to, std::int64_t toOffset);

/// Waits until the content of a file is on the disk. Returns true when the file system does not support syncing.
/// @return false with errno
[[nodiscard]] bool syncFile(int fd);

/// Makes a rename in the folder durable: without it a power cut can undo the rename.
void syncFolder(const QByteArray& folder);

/// The folder of a path; "." when the path has none.
[[nodiscard]] QByteArray folderOf(const QByteArray& path);

/// rename() that never overwrites. @return 0 or an errno; EEXIST when the target exists.
[[nodiscard]] int renameWithoutOverwriting(const QByteArray& from, const QByteArray& to);

} // namespace Platform
