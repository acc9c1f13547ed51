// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Foundation/FileLock.h"

#include "Platform/Foundation/linux/LockedFile.h"

#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace Platform {

FileLock::Result openLocked(const QString& path, const std::function<Descriptor()>& open, LockKind kind,
                            std::chrono::milliseconds patience, Descriptor& file) {
    const auto deadline = std::chrono::steady_clock::now() + patience;
    const QByteArray name = QFile::encodeName(path);
    int replaced = 0; // how often the file was unlinked before it was locked
    for (;;) {
        file = open();
        if (!file)
            return FileLock::Result::Failed;
        if (::flock(file.get(), (kind == LockKind::Shared ? LOCK_SH : LOCK_EX) | LOCK_NB) == 0) {
            struct stat locked {};
            struct stat named {};
            if (::fstat(file.get(), &locked) == 0 && ::stat(name.constData(), &named) == 0 &&
                locked.st_ino == named.st_ino && locked.st_dev == named.st_dev)
                return FileLock::Result::Held;
            if (++replaced < 10)
                continue;
            file.reset(-1);
            errno = EAGAIN;
            return FileLock::Result::Failed;
        }
        if (errno != EWOULDBLOCK && errno != EINTR)
            return FileLock::Result::Failed;
        if (std::chrono::steady_clock::now() >= deadline)
            return FileLock::Result::Elsewhere;
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
}

FileLock::Result FileLock::take(const QString& path, std::chrono::milliseconds patience) {
    release();
    path_ = path;
    problem_.clear();
    const auto open = [name = QFile::encodeName(path)] {
        return Descriptor(::open(name.constData(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK, 0600));
    };
    Descriptor file;
    const Result result = openLocked(path, open, LockKind::Exclusive, patience, file);
    if (result == Result::Failed)
        problem_ = QStringLiteral("%1: %2").arg(path, qt_error_string(errno));
    if (result == Result::Held)
        descriptor_ = file.release();
    return result;
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
