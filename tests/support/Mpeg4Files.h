// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tests/support/RunTool.h"

#include <QFile>
#include <QImage>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRandomGenerator>

/// MPEG-4 audio files for tests, made and examined by other programs.
namespace Mpeg4Files {

/// The fragments of FragmentedWithPlaces contain their absolute offset in the file, those of Fragmented do not.
enum class Shape { IndexAtEnd, IndexInFront, Fragmented, FragmentedWithPlaces, Ringtone };

/// A few seconds of a tone.
inline bool make(const QString& path, Shape shape = Shape::IndexAtEnd, int seconds = 3) {
    QStringList arguments{QStringLiteral("-v"),
                          QStringLiteral("error"),
                          QStringLiteral("-f"),
                          QStringLiteral("lavfi"),
                          QStringLiteral("-i"),
                          QStringLiteral("sine=frequency=440:duration=%1").arg(seconds),
                          QStringLiteral("-c:a"),
                          QStringLiteral("aac"),
                          QStringLiteral("-map_metadata"),
                          QStringLiteral("-1"),
                          QStringLiteral("-fflags"),
                          QStringLiteral("+bitexact")};
    if (shape == Shape::IndexInFront)
        arguments << QStringLiteral("-movflags") << QStringLiteral("+faststart");
    if (shape == Shape::Fragmented)
        arguments << QStringLiteral("-movflags") << QStringLiteral("+frag_keyframe+empty_moov+default_base_moof")
                  << QStringLiteral("-frag_duration") << QStringLiteral("500000");
    if (shape == Shape::FragmentedWithPlaces)
        arguments << QStringLiteral("-movflags") << QStringLiteral("+frag_keyframe+empty_moov")
                  << QStringLiteral("-frag_duration") << QStringLiteral("500000");
    arguments << QStringLiteral("-f") << QStringLiteral("ipod") << QStringLiteral("-y") << path;
    return runTool(QStringLiteral("ffmpeg"), arguments).status == 0;
}

/// A hash of the decoded audio; empty when decoding fails.
inline QByteArray audioOf(const QString& path) {
    const ToolResult result =
        runTool(QStringLiteral("ffmpeg"),
                {QStringLiteral("-v"), QStringLiteral("error"), QStringLiteral("-i"), path, QStringLiteral("-map"),
                 QStringLiteral("0:a"), QStringLiteral("-f"), QStringLiteral("md5"), QStringLiteral("-")});
    return result.status == 0 && result.errors.isEmpty() ? result.output : QByteArray();
}

/// The tags that ffprobe reads, under its names.
inline QJsonObject probe(const QString& path) {
    const ToolResult result = runTool(QStringLiteral("ffprobe"),
                                      {QStringLiteral("-v"), QStringLiteral("error"), QStringLiteral("-show_format"),
                                       QStringLiteral("-of"), QStringLiteral("json"), path});
    return QJsonDocument::fromJson(result.output)[QStringLiteral("format")][QStringLiteral("tags")].toObject();
}

/// The bytes of the artwork that ffmpeg reads.
inline QByteArray artworkOf(const QString& path) {
    return runTool(QStringLiteral("ffmpeg"),
                   {QStringLiteral("-v"), QStringLiteral("error"), QStringLiteral("-i"), path, QStringLiteral("-map"),
                    QStringLiteral("0:v"), QStringLiteral("-c"), QStringLiteral("copy"), QStringLiteral("-f"),
                    QStringLiteral("image2pipe"), QStringLiteral("-")})
        .output;
}

inline QByteArray contentOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

inline bool write(const QString& path, const QByteArray& content) {
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

/// A picture of noise, which does not compress well.
inline QImage noise(int side) {
    QImage image(side, side, QImage::Format_RGB32);
    QRandomGenerator random(7);
    for (int y = 0; y < side; ++y)
        random.fillRange(reinterpret_cast<quint32*>(image.scanLine(y)), side);
    return image;
}

} // namespace Mpeg4Files
