// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Foundation/TemporaryFolder.h"

#include "Platform/Foundation/Folders.h"
#include "Platform/Foundation/MovedFiles.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>

#include <sys/stat.h>

#include <filesystem>

namespace Platform {
namespace {

constexpr QLatin1StringView lockEnding(".lock");

/// A folder that is kept also keeps its lock file, by which a later process finds the folder.
void removeWithLock(const QString& path, FileLock& lock) {
    TemporaryFolder::removeWhole(path);
    if (QFileInfo::exists(path))
        lock.release();
    else
        lock.removeAndRelease();
}

/// Every folder has a lock file as long as it exists: the lock is created before the folder and removed after it.
void removeOfDeadOwners(const QString& parent, const QString& prefix) {
    const auto names = QDir(parent).entryList({prefix + u'*' + lockEnding}, QDir::Files | QDir::Hidden);
    for (const QString& name : names) {
        FileLock lock;
        const QString path = parent + u'/' + name;
        if (!lock.take(path))
            continue;
        removeWithLock(path.chopped(lockEnding.size()), lock);
    }
}

} // namespace

void TemporaryFolder::removeWhole(const QString& path) {
    namespace fs = std::filesystem;
    const QStringList stay = MovedFiles::bringBack(path);
    const fs::path folder = QFile::encodeName(path).toStdString();
    std::error_code ignored;
    if (stay.isEmpty()) {
        fs::remove_all(folder, ignored);
        return;
    }
    for (fs::directory_iterator entry(folder, ignored), end; entry != end; entry.increment(ignored))
        if (!stay.contains(QFile::decodeName(entry->path().filename().c_str())))
            fs::remove_all(entry->path(), ignored);
}

Result<TemporaryFolder> TemporaryFolder::create(const QString& kind) {
    const auto parent = Folders::temporary();
    if (!parent)
        return parent.error();
    const QString prefix = kind + u'-';
    removeOfDeadOwners(*parent, prefix);
    for (;;) {
        const QString path = *parent + u'/' + prefix + QString::number(QRandomGenerator::system()->generate(), 36);
        FileLock lock;
        if (const auto taken = lock.take(path + lockEnding); !taken) {
            if (taken.error().kind == Error::Kind::Busy)
                continue;
            return taken.error();
        }
        if (mkdir(QFile::encodeName(path).constData(), 0700) == 0)
            return TemporaryFolder(std::move(lock), path);
        if (errno == EEXIST)
            continue;
        const Error error = Error::ofErrno(errno, path);
        lock.removeAndRelease();
        return error;
    }
}

TemporaryFolder::~TemporaryFolder() {
    if (!lock_.isHeld())
        return; // moved from
    removeWithLock(path_, lock_);
}

} // namespace Platform
