// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Foundation/linux/OpenFile.h"

#include <QCoreApplication>
#include <QFile>
#include <QLocale>

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace Platform {
namespace {

constexpr std::int64_t largestWithoutLimit = std::int64_t(64) << 20;

/// Why the rules refuse the file; empty when they accept it.
QString refusal(const struct stat& status, const FileRules& rules) {
    if (S_ISLNK(status.st_mode))
        return QCoreApplication::translate("Foundation", "is a link");
    if (S_ISDIR(status.st_mode))
        return QCoreApplication::translate("Foundation", "is a folder");
    if (!S_ISREG(status.st_mode))
        return QCoreApplication::translate("Foundation", "not a regular file");
    if (rules.ownUser && status.st_uid != ::geteuid() && status.st_uid != 0)
        return QCoreApplication::translate("Foundation", "belongs to another user");
    if (rules.largest >= 0 && status.st_size > rules.largest)
        return QCoreApplication::translate("Foundation", "is larger than %1")
            .arg(QLocale().formattedDataSize(rules.largest));
    return {};
}

} // namespace

OpenedFile openFile(const QString& path, const FileRules& rules) {
    OpenedFile opened;
    const auto refuse = [&opened](const QString& why) {
        opened.file.reset(-1);
        opened.error = {Error::Kind::NotAFile, why};
        return std::move(opened);
    };
    const auto fail = [&opened] {
        opened.code = errno;
        opened.error = Error::ofErrno(opened.code);
        opened.file.reset(-1);
        return std::move(opened);
    };
    const QByteArray name = QFile::encodeName(path);
    // Check before opening: opening a pipe or a device can change it, even when it is closed at once.
    const auto look = rules.noLink ? ::lstat : ::stat;
    if (look(name.constData(), &opened.status) != 0)
        return fail();
    if (const QString why = refusal(opened.status, rules); !why.isEmpty())
        return refuse(why);
    opened.file.reset(::open(name.constData(), (rules.writable ? O_RDWR : O_RDONLY) | (rules.noLink ? O_NOFOLLOW : 0) |
                                                   O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
    if (!opened.file || ::fstat(opened.file.get(), &opened.status) != 0)
        return fail();
    // The name may refer to another file by now.
    if (const QString why = refusal(opened.status, rules); !why.isEmpty())
        return refuse(why);
    return opened;
}

Result<QByteArray> readFile(const QString& path, const FileRules& rules) {
    FileRules limited = rules;
    if (limited.largest < 0)
        limited.largest = largestWithoutLimit;
    const OpenedFile opened = openFile(path, limited);
    if (!opened.file)
        return opened.error;
    QByteArray content(qsizetype(opened.status.st_size), Qt::Uninitialized);
    const std::int64_t count = readAllAt(opened.file.get(), content.data(), std::size_t(content.size()), 0);
    if (count < 0)
        return Error::ofErrno(int(-count));
    content.truncate(qsizetype(count)); // the file may have been truncated since it was opened
    return content;
}

} // namespace Platform
