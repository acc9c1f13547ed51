// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Foundation/linux/Descriptor.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <unistd.h>
#include <vector>

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

bool copyBytes(int from, std::int64_t fromOffset, std::int64_t length, int to, std::int64_t toOffset) {
    loff_t source = fromOffset;
    loff_t target = toOffset;
    const loff_t end = fromOffset + length;
    while (source < end) {
        const ssize_t count = ::copy_file_range(from, &source, to, &target, std::size_t(end - source), 0);
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            break; // the kernel cannot copy between these file systems
    }
    std::vector<char> buffer(std::size_t(std::clamp<std::int64_t>(end - source, 0, 1 << 20)));
    while (source < end) {
        const auto wanted = std::min<std::int64_t>(end - source, std::int64_t(buffer.size()));
        const std::int64_t count = readAllAt(from, buffer.data(), std::size_t(wanted), source);
        if (count != wanted) {
            errno = count < 0 ? int(-count) : EIO;
            return false;
        }
        if (!writeAllAt(to, QByteArrayView(buffer.data(), wanted), target))
            return false;
        source += wanted;
        target += wanted;
    }
    return true;
}

bool syncFile(int fd) {
    return ::fsync(fd) == 0 || errno == EINVAL || errno == ENOSYS || errno == EOPNOTSUPP;
}

void syncFolder(const QByteArray& folder) {
    if (const Descriptor open{::open(folder.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)})
        (void)::fsync(open.get());
}

QByteArray folderOf(const QByteArray& path) {
    const auto slash = path.lastIndexOf('/');
    return slash < 0 ? QByteArray(".") : slash == 0 ? QByteArray("/") : path.left(slash);
}

int renameWithoutOverwriting(const QByteArray& from, const QByteArray& to) {
    if (::renameat2(AT_FDCWD, from.constData(), AT_FDCWD, to.constData(), RENAME_NOREPLACE) == 0)
        return 0;
    if (errno != EINVAL && errno != ENOSYS)
        return errno;
    // The file system does not know the flag. A hard link never overwrites either.
    if (::link(from.constData(), to.constData()) == 0)
        return ::unlink(from.constData()) == 0 ? 0 : errno;
    if (errno != EPERM && errno != EOPNOTSUPP && errno != EMLINK && errno != ENOSYS)
        return errno;
    // It has no hard links either: an empty file reserves the name, and the rename replaces it.
    const Descriptor held{::open(to.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600)};
    if (!held)
        return errno;
    if (std::rename(from.constData(), to.constData()) == 0)
        return 0;
    const int error = errno;
    (void)::unlink(to.constData());
    return error;
}

} // namespace Platform
