// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/DiskCalls.h"

#include <QByteArray>
#include <QFile>
#include <QFileInfo>

#include <atomic>
#include <cerrno>
#include <dlfcn.h>
#include <mutex>
#include <sys/stat.h>

namespace {

std::atomic<bool> watching{false};
std::mutex mutex; // guards what follows
std::vector<DiskCalls::Call> seen;
int syncError = 0;
std::function<bool(const QString&)> fails;

/// Only while somebody watches: a child that was forked in the midst of it must not find the mutex locked.
/// @return the errno that the call shall fail with, or 0
int note(DiskCalls::Call::Kind kind, const struct stat& file, const QString& path, const QString& to) {
    const std::lock_guard lock(mutex);
    seen.push_back({kind, file.st_ino, file.st_size, to, std::this_thread::get_id()});
    return kind == DiskCalls::Call::Kind::Sync && syncError != 0 && fails(path) ? syncError : 0;
}

} // namespace

// The program's own definitions come before those of the C library.
extern "C" {
int fsync(int fd) {
    using Call = int (*)(int);
    static const Call real = reinterpret_cast<Call>(dlsym(RTLD_NEXT, "fsync"));
    if (!watching)
        return real(fd);
    struct stat file {};
    (void)::fstat(fd, &file);
    const QString path = QFileInfo(QStringLiteral("/proc/self/fd/%1").arg(fd)).symLinkTarget();
    if (const int error = note(DiskCalls::Call::Kind::Sync, file, path, {})) {
        errno = error;
        return -1;
    }
    return real(fd);
}

int rename(const char* from, const char* to) noexcept {
    using Call = int (*)(const char*, const char*);
    static const Call real = reinterpret_cast<Call>(dlsym(RTLD_NEXT, "rename"));
    if (!watching)
        return real(from, to);
    struct stat file {};
    (void)::stat(from, &file);
    (void)note(DiskCalls::Call::Kind::Rename, file, {}, QFile::decodeName(to));
    return real(from, to);
}
}

DiskCalls::DiskCalls() {
    const std::lock_guard lock(mutex);
    seen.clear();
    syncError = 0;
    watching = true;
}

DiskCalls::~DiskCalls() {
    watching = false;
}

std::vector<DiskCalls::Call> DiskCalls::calls() const {
    const std::lock_guard lock(mutex);
    return seen;
}

void DiskCalls::failSync(int error, std::function<bool(const QString&)> which) {
    const std::lock_guard lock(mutex);
    syncError = error;
    fails = std::move(which);
}
