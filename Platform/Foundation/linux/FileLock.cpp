// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Foundation/FileLock.h"

#include "Platform/Foundation/linux/LockedFile.h"

#include <QCoreApplication>
#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace Platform {

Result<> openLocked(const QString& path, const std::function<Descriptor()>& open, LockKind kind,
                    std::chrono::milliseconds patience, Descriptor& file) {
    const auto deadline = std::chrono::steady_clock::now() + patience;
    const QByteArray name = QFile::encodeName(path);
    int replaced = 0; // how often the file was unlinked before it was locked
    for (;;) {
        file = open();
        if (!file)
            return Error::ofErrno(errno, path);
        if (::flock(file.get(), (kind == LockKind::Shared ? LOCK_SH : LOCK_EX) | LOCK_NB) == 0) {
            struct stat locked {};
            struct stat named {};
            if (::fstat(file.get(), &locked) == 0 && ::stat(name.constData(), &named) == 0 &&
                locked.st_ino == named.st_ino && locked.st_dev == named.st_dev)
                return {};
            if (++replaced < 10)
                continue;
            file.reset(-1);
            return Error::ofErrno(EAGAIN, path);
        }
        if (errno != EWOULDBLOCK && errno != EINTR)
            return Error::ofErrno(errno, path);
        if (std::chrono::steady_clock::now() >= deadline)
            return Error{Error::Kind::Busy,
                         QCoreApplication::translate("Foundation", "%1: another program is using it").arg(path)};
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
}

Result<> FileLock::take(const QString& path, std::chrono::milliseconds patience) {
    return take(path, false, patience);
}

Result<> FileLock::takeShared(const QString& path, std::chrono::milliseconds patience) {
    return take(path, true, patience);
}

Result<> FileLock::take(const QString& path, bool shared, std::chrono::milliseconds patience) {
    release();
    path_ = path;
    const auto open = [name = QFile::encodeName(path)] {
        return Descriptor(::open(name.constData(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK, 0600));
    };
    Descriptor file;
    auto taken = openLocked(path, open, shared ? LockKind::Shared : LockKind::Exclusive, patience, file);
    if (taken)
        descriptor_ = file.release();
    return taken;
}

void FileLock::release() {
    if (descriptor_ >= 0)
        ::close(std::exchange(descriptor_, -1));
}

void FileLock::removeAndRelease() {
    if (descriptor_ >= 0)
        (void)::unlink(QFile::encodeName(path_).constData());
    release();
}

} // namespace Platform
