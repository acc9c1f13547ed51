// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// The switch to and from capturing what the computer plays. Main thread.
namespace CaptureComputerAudio {

/// The name of the device that carries what the computer plays.
inline const QString kDeviceName = QStringLiteral("Korvane System Audio");
/// The registry class of the capture driver's engine.
inline const QString kEngineClass = QStringLiteral("com_Korvane_driver_CaptureEngine");
/// The engine's property that names the output to take: its registry path. The key itself as value takes nothing.
inline const QString kCaptureDriverPathKey = QStringLiteral("kCaptureDriverPathKey");

/// Tells the capture driver to take what the default output plays. Nothing happens when there is no driver. Repeated
/// by those who record whenever the default output changes.
void startCaptureComputerAudio();
/// Tells it to take nothing: the device stays and is silent.
void stopCaptureComputerAudio();
/// Whether the default output hangs on USB.
[[nodiscard]] bool captureComputerAudioIsUSBDevice();

} // namespace CaptureComputerAudio
