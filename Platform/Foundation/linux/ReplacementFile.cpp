// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Foundation/ReplacementFile.h"

#include "Platform/Foundation/linux/Descriptor.h"

#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace Platform {

ReplacementFile::ReplacementFile(const QString& target, Existing existing, Link link)
    : target_(target), existing_(existing) {
    if (existing == Existing::Replaced && link == Link::Followed)
        if (const QFileInfo info(target); info.isSymLink() && info.exists())
            target_ = info.canonicalFilePath();
    // The hidden name does not contain the target's name, which may already have the maximum length.
    const QString suffix = QFileInfo(target_).suffix();
    path_ = QFile::decodeName(folderOf(QFile::encodeName(target_))) + "/.sonaphex-"_L1 +
            QString::number(QRandomGenerator::system()->generate64(), 36) + ".part"_L1 +
            (suffix.isEmpty() || suffix.size() > 8 ? QString() : u'.' + suffix);
}

ReplacementFile::~ReplacementFile() {
    if (descriptor_ >= 0)
        ::close(descriptor_);
    if (!done_ && hasName_)
        (void)::unlink(QFile::encodeName(path_).constData());
}

int ReplacementFile::open(int mode) {
    const QByteArray hidden = QFile::encodeName(path_);
    descriptor_ = ::open(folderOf(hidden).constData(), O_TMPFILE | O_RDWR | O_CLOEXEC, mode);
    hasName_ = descriptor_ < 0;
    if (hasName_)
        descriptor_ = ::open(hidden.constData(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW, mode);
    return descriptor_ >= 0 ? 0 : errno;
}

int ReplacementFile::openLike(int model) {
    struct stat status {};
    if (::fstat(model, &status) != 0)
        return errno;
    if (const int error = open(0600); error != 0)
        return error;
    // Only root can change the owner; for other users the file already belongs to them.
    if (::fchown(descriptor_, status.st_uid, status.st_gid) != 0 && errno != EPERM)
        return errno;
    return ::fchmod(descriptor_, status.st_mode & 07777) == 0 ? 0 : errno;
}

/// Links the nameless open file to @p name; fails when the name exists.
int ReplacementFile::give(const QByteArray& name) {
    const QByteArray self = "/proc/self/fd/" + QByteArray::number(descriptor_);
    return ::linkat(AT_FDCWD, self.constData(), AT_FDCWD, name.constData(), AT_SYMLINK_FOLLOW) == 0 ? 0 : errno;
}

int ReplacementFile::sync() {
    if (descriptor_ < 0)
        descriptor_ = ::open(QFile::encodeName(path_).constData(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW);
    return descriptor_ >= 0 && syncFile(descriptor_) ? 0 : errno;
}

int ReplacementFile::takeName() {
    const QByteArray hidden = QFile::encodeName(path_);
    const QByteArray target = QFile::encodeName(target_);
    // linkat() cannot replace a file, so a nameless file first takes the hidden name.
    const bool linkToTarget = !hasName_ && existing_ == Existing::Kept;
    if (const int error = hasName_ ? 0 : give(linkToTarget ? target : hidden); error != 0)
        return error;
    hasName_ = true;
    if (!linkToTarget) {
        if (existing_ == Existing::Kept) {
            if (const int error = renameWithoutOverwriting(hidden, target); error != 0)
                return error;
        } else if (std::rename(hidden.constData(), target.constData()) != 0) {
            return errno;
        }
    }
    done_ = true;
    return 0;
}

int ReplacementFile::commit() {
    if (const int error = sync(); error != 0)
        return error;
    if (const int error = takeName(); error != 0)
        return error;
    syncFolder(folderOf(QFile::encodeName(target_)));
    return 0;
}

int ReplacementFile::commitTogether(ReplacementFile& first, ReplacementFile& second) {
    for (ReplacementFile* file : {&first, &second})
        if (const int error = file->sync(); error != 0)
            return error;
    if (const int error = first.takeName(); error != 0)
        return error;
    if (const int error = second.takeName(); error != 0) {
        (void)::unlink(QFile::encodeName(first.target_).constData());
        return error;
    }
    for (const ReplacementFile* file : {&first, &second})
        syncFolder(folderOf(QFile::encodeName(file->target_)));
    return 0;
}

} // namespace Platform
