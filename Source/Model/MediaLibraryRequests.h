// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>

#include <QByteArray>
#include <QStringList>

/// Changes of the library that another process asks of the running window, so that its views follow at once. A request
/// and its answer are single lines; they go over Platform::RunningProgram.
namespace MediaLibraryRequests {

/// What became of a removal. Nothing is removed when a key is unknown.
struct Removal {
    QStringList removed;
    QStringList unknown;
    bool stored = true; ///< false: it is done in memory, but the disk refused it
};

/// Removes the entries with these keys, and their files, from the library of this process.
[[nodiscard]] Removal remove(const QStringList& keys);

[[nodiscard]] QByteArray removeRequest(const QStringList& keys);
/// The running window's answer to a removeRequest(); nothing when it is none.
[[nodiscard]] std::optional<Removal> removalOf(const QByteArray& answer);

/// Answers a request on the main thread of the window; nothing when it does not concern the library.
[[nodiscard]] std::optional<QByteArray> answer(const QByteArray& request);

} // namespace MediaLibraryRequests
