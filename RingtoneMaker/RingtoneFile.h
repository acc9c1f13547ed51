// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Foundation/Dictionary.h"

#include <QString>

#include <functional>

class ConverterAudioControl;

/// Writes ringtones and describes them for the library. The window's button and the command line both use it.
namespace RingtoneFile {

/// Fade times of a ringtone unless the user chooses others, in seconds.
inline constexpr float kFadeSeconds = 5;

struct Task {
    QString source;
    QString temporaryFolder; ///< exists; the file grows there
    QString target;          ///< a file that stands there already is replaced
    float from = 0;          ///< seconds of the source
    float to = 0;
    float fadeIn = kFadeSeconds; ///< a fade shorter than 0.99 s is off
    float fadeOut = kFadeSeconds;
};

struct Result {
    QString path;    ///< of the finished ringtone; empty when there is none
    QString problem; ///< why there is none, one line for a person; empty when the caller stopped it
    QString damage;  ///< what could not be read of the source and is silent in the ringtone
};

/// Writes the ringtone to the temporary folder and moves it to its target when it is whole. Nothing is left behind when
/// it fails; the source is only read. A file that appears at the target meanwhile is kept: the ringtone takes the next
/// free name. @p progress is told a share from 0 to 1 and may answer false to stop. Blocks; any thread.
[[nodiscard]] Result write(ConverterAudioControl& converter, const Task& task,
                           const std::function<bool(double)>& progress);

/// The tags of the ringtone at @p path, made from those of its recording: without its identity, with its own length,
/// as a new file, and named like the file when the recording's title begins with "Track".
[[nodiscard]] Dictionary tags(const Dictionary& recording, const QString& path, float seconds);

} // namespace RingtoneFile
