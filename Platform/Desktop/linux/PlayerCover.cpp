// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Desktop/PlayerCover.h"

#include "Platform/Foundation/linux/OpenFile.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace Platform {
namespace {

Error refused(Error::Kind kind, const QString& why) {
    return {kind, why, {}};
}

/// "data:image/png;base64,iVBOR…"; without ";base64" the bytes are percent-encoded.
Result<QByteArray> bytesInside(const QUrl& cover) {
    const QByteArray text = cover.toEncoded();
    const qsizetype comma = text.indexOf(',');
    if (comma < 0)
        return refused(Error::Kind::Damaged, QCoreApplication::translate("Players", "the address is incomplete"));
    const QByteArray content = QByteArray::fromPercentEncoding(text.mid(comma + 1));
    if (!text.left(comma).toLower().endsWith(";base64"))
        return content;
    auto decoded = QByteArray::fromBase64Encoding(content, QByteArray::AbortOnBase64DecodingErrors);
    if (!decoded)
        return refused(Error::Kind::Damaged, QCoreApplication::translate("Players", "the address is incomplete"));
    return std::move(*decoded);
}

} // namespace

Result<QByteArray> readPlayerCover(const QUrl& cover) {
    if (cover.scheme() == "data"_L1) {
        auto bytes = bytesInside(cover);
        if (bytes && bytes->size() > LargestPlayerCover)
            return refused(Error::Kind::Other, QCoreApplication::translate("Players", "the picture is too large"));
        return bytes;
    }
    // A host in the address ("file://server/…") would mean a file of another machine.
    if (!cover.isLocalFile() || !(cover.host().isEmpty() || cover.host() == "localhost"_L1))
        return refused(Error::Kind::Other,
                       QCoreApplication::translate("Players", "the picture is not a file of this machine"));
    return readFile(cover.path(QUrl::FullyDecoded), {.largest = LargestPlayerCover});
}

} // namespace Platform
