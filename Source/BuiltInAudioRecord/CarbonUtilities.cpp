// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/BuiltInAudioRecord/CarbonUtilities.h"

#include <QFile>

#include <cstdlib>
#include <memory>

#include <sys/stat.h>

namespace CarbonUtilities {
namespace {
constexpr qsizetype longestPath = 1024;
}

QString stringWithFSRef(const FSRef* reference) {
    struct stat is {};
    if (!reference || reference->path.size() > longestPath || lstat(reference->path.constData(), &is) != 0 ||
        is.st_dev != reference->device || is.st_ino != reference->inode)
        return {};
    return QString::fromUtf8(reference->path);
}

bool getFSRef(const QString& path, FSRef& reference) {
    const QByteArray name = path.toUtf8();
    struct stat is {};
    if (lstat(name.constData(), &is) != 0)
        return false;
    reference = {is.st_dev, is.st_ino, name};
    return true;
}

QString resolveAliasFile(const QString& path) {
    const QByteArray name = path.toUtf8();
    struct stat is {};
    if (lstat(name.constData(), &is) != 0)
        return {};
    if (!S_ISLNK(is.st_mode))
        return path;
    const std::unique_ptr<char, decltype(&std::free)> resolved(realpath(name.constData(), nullptr), &std::free);
    FSRef reference;
    return resolved && getFSRef(QString::fromUtf8(resolved.get()), reference) ? stringWithFSRef(&reference) : QString();
}

} // namespace CarbonUtilities
