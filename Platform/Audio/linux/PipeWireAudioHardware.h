// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Audio/AudioHardware.h"
#include "Platform/Audio/linux/DeviceRegistry.h"
#include "Platform/Audio/linux/ProgramList.h"

#include <atomic>

namespace Platform {

/// The device registry as an object model for the main thread.
class PipeWireAudioHardware final : public AudioHardware, private DeviceRegistry::Listener {
    Q_OBJECT
public:
    explicit PipeWireAudioHardware(bool testTone);
    ~PipeWireAudioHardware() override;

    std::vector<AudioObjectID> devices() override;
    OSStatus getDeviceName(AudioObjectID device, QString& name) override;
    OSStatus getDeviceUID(AudioObjectID device, QString& uid) override;
    OSStatus getStreamsDataSize(AudioObjectID device, Scope scope, std::uint32_t& size) override;
    OSStatus setVolumeScalar(AudioObjectID device, std::uint32_t element, float volume) override;
    OSStatus getVolumeScalar(AudioObjectID device, std::uint32_t element, float& volume) override;
    OSStatus setMute(AudioObjectID device, std::uint32_t element, bool mute) override;
    OSStatus getMute(AudioObjectID device, std::uint32_t element, bool& mute) override;
    OSStatus getDefaultOutputDevice(AudioObjectID& device) override;
    OSStatus getInputFormat(AudioObjectID device, double& sampleRate, std::uint32_t& channels) override;
    std::unique_ptr<InputUnit> openOutputUnit(bool& found) override;
    std::vector<PlayingProgram> playingPrograms() override;
    bool isTestTone() const override { return testTone_; }
    bool connected() const override;
    QString lastError() const override;

private:
    // On the server's loop thread.
    void deviceAppeared(const AudioDeviceInfo& device) override;
    void deviceGone(AudioObjectID device) override;
    void serverGone() override;
    void devicesKnown() override;
    void defaultSinkChanged() override;

    void postDevicesChanged();
    void postDefaultOutputChanged();
    void postConnected();
    void postProgramsChanged();
    /// Waits a moment for a server that is still describing its devices, once per connection: if each call waited, the
    /// window would stop responding.
    void settle() const;
    OSStatus find(AudioObjectID device, AudioDeviceInfo& info) const;
    OSStatus findInputElement(AudioObjectID device, std::uint32_t element, AudioDeviceInfo& info) const;

    std::shared_ptr<DeviceRegistry> registry_;
    std::atomic<bool> devicesPosted_{false};
    std::atomic<bool> defaultPosted_{false};
    std::atomic<bool> programsPosted_{false};
    bool reportedConnected_ = false; ///< main thread
    const bool testTone_;
    mutable std::atomic<bool> patient_{true}; ///< settle() still waits
    std::unique_ptr<ProgramList> programs_;   ///< exists when it was asked for; destroyed first
};

} // namespace Platform
