// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Foundation/Dictionary.h"

#include <QString>
#include <QStringList>

/// The two tracks that are kept beside a recording of both sources: what the input device and the computer gave, each
/// as long as the mix and aligned with it. The entry of the mix contains their paths; the tracks have no entries of
/// their own. Any thread.
namespace RecordingTracks {

struct Tracks {
    QString input;    ///< path; empty when there is none
    QString computer; ///< path; empty when there is none
    [[nodiscard]] bool isWhole() const { return !input.isEmpty() && !computer.isEmpty(); }
};

enum class Source { Input, Computer };

/// The path of a track beside its mix: "Track3 (input).m4a", "Track3 (computer).m4a". The words are part of the file
/// format and are not translated. With @p number above 1: "Track3 (input 2).m4a".
[[nodiscard]] QString pathBeside(const QString& mix, Source source, int number = 1);

/// Whether the entry is that of a mix with kept tracks; their files may be missing. Does not read the disk.
[[nodiscard]] bool isKeptFor(const Dictionary& entry);
/// The paths in the entry.
[[nodiscard]] Tracks stored(const Dictionary& entry);
/// The tracks of a mix. A file that is not at its stored path may be beside the mix: a rename that was interrupted
/// leaves it so. A file that is nowhere keeps its stored path. Reads the disk.
[[nodiscard]] Tracks found(const Dictionary& entry);
/// The tracks beside a file that has no entry; empty when not both are there. Reads the disk.
[[nodiscard]] Tracks besideFile(const QString& mix);
void insertInto(Dictionary& entry, const Tracks& tracks);

/// The absolute paths in the entries, the mixes' own included: files that belong to someone.
[[nodiscard]] QStringList pathsOf(const Dictionary& entry);

} // namespace RecordingTracks
