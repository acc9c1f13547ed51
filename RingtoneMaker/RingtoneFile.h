// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Foundation/Dictionary.h"

#include <QString>

#include <functional>

class ConverterAudioControl;

/// Writes ringtones and describes them for the library. The window's button and the command line both use it.
namespace RingtoneFile {

/// Default fade times of a ringtone, in seconds.
inline constexpr float kFadeSeconds = 5;

struct Task {
    QString source;
    QString temporaryFolder; ///< must exist; the file is written there first
    QString target;          ///< an existing file at this path is replaced
    float from = 0;          ///< position in the source, in seconds
    float to = 0;
    float fadeIn = kFadeSeconds; ///< a fade shorter than 0.99 s is off
    float fadeOut = kFadeSeconds;
};

struct Result {
    QString path;    ///< of the finished ringtone; empty when there is none
    QString problem; ///< why there is none, one line for the user; empty when the caller stopped it
    QString damage;  ///< the first part of the source that could not be read; it is silent in the ringtone
};

/// Writes the ringtone to the temporary folder and moves it to its target when it is complete. On failure no file is
/// left; the source is only read. A file that appears at the target meanwhile is kept: the ringtone takes the next free
/// name. @p progress receives a value from 0 to 1 and returns false to stop. Blocks; any thread.
[[nodiscard]] Result write(ConverterAudioControl& converter, const Task& task,
                           const std::function<bool(double)>& progress);

/// The tags of the ringtone at @p path, made from those of its recording: without its identity, with its own length,
/// marked as new, and named after the file when the recording's title begins with "Track".
[[nodiscard]] Dictionary tags(const Dictionary& recording, const QString& path, float seconds);

} // namespace RingtoneFile
