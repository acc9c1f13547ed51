// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Audio/ProgramChoice.h"

#include <QString>

/// Controls whether the capture driver carries the computer's audio. Main thread.
namespace CaptureComputerAudio {

/// The name of the device that carries the computer's audio.
inline const QString kDeviceName = QStringLiteral("Korvane System Audio");
/// The registry class of the capture driver's engine.
inline const QString kEngineClass = QStringLiteral("com_Korvane_driver_CaptureEngine");
/// The engine's property that selects the output to capture, by its registry path. The key itself as value selects no
/// output.
inline const QString kCaptureDriverPathKey = QStringLiteral("kCaptureDriverPathKey");
/// The engine's property that chooses programs: Platform::ProgramChoice::encoded().
inline const QString kCaptureDriverProgramsKey = QStringLiteral("kCaptureDriverProgramsKey");

/// Makes the capture driver capture the default output. Does nothing without a driver. The recorder calls it again
/// whenever the default output changes.
void startCaptureComputerAudio();
/// Makes the driver capture nothing: the device remains and is silent.
void stopCaptureComputerAudio();
/// The engine's property with the choice that it follows now; empty for everything.
inline const QString kCaptureDriverProgramsAppliedKey = QStringLiteral("kCaptureDriverProgramsAppliedKey");

enum class Choosing {
    Unchanged,  ///< the driver follows this choice already
    Changed,    ///< it follows it from now on
    NotPossible ///< no driver, one that is older than this program and carries everything, or no answer
};
/// Makes the driver carry only the streams of the chosen programs, on whatever output they play, or everything again.
/// Waits at most @p patienceMs until the driver carries nothing else; with 0 it does not wait.
[[nodiscard]] Choosing choosePrograms(const Platform::ProgramChoice& choice, int patienceMs = 2000);
/// Whether the default output is a USB device.
[[nodiscard]] bool captureComputerAudioIsUSBDevice();

} // namespace CaptureComputerAudio
