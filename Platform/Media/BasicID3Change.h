// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <optional>

#include <QByteArray>

namespace Platform {

/// Text tags of MPEG-4 audio files, written in place: the audio and the artwork are not touched.
class BasicID3Change {
public:
    /// Null texts and a year of 0 mean that the tag has no value. Blocks; any thread, one file by one thread at a time.
    [[nodiscard]] static bool setMpeg4ID3Information(const QString& path, const QString& name, const QString& artist,
                                                     const QString& album, int year, const QString& genre);

    struct Tags {
        QString title, artist, album, genre;
        int year = 0;
        QByteArray artwork; ///< the image as it stands in the file; empty when there is none
    };
    /// What the file says of itself; nothing when it is no readable MPEG-4 file.
    [[nodiscard]] static std::optional<Tags> read(const QString& path);
};

} // namespace Platform
