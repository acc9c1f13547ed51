// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Disc/CueSheet.h"

#include "Platform/Disc/CDFormat.h"

#include <QFileInfo>

namespace Platform {

namespace {

/// Puts a text in quotation marks. The format has no escapes, so characters that it cannot hold are replaced.
QByteArray quoted(const QString& text) {
    QString clean;
    for (const QChar c : text)
        clean += c == u'"' ? QChar(u'\'') : c.category() == QChar::Other_Control ? QChar(u' ') : c;
    return '"' + clean.trimmed().toUtf8() + '"';
}

} // namespace

QByteArray msf(std::int64_t sectors) {
    return QString::asprintf("%02lld:%02lld:%02lld", static_cast<long long>(sectors / 75 / 60),
                             static_cast<long long>(sectors / 75 % 60), static_cast<long long>(sectors % 75))
        .toLatin1();
}

QByteArray cueSheet(const DRLayout& layout, const QString& binName) {
    QByteArray sheet = "FILE " + quoted(binName) + " BINARY\r\n";
    std::int64_t at = 0;
    int number = 0;
    for (const auto& track : layout) {
        const QString title = track->title().isEmpty() ? QFileInfo(track->path()).completeBaseName() : track->title();
        sheet += QString::asprintf("  TRACK %02d AUDIO\r\n", ++number).toLatin1();
        sheet += "    TITLE " + quoted(title) + "\r\n";
        if (!track->artist().isEmpty())
            sheet += "    PERFORMER " + quoted(track->artist()) + "\r\n";
        const std::int64_t gap = track->properties().preGapLength;
        if (gap > 0)
            sheet += "    INDEX 00 " + msf(at) + "\r\n";
        sheet += "    INDEX 01 " + msf(at + gap) + "\r\n";
        at += gap + track->sectors();
    }
    return sheet;
}

} // namespace Platform
