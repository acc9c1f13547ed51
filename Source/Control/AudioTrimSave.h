// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Foundation/Dictionary.h"
#include "Source/Control/EditNote.h"

#include <functional>

class ConverterAudioControl;

/// Cuts a recording down to a range: into its own place, or into a new file. The result is made whole beside its place
/// and synced before it takes the name, so that a failure, a full disk or a kill leaves the recording as it was.
namespace AudioTrimSave {

/// Shortest range that can be saved, in seconds: the conversion takes a shorter one for "to the end".
inline constexpr double kShortestRange = 0.1;

struct Task {
    QString source;       ///< the recording
    QString exportPath;   ///< the file to be written; see exportPath()
    float from = 0;       ///< seconds of the source
    float to = 0;         ///< seconds of the source, more than from
    Dictionary entry;     ///< the tags that the result gets
    QString artworkPath;  ///< picture for the cover; empty: the cover of the source, or the default one
    bool replace = false; ///< whether a file at exportPath is replaced; otherwise it is kept and nothing is written
};

struct Result {
    bool done = false;
    QString problem;              ///< one sentence why nothing was saved
    std::optional<EditNote> note; ///< end() it when the library has the new length; set when something was saved
};

/// The path of a result: @p path with its ending replaced by "m4a".
[[nodiscard]] QString exportPath(const QString& path);

/// Why the recording cannot be saved as things stand, in one sentence; empty when nothing speaks against it. Quick.
[[nodiscard]] QString refusal(const QString& source, double from, double to);

/// Does it. On a worker, one at a time in a process: blocks for as long as the conversion takes. @p progress is told
/// the share done on that thread and may answer false to stop; nothing is saved then.
[[nodiscard]] Result run(ConverterAudioControl& converter, const Task& task,
                         const std::function<bool(double)>& progress);

} // namespace AudioTrimSave
