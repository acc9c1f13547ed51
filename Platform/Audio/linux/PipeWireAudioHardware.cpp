// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Audio/linux/PipeWireAudioHardware.h"

#include "Platform/Audio/linux/PipeWireInputUnit.h"
#include "Platform/Foundation/MainQueue.h"

namespace Platform {

namespace {
/// The first device list takes about 10 ms. When the server takes longer than this, the answer is an empty list.
constexpr int settleMs = 1000;
} // namespace

std::unique_ptr<AudioHardware> createAudioHardware(bool testTone) {
    return std::make_unique<PipeWireAudioHardware>(testTone);
}

PipeWireAudioHardware::PipeWireAudioHardware(bool testTone) : registry_(DeviceRegistry::shared()), testTone_(testTone) {
    registry_->add(*this);
    reportedConnected_ = connected();
}

PipeWireAudioHardware::~PipeWireAudioHardware() {
    registry_->remove(*this);
}

void PipeWireAudioHardware::settle() const {
    if (patient_ && registry_->connection()->connected() && !registry_->waitUntilKnown(settleMs))
        patient_ = false;
}

std::vector<AudioObjectID> PipeWireAudioHardware::devices() {
    settle();
    std::vector<AudioObjectID> ids;
    for (const auto& each : registry_->devices())
        ids.push_back(each.id);
    return ids;
}

OSStatus PipeWireAudioHardware::find(AudioObjectID device, AudioDeviceInfo& info) const {
    settle();
    auto found = registry_->device(device);
    if (!found)
        return kAudioHardwareBadDeviceError;
    info = std::move(*found);
    return noErr;
}

OSStatus PipeWireAudioHardware::findInputElement(AudioObjectID device, std::uint32_t element,
                                                 AudioDeviceInfo& info) const {
    if (const auto status = find(device, info))
        return status;
    const bool has = info.captureStreams > 0 && element >= 1 && element <= info.volumes.size();
    return has ? noErr : kAudioHardwareUnknownPropertyError;
}

OSStatus PipeWireAudioHardware::getDeviceName(AudioObjectID device, QString& name) {
    AudioDeviceInfo info;
    if (const auto status = find(device, info))
        return status;
    name = QString::fromStdString(info.description.empty() ? info.nodeName : info.description);
    return noErr;
}

OSStatus PipeWireAudioHardware::getDeviceUID(AudioObjectID device, QString& uid) {
    AudioDeviceInfo info;
    if (const auto status = find(device, info))
        return status;
    uid = info.uid();
    return noErr;
}

OSStatus PipeWireAudioHardware::getStreamsDataSize(AudioObjectID device, Scope scope, std::uint32_t& size) {
    AudioDeviceInfo info;
    if (const auto status = find(device, info))
        return status;
    std::uint32_t streams = 0;
    if (scope != Scope::Output)
        streams += info.captureStreams;
    if (scope != Scope::Input)
        streams += info.playbackStreams;
    size = streams * std::uint32_t(sizeof(std::uint32_t));
    return noErr;
}

OSStatus PipeWireAudioHardware::setVolumeScalar(AudioObjectID device, std::uint32_t element, float volume) {
    AudioDeviceInfo info;
    if (const auto status = findInputElement(device, element, info))
        return status;
    return registry_->setVolume(device, element, volume);
}

OSStatus PipeWireAudioHardware::getVolumeScalar(AudioObjectID device, std::uint32_t element, float& volume) {
    AudioDeviceInfo info;
    if (const auto status = findInputElement(device, element, info))
        return status;
    volume = info.volumes[element - 1];
    return noErr;
}

OSStatus PipeWireAudioHardware::setMute(AudioObjectID device, std::uint32_t element, bool mute) {
    AudioDeviceInfo info;
    if (const auto status = findInputElement(device, element, info))
        return status;
    return registry_->setMute(device, mute);
}

OSStatus PipeWireAudioHardware::getMute(AudioObjectID device, std::uint32_t element, bool& mute) {
    AudioDeviceInfo info;
    if (const auto status = findInputElement(device, element, info))
        return status;
    mute = info.muted;
    return noErr;
}

OSStatus PipeWireAudioHardware::getDefaultOutputDevice(AudioObjectID& device) {
    settle();
    const auto found = registry_->defaultOutput();
    if (found == 0)
        return connected() ? kAudioHardwareUnknownPropertyError : kAudioHardwareNotRunningError;
    device = found;
    return noErr;
}

OSStatus PipeWireAudioHardware::getInputFormat(AudioObjectID device, double& sampleRate, std::uint32_t& channels) {
    AudioDeviceInfo info;
    if (const auto status = find(device, info))
        return status;
    if (info.captureStreams == 0)
        return kAudioHardwareUnknownPropertyError;
    sampleRate = info.sampleRate;
    channels = info.channels;
    return noErr;
}

std::unique_ptr<InputUnit> PipeWireAudioHardware::openOutputUnit(bool& found) {
    found = true;
    settle();
    return std::make_unique<PipeWireInputUnit>(registry_);
}

std::vector<PlayingProgram> PipeWireAudioHardware::playingPrograms() {
    if (!programs_)
        programs_ = std::make_unique<ProgramList>([this] { postProgramsChanged(); });
    return programs_->programs();
}

bool PipeWireAudioHardware::connected() const {
    return registry_->connection()->connected();
}

QString PipeWireAudioHardware::lastError() const {
    return registry_->connection()->lastError();
}

void PipeWireAudioHardware::deviceAppeared(const AudioDeviceInfo&) {
    postDevicesChanged();
    postDefaultOutputChanged(); // the default may have been announced before its device existed
}

void PipeWireAudioHardware::deviceGone(AudioObjectID) {
    postDevicesChanged();
}

void PipeWireAudioHardware::serverGone() {
    postConnected();
    postDevicesChanged();
}

void PipeWireAudioHardware::devicesKnown() {
    patient_ = true;
    postConnected();
}

void PipeWireAudioHardware::defaultSinkChanged() {
    postDefaultOutputChanged();
}

void PipeWireAudioHardware::postDevicesChanged() {
    if (devicesPosted_.exchange(true))
        return;
    MainQueue::post(this, [this] {
        devicesPosted_ = false;
        Q_EMIT devicesChanged();
    });
}

void PipeWireAudioHardware::postDefaultOutputChanged() {
    if (defaultPosted_.exchange(true))
        return;
    MainQueue::post(this, [this] {
        defaultPosted_ = false;
        Q_EMIT defaultOutputDeviceChanged();
    });
}

void PipeWireAudioHardware::postProgramsChanged() {
    if (programsPosted_.exchange(true))
        return;
    MainQueue::post(this, [this] {
        programsPosted_ = false;
        Q_EMIT playingProgramsChanged();
    });
}

void PipeWireAudioHardware::postConnected() {
    MainQueue::post(this, [this] {
        if (const bool now = connected(); now != reportedConnected_) {
            reportedConnected_ = now;
            Q_EMIT connectedChanged(now);
        }
    });
}

} // namespace Platform
