// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Audio/AudioTypes.h"

#include <QString>

#include <vector>

namespace CommandLine {

/// The input device that carries what the computer plays.
inline const QString computerAudioDevice = QStringLiteral("Korvane System Audio");

/// What is told about a device that can be recorded from.
struct InputDevice {
    AudioObjectID id = 0;
    QString name; ///< null when the device does not tell
    QString uid;
    std::uint32_t channels = 0; ///< 0 when unknown
    double sampleRate = 0;      ///< Hz, 0 when unknown
    [[nodiscard]] bool isComputerAudio() const { return name == computerAudioDevice; }
};

/// All input devices, in the system's order.
[[nodiscard]] std::vector<InputDevice> inputDevices();

/// Finds a device by its name, its UID or its number. @return false, and in @p why the names there are, for none.
[[nodiscard]] bool findInputDevice(const QString& wanted, InputDevice& device, QString& why);

} // namespace CommandLine
