// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// The switch to and from capturing what the computer plays. Main thread.
namespace CaptureComputerAudio {

/// Tells the capture driver to take what the default output plays. Nothing happens when there is no driver.
void startCaptureComputerAudio();
/// Tells it to take nothing.
void stopCaptureComputerAudio();
/// Whether the default output hangs on USB.
[[nodiscard]] bool captureComputerAudioIsUSBDevice();

} // namespace CaptureComputerAudio
