// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Foundation/Dictionary.h"

#include <optional>

#include <QByteArray>
#include <QStringList>

/// Library changes that another process requests from the running window, so that its views are updated at once. A
/// request and its answer are single lines, sent through Platform::RunningProgram. Before each request the window
/// adopts entries that other processes stored directly, so that a request can refer to them.
namespace MediaLibraryRequests {

/// The result of a removal. Nothing is removed when a key is unknown.
struct Removal {
    QStringList removed;
    QStringList unknown;
    bool stored = true; ///< false: removed in memory, but saving failed
};

/// Removes the entries with these keys, and their files, from the library of this process.
[[nodiscard]] Removal remove(const QStringList& keys);

/// Sets these values, by the keys of AudioRecordEntry, in the entries of the file at @p path after they were written
/// into the file. Paths to the same file are equal. The file may no longer be at the path: AudioRecordEntry::SavePath
/// then holds its new path. @return whether the change, if there was one, is stored
[[nodiscard]] bool retag(const QString& path, const Dictionary& values);

/// Adds a ringtone to the library of this process, as described by MediaLibrary::entryForFile(). @return whether it is
/// stored
[[nodiscard]] bool addRingtone(const QString& path, const Dictionary& tags);

[[nodiscard]] QByteArray removeRequest(const QStringList& keys);
/// Parses the window's answer to a removeRequest(); nothing when it is malformed.
[[nodiscard]] std::optional<Removal> removalOf(const QByteArray& answer);

[[nodiscard]] QByteArray retagRequest(const QString& path, const Dictionary& values);
/// Parses the window's answer to a retagRequest(), see retag(); nothing when it is malformed.
[[nodiscard]] std::optional<bool> retaggingOf(const QByteArray& answer);

[[nodiscard]] QByteArray addRingtoneRequest(const QString& path, const Dictionary& tags);
/// Parses the window's answer to an addRingtoneRequest(), see addRingtone(); nothing when it is malformed.
[[nodiscard]] std::optional<bool> addingOf(const QByteArray& answer);

/// Answers a request on the main thread of the window; nothing when it is not about the library.
[[nodiscard]] std::optional<QByteArray> answer(const QByteArray& request);

} // namespace MediaLibraryRequests
