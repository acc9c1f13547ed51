// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Audio/AudioTypes.h"
#include "Source/AudioDevice/IOService.h"

#include <QString>

#include <cstdint>
#include <optional>
#include <vector>

/// One audio device and its place in the registry. Main thread.
class AudioDevice {
public:
    explicit AudioDevice(AudioObjectID deviceID) : deviceID_(deviceID) {}

    [[nodiscard]] AudioObjectID audioDeviceID() const { return AudioObjectID(deviceID_); }
    /// What the system plays to; nothing when there is no output.
    [[nodiscard]] static std::optional<AudioDevice> defaultAudioOutputDevice();
    /// One device for each in the system, each without its number (0): the list is asked for its length only. Kept for
    /// those who count devices; nothing in the program uses it.
    [[nodiscard]] static std::vector<AudioDevice> audioDevices();

    /// Null when the device is gone.
    [[nodiscard]] QString uniqueID() const;
    /// The registry path of the device's engine: the candidates are narrowed by one part of the unique ID after the
    /// other until one is left; of several the last is taken. Null without any.
    [[nodiscard]] QString path() const;
    /// The services whose path contains the key, in their order; all of them when none does.
    [[nodiscard]] static std::vector<IOService> findDeviceByKey(const QString& key,
                                                                const std::vector<IOService>& services);
    /// Whether the last component of a registry path names this device.
    [[nodiscard]] bool sameDeviceWithPath(const QString& path) const;

private:
    std::uint64_t deviceID_;
};
