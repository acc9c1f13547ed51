// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/WndController/ComputerAudioDevice.h"

#include "CaptureComputerAudio/KextInstallControl.h"

ComputerAudioDevice ComputerAudioDevice::system(std::function<QString()> whyNotNow) {
    return {KextInstallControl::isExist, KextInstallControl::install,   KextInstallControl::uninstall,
            KextInstallControl::isBusy,  KextInstallControl::lastError, std::move(whyNotNow)};
}
