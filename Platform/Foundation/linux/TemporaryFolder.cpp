// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Foundation/TemporaryFolder.h"

#include "Platform/Foundation/Folders.h"
#include "Platform/Foundation/MovedFiles.h"

#include <QDir>
#include <QFile>
#include <QRandomGenerator>

#include <sys/stat.h>

#include <filesystem>

namespace Platform {
namespace {

const QString lockEnding = QStringLiteral(".lock");

/// Every folder has its lock as long as it stands: the lock comes before it and goes after it.
void removeOfDeadOwners(const QString& parent, const QString& prefix) {
    const auto names = QDir(parent).entryList({prefix + u'*' + lockEnding}, QDir::Files | QDir::Hidden);
    for (const QString& name : names) {
        FileLock lock;
        const QString path = parent + u'/' + name;
        if (lock.take(path) != FileLock::Result::Held)
            continue;
        TemporaryFolder::removeWhole(path.chopped(lockEnding.size()));
        lock.removeAndRelease();
    }
}

} // namespace

void TemporaryFolder::removeWhole(const QString& path) {
    MovedFiles::bringBack(path);
    std::error_code ignored;
    std::filesystem::remove_all(QFile::encodeName(path).toStdString(), ignored);
}

std::optional<TemporaryFolder> TemporaryFolder::create(const QString& kind, QString& why) {
    const QString parent = Folders::temporary(&why);
    if (parent.isEmpty())
        return {};
    const QString prefix = kind + u'-';
    removeOfDeadOwners(parent, prefix);
    for (;;) {
        const QString path = parent + u'/' + prefix + QString::number(QRandomGenerator::global()->generate(), 36);
        FileLock lock;
        const auto result = lock.take(path + lockEnding);
        if (result == FileLock::Result::Elsewhere)
            continue;
        if (result == FileLock::Result::Failed) {
            why = lock.problem();
            return {};
        }
        if (mkdir(QFile::encodeName(path).constData(), 0700) == 0)
            return TemporaryFolder(std::move(lock), path);
        if (errno == EEXIST)
            continue;
        why = QStringLiteral("%1: %2").arg(path, qt_error_string(errno));
        lock.removeAndRelease();
        return {};
    }
}

TemporaryFolder::~TemporaryFolder() {
    if (!lock_.isHeld())
        return; // moved from
    removeWhole(path_);
    lock_.removeAndRelease();
}

} // namespace Platform
