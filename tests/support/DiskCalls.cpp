// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/DiskCalls.h"

#include <QByteArray>
#include <QFile>
#include <QFileInfo>

#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <dlfcn.h>
#include <mutex>
#include <sys/stat.h>
#include <unistd.h>

namespace {

using Kind = DiskCalls::Call::Kind;

std::atomic<bool> watching{false};
std::mutex mutex; // guards the variables below
std::vector<DiskCalls::Call> seen;
int syncError = 0;
std::function<bool(const QString&)> fails;

int killed = -1;

template <typename Function>
Function real(Function, const char* name) {
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

struct stat statOf(int fd) {
    struct stat file {};
    (void)::fstat(fd, &file);
    return file;
}

/// Only while calls are recorded: a child that is forked meanwhile must not inherit a locked mutex. @return whether the
/// process is to be killed in this call
bool note(DiskCalls::Call call) {
    const std::lock_guard lock(mutex);
    call.thread = std::this_thread::get_id();
    seen.push_back(std::move(call));
    return killed >= 0 && int(seen.size()) == killed + 1;
}

template <typename Sync>
int synced(int fd, Sync sync) {
    if (!watching)
        return sync(fd);
    const struct stat file = statOf(fd);
    const QString path = QFileInfo(QStringLiteral("/proc/self/fd/%1").arg(fd)).symLinkTarget();
    if (note({.kind = Kind::Sync, .inode = file.st_ino, .size = file.st_size}))
        (void)::raise(SIGKILL);
    const std::lock_guard lock(mutex);
    if (syncError != 0 && fails(path)) {
        errno = syncError;
        return -1;
    }
    return sync(fd);
}

} // namespace

// Definitions in the program take precedence over those of the C library.
extern "C" {
int fsync(int fd) {
    static const auto call = real(&fsync, "fsync");
    return synced(fd, call);
}

int fdatasync(int fd) {
    static const auto call = real(&fdatasync, "fdatasync");
    return synced(fd, call);
}

int rename(const char* from, const char* to) noexcept {
    static const auto call = real(&rename, "rename");
    if (watching) {
        struct stat file {};
        (void)::stat(from, &file);
        if (note({.kind = Kind::Rename, .inode = file.st_ino, .size = file.st_size, .to = QFile::decodeName(to)}))
            (void)::raise(SIGKILL);
    }
    return call(from, to);
}

ssize_t pwrite(int fd, const void* bytes, size_t size, off_t offset) {
    static const auto call = real(&pwrite, "pwrite");
    if (!watching)
        return call(fd, bytes, size, offset);
    const struct stat file = statOf(fd);
    const QByteArray copy(static_cast<const char*>(bytes), qsizetype(size));
    if (note({.kind = Kind::Write, .inode = file.st_ino, .size = file.st_size, .offset = offset, .bytes = copy})) {
        (void)call(fd, bytes, size / 2, offset);
        (void)::raise(SIGKILL);
    }
    return call(fd, bytes, size, offset);
}

int ftruncate(int fd, off_t length) noexcept {
    static const auto call = real(&ftruncate, "ftruncate");
    if (watching && note({.kind = Kind::Cut, .inode = statOf(fd).st_ino, .size = length}))
        (void)::raise(SIGKILL);
    return call(fd, length);
}

#ifndef __USE_FILE_OFFSET64
ssize_t pwrite64(int fd, const void* bytes, size_t size, off64_t offset) {
    return pwrite(fd, bytes, size, offset);
}
int ftruncate64(int fd, off64_t length) noexcept {
    return ftruncate(fd, length);
}
#endif
}

DiskCalls::DiskCalls() {
    const std::lock_guard lock(mutex);
    seen.clear();
    syncError = 0;
    killed = -1;
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

void DiskCalls::killIn(int call) {
    const std::lock_guard lock(mutex);
    killed = call;
}
