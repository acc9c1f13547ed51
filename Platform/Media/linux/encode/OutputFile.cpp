// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Media/linux/encode/OutputFile.h"

#include "Platform/Foundation/linux/Descriptor.h"

#include <QCoreApplication>
#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Platform {

OutputFile::~OutputFile() {
    close();
}

Result<> OutputFile::create(const QString& path, bool overwrite) {
    path_ = path;
    const QByteArray name = QFile::encodeName(path);
    // Truncated later, after it is known to be a regular file.
    const int flags = O_RDWR | O_CREAT | O_CLOEXEC | O_NONBLOCK | (overwrite ? 0 : O_EXCL);
    fd_ = ::open(name.constData(), flags, 0666);
    if (fd_ < 0)
        return Error::ofErrno(errno, path);
    struct stat info = {};
    if (::fstat(fd_, &info) == 0 && !S_ISREG(info.st_mode)) {
        close();
        return makeError(Error::Kind::NotAFile, path, QCoreApplication::translate("Media", "not a regular file"));
    }
    if (::ftruncate(fd_, 0) < 0) {
        const Error error = Error::ofErrno(errno, path);
        close();
        return error;
    }
    return {};
}

bool OutputFile::append(std::span<const std::uint8_t> bytes) {
    if (fd_ < 0 || failed())
        return false;
    if (!writeAllAt(fd_, bytes, size_)) {
        fail(Error::ofErrno(errno, path_));
        if (::ftruncate(fd_, size_) < 0)
            qWarning("%s: the unfinished end could not be cut off", qUtf8Printable(path_));
        return false;
    }
    size_ += std::int64_t(bytes.size());
    return true;
}

bool OutputFile::patch(std::int64_t offset, std::span<const std::uint8_t> bytes) {
    if (fd_ < 0)
        return false;
    if (writeAllAt(fd_, bytes, offset))
        return true;
    fail(Error::ofErrno(errno, path_));
    return false;
}

bool OutputFile::readBack(std::int64_t offset, std::span<std::uint8_t> bytes) const {
    return readAllAt(fd_, bytes.data(), bytes.size(), offset) == std::int64_t(bytes.size());
}

bool OutputFile::beginReplacement(OutputFile& replacement) const {
    struct stat open = {};
    struct stat lying = {};
    const QByteArray name = QFile::encodeName(path_);
    if (::fstat(fd_, &open) < 0 || ::stat(name.constData(), &lying) < 0 || open.st_dev != lying.st_dev ||
        open.st_ino != lying.st_ino)
        return false;
    auto hidden = std::make_unique<ReplacementFile>(path_);
    if (hidden->openLike(fd_) != 0)
        return false;
    replacement.path_ = path_;
    replacement.fd_ = ::fcntl(hidden->descriptor(), F_DUPFD_CLOEXEC, 0);
    replacement.hidden_ = std::move(hidden);
    return replacement.fd_ >= 0;
}

bool OutputFile::replaceWith(OutputFile& replacement) {
    const auto hidden = std::move(replacement.hidden_);
    if (!hidden || replacement.failed() || hidden->commit() != 0)
        return false;
    std::swap(fd_, replacement.fd_);
    std::swap(size_, replacement.size_);
    return true;
}

void OutputFile::syncContent() {
    if (fd_ >= 0 && !syncFile(fd_))
        fail(Error::ofErrno(errno, path_));
}

void OutputFile::sync() {
    syncContent();
    syncFolder(folderOf(QFile::encodeName(path_)));
}

void OutputFile::close() {
    if (fd_ < 0)
        return;
    // Some file systems report a full disk only at close.
    if (::close(fd_) < 0 && errno != EINTR)
        fail(Error::ofErrno(errno, path_));
    fd_ = -1;
}

void OutputFile::fail(const Error& error) {
    const std::lock_guard lock(mutex_);
    if (!error_)
        error_ = error;
}

bool OutputFile::failed() const {
    const std::lock_guard lock(mutex_);
    return bool(error_);
}

Error OutputFile::firstError() const {
    const std::lock_guard lock(mutex_);
    return error_;
}

} // namespace Platform
