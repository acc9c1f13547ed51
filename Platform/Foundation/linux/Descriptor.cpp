// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Foundation/linux/Descriptor.h"

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace Platform {
namespace {

template <typename Write>
bool writeInSteps(QByteArrayView bytes, Write write) {
    qsizetype done = 0;
    while (done < bytes.size()) {
        const ssize_t count = write(bytes.data() + done, std::size_t(bytes.size() - done), done);
        if (count < 0 && errno == EINTR)
            continue;
        if (count == 0)
            errno = ENOSPC;
        if (count <= 0)
            return false;
        done += count;
    }
    return true;
}

} // namespace

int Descriptor::close() {
    const int status = fd_ >= 0 ? ::close(fd_) : 0;
    fd_ = -1;
    return status == 0 ? 0 : errno;
}

bool writeAll(int fd, QByteArrayView bytes) {
    return writeInSteps(bytes, [fd](const char* from, std::size_t size, qsizetype) { return ::write(fd, from, size); });
}

bool writeAllAt(int fd, QByteArrayView bytes, std::int64_t offset) {
    return writeInSteps(bytes, [fd, offset](const char* from, std::size_t size, qsizetype done) {
        return ::pwrite(fd, from, size, offset + done);
    });
}

std::int64_t readAllAt(int fd, void* to, std::size_t size, std::int64_t offset) {
    std::size_t done = 0;
    while (done < size) {
        const ssize_t count = ::pread(fd, static_cast<char*>(to) + done, size - done, offset + std::int64_t(done));
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            return -errno;
        if (count == 0)
            break;
        done += std::size_t(count);
    }
    return std::int64_t(done);
}

void syncFolder(const QByteArray& folder) {
    if (const Descriptor open{::open(folder.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)})
        (void)::fsync(open.get());
}

} // namespace Platform
