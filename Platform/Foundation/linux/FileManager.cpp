// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Foundation/FileManager.h"

#include "Platform/Foundation/Bundle.h"
#include "Platform/Foundation/Folders.h"
#include "Platform/Foundation/ReplacementFile.h"
#include "Platform/Foundation/Services.h"
#include "Platform/Foundation/linux/Descriptor.h"
#include "Platform/Foundation/linux/OpenFile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>

namespace Platform::FileManager {
namespace {

/// @p error is 0 or a value of errno.
Result<> resultOf(int error) {
    return error == 0 ? Result<>() : Error::ofErrno(error);
}

/// Copies a regular file to @p target through a hidden file beside it. @return 0 or an errno; on failure nothing is
/// left.
int copyFile(const QByteArray& from, const QByteArray& target, ReplacementFile::Existing existing) {
    const OpenedFile source = openFile(QFile::decodeName(from));
    if (!source.file)
        return source.code != 0 ? source.code : source.isFolder() ? EISDIR : EINVAL;
    ReplacementFile copy(QFile::decodeName(target), existing, ReplacementFile::Link::Replaced);
    const timespec times[2] = {source.status.st_atim, source.status.st_mtim};
    int error = copy.open(0600);
    if (error == 0 && !copyBytes(source.file.get(), 0, source.status.st_size, copy.descriptor(), 0))
        error = errno;
    if (error != 0)
        return error;
    (void)fchmod(copy.descriptor(), source.status.st_mode & 07777);
    (void)futimens(copy.descriptor(), times);
    return copy.commit();
}

/// @return 0 or an errno; EEXIST when the target exists.
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
        return EEXIST; // checked before the copy, which may take long
    if ((error = copyFile(from, to, ReplacementFile::Existing::Kept)) != 0)
        return error;
    return unlink(from.constData()) == 0 ? 0 : errno;
}

} // namespace

Result<> move(const QString& from, const QString& to) {
    return resultOf(moveFile(QFile::encodeName(from), QFile::encodeName(to)));
}

Result<QString> moveToFreeName(const QString& from, const QString& to,
                               const std::function<QString(const QString& taken)>& nextName) {
    QString target = to;
    for (;;) {
        const int error = moveFile(QFile::encodeName(from), QFile::encodeName(target));
        if (error == 0)
            return target;
        const QString next = error == EEXIST ? nextName(target) : QString();
        if (next.isEmpty() || next == target)
            return Error::ofErrno(error);
        target = next;
    }
}

Result<> copy(const QString& from, const QString& to, bool replace) {
    const QByteArray target = QFile::encodeName(to);
    struct stat there {};
    if (!replace && lstat(target.constData(), &there) == 0)
        return resultOf(EEXIST);
    return resultOf(copyFile(QFile::encodeName(from), target,
                             replace ? ReplacementFile::Existing::Replaced : ReplacementFile::Existing::Kept));
}

Result<> sync(const QString& path) {
    const QByteArray name = QFile::encodeName(path);
    const Descriptor file{::open(name.constData(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NOCTTY)};
    if (!file || fsync(file.get()) != 0)
        return resultOf(errno);
    syncFolder(folderOf(name));
    return {};
}

bool isOpenForWriting(const QString& path) {
    const Descriptor file{
        ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOFOLLOW | O_NOCTTY)};
    // The kernel refuses a read lease exactly while the file is open for writing. Closing the file returns the lease.
    return file && fcntl(file.get(), F_SETLEASE, F_RDLCK) != 0 && errno == EAGAIN;
}

Result<> removeFile(const QString& path) {
    const QByteArray name = QFile::encodeName(path);
    struct stat is {};
    if (lstat(name.constData(), &is) != 0)
        return resultOf(errno == ENOENT ? 0 : errno);
    if (S_ISDIR(is.st_mode))
        return Error::ofErrno(EISDIR);
    if (!S_ISREG(is.st_mode) && !S_ISLNK(is.st_mode))
        return Error{Error::Kind::NotAFile, QCoreApplication::translate("Foundation", "not a regular file")};
    return resultOf(unlink(name.constData()) == 0 || errno == ENOENT ? 0 : errno);
}

Result<> writeAtomically(const QString& path, const QByteArray& content, int mode) {
    ReplacementFile file(path);
    int error = file.open(mode);
    if (error == 0 && !writeAll(file.descriptor(), content))
        error = errno;
    return resultOf(error != 0 ? error : file.commit());
}

Result<QByteArray> read(const QString& path, qint64 largest) {
    return readFile(path, {.largest = largest});
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

Result<QString> moveIntoFolder(const QString& path, const QString& folder, const QString& wishedName) {
    QString name = wishedName;
    name.replace(u'/', u'_');
    if (name.isEmpty() || name == QStringLiteral(".") || name == QStringLiteral(".."))
        name = QStringLiteral("Unfinished");
    const auto dot = name.lastIndexOf(u'.');
    const QString stem = dot > 0 ? name.left(dot) : name;
    const QString ending = dot > 0 ? name.mid(dot) : QString();
    int number = 1;
    return moveToFreeName(path, folder + u'/' + name, [&](const QString&) {
        return QStringLiteral("%1/%2 %3%4").arg(folder, stem, QString::number(++number), ending);
    });
}

QString setAside(const QString& path, const QString& wishedName) {
    return moveIntoFolder(path, unfinishedFolder(), wishedName).valueOr(path);
}

} // namespace Platform::FileManager
