// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Audio/AudioTypes.h"

#include <QString>

#include <vector>

namespace CommandLine {

/// The input device that carries the computer's audio.
inline const QString computerAudioDevice = QStringLiteral("Korvane System Audio");

/// The reported properties of a device that can be recorded from.
struct InputDevice {
    AudioObjectID id = 0;
    QString name; ///< null when the device does not have one
    QString uid;
    std::uint32_t channels = 0; ///< 0 when unknown
    double sampleRate = 0;      ///< Hz, 0 when unknown
    [[nodiscard]] bool isComputerAudio() const { return name == computerAudioDevice; }
};

/// All input devices, in the system's order.
[[nodiscard]] std::vector<InputDevice> inputDevices();

/// Finds a device by its name, its UID or its number. @return false when there is none, with the existing names in @p
/// why.
[[nodiscard]] bool findInputDevice(const QString& wanted, InputDevice& device, QString& why);

} // namespace CommandLine
