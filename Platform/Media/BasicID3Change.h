// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Foundation/Result.h"

#include <QByteArray>
#include <QString>

#include <optional>

namespace Platform {

/// Text tags and artwork of MPEG-4 audio files. Everything else in the file is preserved: the audio, other artwork,
/// other tags. The file is complete at every moment of a save; after a crash it has the old tags or the new ones.
class BasicID3Change {
public:
    /// Writes the five text tags in place. Null and empty texts and a year of 0 remove the tag's value. Blocks; any
    /// thread. @return false when the file is not an intact MPEG-4 audio file or cannot be written; it is then
    /// unchanged.
    [[nodiscard]] static bool setMpeg4ID3Information(const QString& path, const QString& name, const QString& artist,
                                                     const QString& album, int year, const QString& genre);

    struct Tags {
        QString title, artist, album, genre;
        int year = 0;
        QByteArray artwork; ///< the image bytes as stored in the file; empty when there is none
    };
    /// Reads the tags; an error when the file is not a readable MPEG-4 file.
    static Result<Tags> read(const QString& path);
    struct Texts {
        std::optional<QString> title{}, artist{}, album{}, genre{};
        std::optional<int> year{};
    };
    /// Like setMpeg4ID3Information(), but changes only the texts that are given.
    static Result<> writeTexts(const QString& path, const Texts& texts);

    /// Writes a copy of @p source with @p image, a JPEG or PNG file, as its only artwork. The destination appears
    /// complete or not at all. When source and destination are the same file, it is changed in place, like texts.
    static Result<> copyWithArtwork(const QString& source, const QString& image, const QString& destination);
};

} // namespace Platform
