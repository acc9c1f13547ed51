// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Foundation/Folders.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>

#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Platform::Folders {
namespace {

/// A folder from the environment when it is absolute, else @p fallback; without a trailing slash.
QString fromEnvironment(const char* name, const QString& fallback) {
    const QString value = QFile::decodeName(qgetenv(name));
    return value.startsWith(u'/') ? QDir::cleanPath(value) : fallback;
}

/// Why @p path is not a folder that only this user can enter; empty when it is.
QString whyNotPrivate(const QString& path) {
    struct stat is {};
    if (lstat(QFile::encodeName(path).constData(), &is) != 0)
        return QStringLiteral("%1: %2").arg(path, qt_error_string(errno));
    if (S_ISLNK(is.st_mode))
        return QCoreApplication::translate("Foundation", "%1 is a link").arg(path);
    if (!S_ISDIR(is.st_mode))
        return QCoreApplication::translate("Foundation", "%1 is no folder").arg(path);
    if (is.st_uid != geteuid())
        return QCoreApplication::translate("Foundation", "%1 belongs to another user").arg(path);
    if (is.st_mode & 077)
        return QCoreApplication::translate("Foundation", "%1 is open to others").arg(path);
    return {};
}

/// Creates @p path with mode 0700 when it is missing; an existing folder of this user gets that mode.
QString makePrivate(const QString& path) {
    QDir().mkpath(QFileInfo(path).path());
    const QByteArray name = QFile::encodeName(path);
    if (mkdir(name.constData(), 0700) != 0 && errno == EEXIST) {
        struct stat is {};
        if (lstat(name.constData(), &is) == 0 && S_ISDIR(is.st_mode) && is.st_uid == geteuid() && (is.st_mode & 077))
            (void)chmod(name.constData(), 0700);
    }
    return whyNotPrivate(path);
}

} // namespace

QString home() {
    const QString fromVariable = fromEnvironment("HOME", {});
    if (!fromVariable.isEmpty())
        return fromVariable;
    const passwd* entry = getpwuid(geteuid());
    return entry && entry->pw_dir ? QDir::cleanPath(QFile::decodeName(entry->pw_dir)) : QStringLiteral("/");
}

QString config() {
    return fromEnvironment("XDG_CONFIG_HOME", home() + QStringLiteral("/.config"));
}

QString cache() {
    return fromEnvironment("XDG_CACHE_HOME", home() + QStringLiteral("/.cache"));
}

QString data() {
    return fromEnvironment("XDG_DATA_HOME", home() + QStringLiteral("/.local/share"));
}

QString runtime() {
    const QString given = fromEnvironment("XDG_RUNTIME_DIR", {});
    if (!given.isEmpty())
        return given;
    const QString own = cache() + QStringLiteral("/run");
    (void)makePrivate(own);
    return own;
}

Result<QString> temporary() {
    const QString given = fromEnvironment("TMPDIR", {});
    if (!given.isEmpty() && whyNotPrivate(given).isEmpty())
        return given;
    const QString own = cache() + QStringLiteral("/tmp");
    if (const QString problem = makePrivate(own); !problem.isEmpty())
        return Error{Error::Kind::NotPermitted, problem};
    return own;
}

} // namespace Platform::Folders
