// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Foundation/Dictionary.h"
#include "Platform/Foundation/Result.h"

#include <cstdint>
#include <functional>
#include <vector>

#include <QList>
#include <QString>
#include <QStringList>

/// Divides a recording into several, and joins recordings to one. The encoded audio is copied, so no sound is encoded
/// twice: laid end to end, the parts are the recording, sample by sample. The sources stay as they are. On a worker,
/// one at a time per process; blocks until the files are on the disk. @p progress receives a value from 0 to 1 and
/// returns false to stop; then nothing is written.
namespace RecordingParts {

struct Part {
    QString path;
    double seconds = 0;
    Dictionary tags; ///< of the file, by the keys of AudioRecordEntry
};

/// The paths of @p count parts in @p folder: the recording's name and the number of each part.
[[nodiscard]] QStringList partPaths(const QString& source, const QString& folder, std::size_t count);
/// The same, with a number added to the recording's name when one of those paths is taken: "Rain (2) 1.m4a".
[[nodiscard]] QStringList freePartPaths(const QString& source, const QString& folder, std::size_t count);

/// Writes one file for each path: from the beginning to the first of @p cuts, from there to the next, and so on. The
/// cuts are frames in ascending order, one fewer than paths. The tags and the cover are those of the source. A part's
/// title is the one of @p titles; where that is empty or missing, the number of the part is added to the source's
/// title. No existing file is overwritten, and either all parts are written or none.
Platform::Result<QList<Part>> split(const QString& source, const std::vector<std::int64_t>& cuts,
                                    const QStringList& paths, const std::function<bool(double)>& progress = {},
                                    const QStringList& titles = {});

/// The entry of the library for a part that was just written.
[[nodiscard]] Dictionary entryOf(const Part& part);

/// A path beside the first source for join() that is not taken.
[[nodiscard]] QString joinedPath(const QString& firstSource);

/// Writes the sources in their order as one recording with the tags and the cover of the first. Parts of one recording
/// that follow each other are copied; where that is not possible, everything is decoded and encoded again, and @p
/// encoded, when given, is set. An existing file is kept.
Platform::Result<Part> join(const QStringList& sources, const QString& path,
                            const std::function<bool(double)>& progress = {}, bool* encoded = nullptr);

} // namespace RecordingParts
