// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>
#include <QUrl>

#include <future>

/// What a media player named for one part of a recording. Empty texts keep the usual tags.
struct PartTitle {
    /// The bytes of a picture, which a worker reads: players may delete it when they go on to the next track. Invalid
    /// without one; empty when it could not be read.
    using Cover = std::shared_future<QByteArray>;

    QString title;
    QString artist;
    QString album;
    QUrl coverPlace; ///< where the player said that the cover is
    Cover cover{};

    [[nodiscard]] bool isEmpty() const {
        return title.isEmpty() && artist.isEmpty() && album.isEmpty() && !cover.valid();
    }
};
