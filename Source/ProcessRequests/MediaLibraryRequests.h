// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Foundation/Dictionary.h"

#include <optional>

#include <QByteArray>
#include <QStringList>

/// Changes of the library that another process asks of the running window, so that its views follow at once. A request
/// and its answer are single lines; they go over Platform::RunningProgram. What others stored past the window is taken
/// up first: it can be asked for like all that the window shows.
namespace MediaLibraryRequests {

/// What became of a removal. Nothing is removed when a key is unknown.
struct Removal {
    QStringList removed;
    QStringList unknown;
    bool stored = true; ///< false: it is done in memory, but the disk refused it
};

/// Removes the entries with these keys, and their files, from the library of this process.
[[nodiscard]] Removal remove(const QStringList& keys);

/// Gives the entries of the file at @p path these values, by the keys of AudioRecordEntry, after they went into the
/// file. Paths that lead to the same file are the same. The file may be gone from the path: a new name is given with
/// AudioRecordEntry::SavePath. @return whether what changed, if anything did, is stored
[[nodiscard]] bool retag(const QString& path, const Dictionary& values);

/// Adds a ringtone to the library of this process, as MediaLibrary::entryForFile() describes it. @return whether it is
/// stored
[[nodiscard]] bool addRingtone(const QString& path, const Dictionary& tags);

[[nodiscard]] QByteArray removeRequest(const QStringList& keys);
/// The running window's answer to a removeRequest(); nothing when it is none.
[[nodiscard]] std::optional<Removal> removalOf(const QByteArray& answer);

[[nodiscard]] QByteArray retagRequest(const QString& path, const Dictionary& values);
/// The running window's answer to a retagRequest(), as retag() has it; nothing when it is none.
[[nodiscard]] std::optional<bool> retaggingOf(const QByteArray& answer);

[[nodiscard]] QByteArray addRingtoneRequest(const QString& path, const Dictionary& tags);
/// The running window's answer to an addRingtoneRequest(), as addRingtone() has it; nothing when it is none.
[[nodiscard]] std::optional<bool> addingOf(const QByteArray& answer);

/// Answers a request on the main thread of the window; nothing when it does not concern the library.
[[nodiscard]] std::optional<QByteArray> answer(const QByteArray& request);

} // namespace MediaLibraryRequests
