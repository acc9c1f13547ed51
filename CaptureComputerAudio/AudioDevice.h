// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "CaptureComputerAudio/IOService.h"
#include "Platform/Audio/AudioTypes.h"

#include <QString>

#include <cstdint>
#include <optional>
#include <vector>

/// One audio device and its registry path. Main thread.
class AudioDevice {
public:
    explicit AudioDevice(AudioObjectID deviceID) : deviceID_(deviceID) {}

    [[nodiscard]] AudioObjectID audioDeviceID() const { return AudioObjectID(deviceID_); }
    /// The system's default output; nothing when there is no output.
    [[nodiscard]] static std::optional<AudioDevice> defaultAudioOutputDevice();
    /// One device for each in the system, each with the number 0: only the length of the list is used. Kept for callers
    /// that count devices; the program does not use it.
    [[nodiscard]] static std::vector<AudioDevice> audioDevices();

    /// Null when the device is not present.
    [[nodiscard]] QString uniqueID() const;
    /// The registry path of the device's engine: the parts of the unique ID narrow the candidates one after the other
    /// until one is left; of several the last is taken. Null when there is none.
    [[nodiscard]] QString path() const;
    /// The services whose path contains the key, in order; all of them when none does.
    [[nodiscard]] static std::vector<IOService> findDeviceByKey(const QString& key,
                                                                const std::vector<IOService>& services);
    /// Whether the last component of a registry path names this device.
    [[nodiscard]] bool sameDeviceWithPath(const QString& path) const;

private:
    std::uint64_t deviceID_;
};
