// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Foundation/Result.h"

#include <cerrno>

namespace Platform {
namespace {

Error::Kind kindOf(int code) {
    switch (code) {
    case ENOENT:
    case ENOTDIR:
        return Error::Kind::NotFound;
    case EEXIST:
        return Error::Kind::Exists;
    case EACCES:
    case EPERM:
    case EROFS:
        return Error::Kind::NotPermitted;
    case EISDIR:
    case ENXIO:
    case ELOOP:
        return Error::Kind::NotAFile;
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
        return Error::Kind::DiskFull;
    default:
        return Error::Kind::Other;
    }
}

} // namespace

Error Error::ofErrno(int code, const QString& path) {
    const QString text = qt_error_string(code);
    return {kindOf(code), path.isEmpty() ? text : path + QStringLiteral(": ") + text,
            QStringLiteral("errno %1").arg(code)};
}

} // namespace Platform
