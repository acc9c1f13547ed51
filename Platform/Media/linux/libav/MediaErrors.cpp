// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Media/linux/libav/MediaErrors.h"

namespace Platform {

OSStatus statusOf(const Error& error) {
    switch (error.kind) {
    case Error::Kind::None:
        return noErr;
    case Error::Kind::NotFound:
        return -43;
    case Error::Kind::NotPermitted:
        return -54;
    case Error::Kind::DiskFull:
        return -34;
    case Error::Kind::UnknownFormat:
    case Error::Kind::NoAudio:
        return OSStatus(fourCharCode("typ?"));
    case Error::Kind::Damaged:
        return OSStatus(fourCharCode("dta?"));
    case Error::Kind::Encoder:
        return OSStatus(fourCharCode("fmt?"));
    case Error::Kind::Exists:
    case Error::Kind::NotAFile:
    case Error::Kind::Busy:
    case Error::Kind::Cancelled:
    case Error::Kind::Other:
        break;
    }
    return OSStatus(fourCharCode("wht?"));
}

Error makeError(Error::Kind kind, const QString& path, const QString& what, const QString& detail) {
    return {kind, path.isEmpty() ? what : path + QStringLiteral(": ") + what, detail};
}

} // namespace Platform
