// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Foundation/Dictionary.h"

/// The dictionary that describes one audio file of the library, and its keys.
namespace AudioRecordEntry {
inline const QString NodeDataKey = QStringLiteral("MediaLibraryNodeDataKey"); ///< identity, created once, kept by edits
inline const QString SavePath = QStringLiteral("AudioSavePath");              ///< full path
inline const QString Title = QStringLiteral("ID3TitleKey");
inline const QString Artist = QStringLiteral("ID3ArtistKey");
inline const QString Album = QStringLiteral("ID3AlbumKey");
inline const QString Year = QStringLiteral("ID3YearKey");
inline const QString Genre = QStringLiteral("ID3GenreKey");
inline const QString Artwork = QStringLiteral("ID3ArtworkKey");                ///< image data; tag dictionaries only
inline const QString AddDate = QStringLiteral("AddAudioDate");                 ///< "%Y/%m/%d"
inline const QString Length = QStringLiteral("AddAudioLength");                ///< float seconds
inline const QString InputTrack = QStringLiteral("AudioInputTrackPath");       ///< see RecordingTracks
inline const QString ComputerTrack = QStringLiteral("AudioComputerTrackPath"); ///< see RecordingTracks
inline const QString IsNew = QStringLiteral("ISNewAudioFileKey");              ///< transient, never stored

/// The identity of an entry; invalid when it has none. Reads the map without copying it, because it is called for each
/// of ten thousand rows.
[[nodiscard]] inline QVariant keyOf(const QVariant& entry) {
    if (entry.typeId() != QMetaType::QVariantMap)
        return {};
    return static_cast<const QVariantMap*>(entry.constData())->value(NodeDataKey);
}
} // namespace AudioRecordEntry
