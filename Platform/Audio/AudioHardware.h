// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Audio/AudioTypes.h"
#include "Platform/Audio/InputUnit.h"
#include "Platform/Audio/PlayingProgram.h"

#include <memory>
#include <vector>

#include <QObject>
#include <QString>

namespace Platform {

/// The audio devices of the machine as an object model: numbered devices with properties. Main thread. A thread of the
/// sound server keeps the data current, so no call waits long.
class AudioHardware : public QObject {
    Q_OBJECT
public:
    enum class Scope { Global, Input, Output };

    ~AudioHardware() override = default;

    /// All devices in the system's order (the order of their first appearance).
    [[nodiscard]] virtual std::vector<AudioObjectID> devices() = 0;
    virtual OSStatus getDeviceName(AudioObjectID device, QString& name) = 0;
    /// "<node name>:<8 hex digits>"
    virtual OSStatus getDeviceUID(AudioObjectID device, QString& uid) = 0;
    /// Byte size of the device's list of streams on one side: 4 for each capture port that is no monitor (input) or
    /// each playback port (output). On failure @p size stays as it was.
    virtual OSStatus getStreamsDataSize(AudioObjectID device, Scope scope, std::uint32_t& size) = 0;
    /// Input volume of one channel (elements count from 1) on a linear scale, 1 is unchanged.
    virtual OSStatus setVolumeScalar(AudioObjectID device, std::uint32_t element, float volume) = 0;
    virtual OSStatus getVolumeScalar(AudioObjectID device, std::uint32_t element, float& volume) = 0;
    virtual OSStatus setMute(AudioObjectID device, std::uint32_t element, bool mute) = 0;
    virtual OSStatus getMute(AudioObjectID device, std::uint32_t element, bool& mute) = 0;
    virtual OSStatus getDefaultOutputDevice(AudioObjectID& device) = 0;
    /// Rate in Hz and channels of the input side.
    virtual OSStatus getInputFormat(AudioObjectID device, double& sampleRate, std::uint32_t& channels) = 0;

    /// Finds and opens the hardware output unit. Null when there is none (@p found is false) or when it cannot be
    /// opened.
    [[nodiscard]] virtual std::unique_ptr<InputUnit> openOutputUnit(bool& found) = 0;

    /// The programs that have a stream for playing, sorted by name. The server is watched from the first call on, which
    /// may return an empty list: playingProgramsChanged() follows.
    [[nodiscard]] virtual std::vector<PlayingProgram> playingPrograms() { return {}; }

    /// Whether the sound server is the private one that this program starts on a machine without one: its input device
    /// is a test tone.
    [[nodiscard]] virtual bool isTestTone() const { return false; }
    /// Whether a sound server answers; lastError() says why not.
    [[nodiscard]] virtual bool connected() const = 0;
    [[nodiscard]] virtual QString lastError() const = 0;

Q_SIGNALS:
    /// A device came or went. Delivered on the main thread.
    void devicesChanged();
    void defaultOutputDeviceChanged();
    void connectedChanged(bool connected);
    /// Only after playingPrograms() was called once.
    void playingProgramsChanged();
};

/// Makes the Linux implementation. It connects at once and keeps trying while there is no server. Main thread. @p
/// testTone says that the server is a private session of this process.
[[nodiscard]] std::unique_ptr<AudioHardware> createAudioHardware(bool testTone = false);

} // namespace Platform
