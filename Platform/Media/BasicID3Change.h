// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace Platform {

/// Text tags and artwork of MPEG-4 audio files. Everything else stays as it is: the audio, the other artwork, tags of
/// other kinds. The file is whole at every moment of a save; after a crash it has the old tags or the new ones.
class BasicID3Change {
public:
    /// Writes the five text tags in place. Null and empty texts and a year of 0 mean that the tag has no value. Blocks;
    /// any thread. @return false when the file is no sound MPEG-4 file or cannot be written; it is then as it was.
    [[nodiscard]] static bool setMpeg4ID3Information(const QString& path, const QString& name, const QString& artist,
                                                     const QString& album, int year, const QString& genre);

    struct Tags {
        QString title, artist, album, genre;
        int year = 0;
        QByteArray artwork; ///< the image as it stands in the file; empty when there is none
    };
    /// What the file says of itself; nothing when it is no readable MPEG-4 file: @p why then tells a person.
    [[nodiscard]] static std::optional<Tags> read(const QString& path, QString* why = nullptr);
    struct Texts {
        std::optional<QString> title{}, artist{}, album{}, genre{};
        std::optional<int> year{};
    };
    /// setMpeg4ID3Information() for those texts that are given, the others stay. @return what went wrong, for a person;
    /// empty when nothing did.
    [[nodiscard]] static QString writeTexts(const QString& path, const Texts& texts);

    /// Writes a copy of @p source with @p image, a JPEG or PNG file, as its only artwork. The destination appears whole
    /// or not at all; the source itself as destination is changed in place, as texts are. @return what went wrong, for
    /// a person; empty when nothing did.
    [[nodiscard]] static QString copyWithArtwork(const QString& source, const QString& image,
                                                 const QString& destination);
};

} // namespace Platform
