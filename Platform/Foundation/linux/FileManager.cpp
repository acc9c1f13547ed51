// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Foundation/FileManager.h"

#include "Platform/Foundation/Bundle.h"
#include "Platform/Foundation/Folders.h"
#include "Platform/Foundation/Services.h"
#include "Platform/Foundation/linux/Descriptor.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>

#include <vector>

namespace Platform::FileManager {
namespace {

Problem words(int error) {
    return error == 0 ? Problem() : qt_error_string(error);
}

QByteArray folderOf(const QByteArray& path) {
    const auto slash = path.lastIndexOf('/');
    return slash < 0 ? QByteArray(".") : slash == 0 ? QByteArray("/") : path.left(slash);
}

/// A name of its own beside the target: short, for the target's own may already be as long as a name can be.
QByteArray hiddenNameIn(const QByteArray& folder) {
    return folder + "/.sonaphex-" + QByteArray::number(QRandomGenerator::global()->generate64(), 36) + ".part";
}

/// rename() that never overwrites. @return 0 or an errno; EEXIST when something stands at the target.
int renameWithoutOverwriting(const QByteArray& from, const QByteArray& to) {
    if (renameat2(AT_FDCWD, from.constData(), AT_FDCWD, to.constData(), RENAME_NOREPLACE) == 0)
        return 0;
    if (errno != EINVAL && errno != ENOSYS)
        return errno;
    // The file system does not know the flag. A hard link never overwrites either.
    if (link(from.constData(), to.constData()) == 0)
        return unlink(from.constData()) == 0 ? 0 : errno;
    if (errno != EPERM && errno != EOPNOTSUPP && errno != EMLINK && errno != ENOSYS)
        return errno;
    // Nor links: an empty file of ours holds the name, and is then replaced.
    const Descriptor held{::open(to.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600)};
    if (!held)
        return errno;
    if (rename(from.constData(), to.constData()) == 0)
        return 0;
    const int error = errno;
    (void)unlink(to.constData());
    return error;
}

/// Copies a regular file to a hidden name in @p folder, synced. @return 0 or an errno; nothing is left on failure.
int copyHidden(const QByteArray& from, const QByteArray& folder, QByteArray& hidden) {
    const Descriptor source{::open(from.constData(), O_RDONLY | O_CLOEXEC | O_NOCTTY)};
    if (!source)
        return errno;
    struct stat is {};
    if (fstat(source.get(), &is) != 0)
        return errno;
    if (!S_ISREG(is.st_mode))
        return S_ISDIR(is.st_mode) ? EISDIR : EINVAL;
    hidden = hiddenNameIn(folder);
    Descriptor target{::open(hidden.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600)};
    if (!target)
        return errno;
    int error = 0;
    std::vector<char> block(1 << 20);
    for (;;) {
        const ssize_t got = ::read(source.get(), block.data(), block.size());
        if (got < 0 && errno == EINTR)
            continue;
        if (got < 0)
            error = errno;
        if (got <= 0)
            break;
        if (!writeAll(target.get(), QByteArrayView(block.data(), got))) {
            error = errno;
            break;
        }
    }
    if (error == 0) {
        (void)fchmod(target.get(), is.st_mode & 07777);
        const timespec times[2] = {is.st_atim, is.st_mtim};
        (void)futimens(target.get(), times);
        if (fsync(target.get()) != 0)
            error = errno;
    }
    if (const int closed = target.close(); error == 0)
        error = closed;
    if (error != 0)
        (void)unlink(hidden.constData());
    return error;
}

/// @return 0 or an errno; EEXIST when something stands at the target.
int moveFile(const QByteArray& from, const QByteArray& to) {
    int error = renameWithoutOverwriting(from, to);
    if (error == 0) {
        syncFolder(folderOf(to));
        return 0;
    }
    if (error != EXDEV)
        return error;
    struct stat there {};
    if (lstat(to.constData(), &there) == 0)
        return EEXIST; // known before the copy is paid for
    QByteArray hidden;
    if ((error = copyHidden(from, folderOf(to), hidden)) != 0)
        return error;
    if ((error = renameWithoutOverwriting(hidden, to)) != 0) {
        (void)unlink(hidden.constData());
        return error;
    }
    syncFolder(folderOf(to));
    return unlink(from.constData()) == 0 ? 0 : errno;
}

} // namespace

Problem move(const QString& from, const QString& to) {
    return words(moveFile(QFile::encodeName(from), QFile::encodeName(to)));
}

Problem moveToFreeName(const QString& from, const QString& to,
                       const std::function<QString(const QString& taken)>& nextName, QString& landed) {
    QString target = to;
    for (;;) {
        const int error = moveFile(QFile::encodeName(from), QFile::encodeName(target));
        if (error == 0)
            landed = target;
        if (error != EEXIST)
            return words(error);
        const QString next = nextName(target);
        if (next.isEmpty() || next == target)
            return words(error);
        target = next;
    }
}

Problem copy(const QString& from, const QString& to, bool replace) {
    const QByteArray target = QFile::encodeName(to);
    struct stat there {};
    if (!replace && lstat(target.constData(), &there) == 0)
        return words(EEXIST);
    QByteArray hidden;
    if (const int error = copyHidden(QFile::encodeName(from), folderOf(target), hidden))
        return words(error);
    const int error = replace ? (rename(hidden.constData(), target.constData()) == 0 ? 0 : errno)
                              : renameWithoutOverwriting(hidden, target);
    if (error != 0)
        (void)unlink(hidden.constData());
    else
        syncFolder(folderOf(target));
    return words(error);
}

Problem removeFile(const QString& path) {
    const QByteArray name = QFile::encodeName(path);
    struct stat is {};
    if (lstat(name.constData(), &is) != 0)
        return words(errno == ENOENT ? 0 : errno);
    if (!S_ISREG(is.st_mode) && !S_ISLNK(is.st_mode))
        return S_ISDIR(is.st_mode) ? words(EISDIR) : QStringLiteral("not a regular file");
    return words(unlink(name.constData()) == 0 || errno == ENOENT ? 0 : errno);
}

Problem writeAtomically(const QString& path, const QByteArray& content, int mode) {
    // A link stays one: what it points to is replaced.
    const QFileInfo info(path);
    const QString real = info.isSymLink() && info.exists() ? info.canonicalFilePath() : path;
    const QByteArray target = QFile::encodeName(real);
    const QByteArray hidden = hiddenNameIn(folderOf(target));
    Descriptor file{::open(hidden.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode)};
    if (!file)
        return words(errno);
    int error = writeAll(file.get(), content) && fsync(file.get()) == 0 ? 0 : errno;
    if (const int closed = file.close(); error == 0)
        error = closed;
    if (error == 0 && rename(hidden.constData(), target.constData()) != 0)
        error = errno;
    if (error != 0)
        (void)unlink(hidden.constData());
    else
        syncFolder(folderOf(target));
    return words(error);
}

qint64 availableBytes(const QString& path) {
    QByteArray folder = QFile::encodeName(path);
    struct statvfs is {};
    while (statvfs(folder.constData(), &is) != 0) {
        if ((errno != ENOENT && errno != ENOTDIR) || folder == "/" || folder == ".")
            return -1;
        folder = folderOf(folder);
    }
    return qint64(is.f_bavail) * qint64(is.f_frsize);
}

QString unfinishedFolder() {
    const Bundle* bundle = services().bundle;
    const QString folder = Folders::data() + u'/' +
                           (bundle ? bundle->bundleIdentifier() : QStringLiteral("com.korvane.Sonaphex")) +
                           QStringLiteral("/Unfinished");
    (void)QDir().mkpath(folder);
    return folder;
}

Problem moveIntoFolder(const QString& path, const QString& folder, const QString& wishedName, QString& landed) {
    QString name = wishedName;
    name.replace(u'/', u'_');
    if (name.isEmpty() || name == QStringLiteral(".") || name == QStringLiteral(".."))
        name = QStringLiteral("Unfinished");
    const auto dot = name.lastIndexOf(u'.');
    const QString stem = dot > 0 ? name.left(dot) : name;
    const QString ending = dot > 0 ? name.mid(dot) : QString();
    int number = 1;
    return moveToFreeName(
        path, folder + u'/' + name,
        [&](const QString&) {
            return QStringLiteral("%1/%2 %3%4").arg(folder, stem, QString::number(++number), ending);
        },
        landed);
}

QString setAside(const QString& path, const QString& wishedName) {
    QString landed;
    return moveIntoFolder(path, unfinishedFolder(), wishedName, landed).isEmpty() ? landed : path;
}

} // namespace Platform::FileManager
