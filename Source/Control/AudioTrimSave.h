// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Foundation/Dictionary.h"
#include "Source/Control/EditNote.h"

#include <functional>

class ConverterAudioControl;

/// Trims a recording to a range, in place or into a new file. The result is written completely beside its target and
/// synced before it takes the name, so that a failure, a full disk or a kill leaves the recording unchanged.
namespace AudioTrimSave {

/// Shortest range that can be saved, in seconds: the conversion treats a shorter one as "to the end".
inline constexpr double kShortestRange = 0.1;

struct Task {
    QString source;       ///< the recording
    QString exportPath;   ///< the target file; see exportPath()
    float from = 0;       ///< position in the source, in seconds
    float to = 0;         ///< position in the source, in seconds; greater than from
    Dictionary entry;     ///< the tags of the result
    QString artworkPath;  ///< image file for the cover; empty: the cover of the source, or the default one
    bool replace = false; ///< true: replace a file at exportPath; false: keep it and write nothing
};

struct Result {
    bool done = false;
    QString problem;              ///< one sentence: why nothing was saved
    std::optional<EditNote> note; ///< call end() when the library has the new length; set when something was saved
};

/// The path of a result: @p path with its extension replaced by "m4a".
[[nodiscard]] QString exportPath(const QString& path);

/// Why the recording cannot be saved now, in one sentence; empty when it can. Quick.
[[nodiscard]] QString refusal(const QString& source, double from, double to);

/// Saves. On a worker, one at a time per process: blocks until the conversion is done. @p progress receives a value
/// from 0 to 1 on that thread and returns false to stop; then nothing is saved.
[[nodiscard]] Result run(ConverterAudioControl& converter, const Task& task,
                         const std::function<bool(double)>& progress);

/// The last step of run(), for other edits that make a new file: gives @p temporary the tags and the cover, and then
/// the name of the target. Afterwards the temporary file may be gone. The task's range is not used.
[[nodiscard]] Result deliver(const Task& task, const QString& temporary);

} // namespace AudioTrimSave
