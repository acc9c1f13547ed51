// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QByteArrayView>

#include <cstddef>
#include <cstdint>

namespace Platform {

/// An open file that is closed at the end of its scope.
class Descriptor {
public:
    Descriptor() = default;
    explicit Descriptor(int fd) : fd_(fd) {}
    ~Descriptor() { close(); }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    explicit operator bool() const { return fd_ >= 0; }
    [[nodiscard]] int get() const { return fd_; }
    void reset(int fd) {
        close();
        fd_ = fd;
    }
    /// Some file systems tell of a full disk only here. @return 0 or an errno
    int close();

private:
    int fd_ = -1;
};

/// Writes all of @p bytes, in as many calls as it takes: where the file stands, or at an offset. On failure the answer
/// is false, errno says why, and a part may have been written.
[[nodiscard]] bool writeAll(int fd, QByteArrayView bytes);
[[nodiscard]] bool writeAllAt(int fd, QByteArrayView bytes, std::int64_t offset);

/// Reads @p size bytes at an offset, in as many calls as it takes; fewer at the end of the file.
/// @return the bytes read, or an errno below zero
[[nodiscard]] std::int64_t readAllAt(int fd, void* to, std::size_t size, std::int64_t offset);

/// Makes a rename in the folder last: without it a power cut can undo it.
void syncFolder(const QByteArray& folder);

} // namespace Platform
