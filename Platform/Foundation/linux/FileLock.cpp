// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Foundation/FileLock.h"

#include <QFile>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Platform {

FileLock::Result FileLock::take(const QString& path) {
    release();
    path_ = path;
    problem_.clear();
    const QByteArray name = QFile::encodeName(path);
    for (int attempt = 0; attempt < 10; ++attempt) {
        const int file = open(name.constData(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600);
        if (file < 0)
            break;
        if (flock(file, LOCK_EX | LOCK_NB) != 0) {
            const int error = errno;
            close(file);
            if (error == EWOULDBLOCK)
                return Result::Elsewhere;
            errno = error;
            break;
        }
        // Its former holder may have removed the file between the two calls: a lock without a name protects nothing.
        struct stat mine {
        }, there{};
        if (fstat(file, &mine) == 0 && lstat(name.constData(), &there) == 0 && mine.st_ino == there.st_ino &&
            mine.st_dev == there.st_dev) {
            descriptor_ = file;
            return Result::Held;
        }
        close(file);
        errno = EAGAIN;
    }
    problem_ = QStringLiteral("%1: %2").arg(path, qt_error_string(errno));
    return Result::Failed;
}

void FileLock::release() {
    if (descriptor_ >= 0)
        close(std::exchange(descriptor_, -1));
}

void FileLock::removeAndRelease() {
    if (descriptor_ >= 0)
        (void)unlink(QFile::encodeName(path_).constData());
    release();
}

} // namespace Platform
