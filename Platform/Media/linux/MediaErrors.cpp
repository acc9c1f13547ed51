// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Media/linux/MediaErrors.h"

#include <cerrno>
#include <system_error>

namespace Platform {

OSStatus statusOf(const MediaError& error) {
    switch (error.kind) {
    case MediaError::Kind::None:
        return noErr;
    case MediaError::Kind::NotFound:
        return -43;
    case MediaError::Kind::NotPermitted:
        return -54;
    case MediaError::Kind::DiskFull:
        return -34;
    case MediaError::Kind::UnknownFormat:
    case MediaError::Kind::NoAudio:
        return OSStatus(fourCharCode("typ?"));
    case MediaError::Kind::Damaged:
        return OSStatus(fourCharCode("dta?"));
    case MediaError::Kind::Encoder:
        return OSStatus(fourCharCode("fmt?"));
    case MediaError::Kind::NotAFile:
    case MediaError::Kind::Other:
        break;
    }
    return OSStatus(fourCharCode("wht?"));
}

MediaError errnoError(int code, const QString& path) {
    auto kind = MediaError::Kind::Other;
    switch (code) {
    case ENOENT:
    case ENOTDIR:
        kind = MediaError::Kind::NotFound;
        break;
    case EACCES:
    case EPERM:
    case EROFS:
        kind = MediaError::Kind::NotPermitted;
        break;
    case EISDIR:
    case ENXIO:
    case ELOOP:
        kind = MediaError::Kind::NotAFile;
        break;
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
        kind = MediaError::Kind::DiskFull;
        break;
    default:
        break;
    }
    return makeError(kind, path, QString::fromStdString(std::generic_category().message(code)));
}

MediaError makeError(MediaError::Kind kind, const QString& path, const QString& what) {
    return {kind, path.isEmpty() ? what : path + QStringLiteral(": ") + what};
}

} // namespace Platform
