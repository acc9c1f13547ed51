// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/fakes/FakeAudioHardware.h"

#include "Platform/Foundation/Clock.h"

#include <algorithm>
#include <cstring>
#include <utility>

OSStatus FakeInputUnit::getDeviceFormat(AudioStreamBasicDescription& format) {
    format = planarFloatFormat(state_->sampleRate, state_->channels);
    return step(Step::DeviceFormat);
}

OSStatus FakeInputUnit::feed(const std::vector<std::vector<float>>& channels, std::uint64_t hostTime) {
    cycle_ = &channels;
    const auto frames = std::uint32_t(channels.empty() ? 0 : channels.front().size());
    const AudioTimeStamp stamp{hostTime, sampleTime_, std::exchange(state_->startsAnew, false)};
    std::uint32_t flags = 0;
    const Platform::HostTimeScope scope(hostTime);
    const OSStatus status = callback_(refCon_, &flags, &stamp, 1, frames, nullptr);
    sampleTime_ += frames;
    cycle_ = nullptr;
    return status;
}

OSStatus FakeInputUnit::feedValue(float value, std::uint32_t frames, std::uint64_t hostTime) {
    const std::vector<std::vector<float>> channels(std::max(1U, state_->clientFormat.mChannelsPerFrame),
                                                   std::vector<float>(frames, value));
    return feed(channels, hostTime);
}

OSStatus FakeInputUnit::render(std::uint32_t*, const AudioTimeStamp*, std::uint32_t, std::uint32_t frames,
                               AudioBufferList* data) {
    // Does not call step(): a cycle must not allocate, and a test counts allocations.
    if (state_->fails.contains(Step::Render))
        return -1;
    for (std::uint32_t i = 0; i < data->mNumberBuffers; ++i) {
        const std::uint32_t size = frames * std::uint32_t(sizeof(float));
        data->mBuffers[i].mDataByteSize = size;
        if (i < cycle_->size())
            std::memcpy(data->mBuffers[i].mData, (*cycle_)[i].data(), size);
        else
            std::memset(data->mBuffers[i].mData, 0, size);
    }
    return noErr;
}

std::vector<AudioObjectID> FakeAudioHardware::devices() {
    std::vector<AudioObjectID> ids;
    for (const auto& device : list)
        ids.push_back(device.id);
    return ids;
}

OSStatus FakeAudioHardware::getDeviceName(AudioObjectID id, QString& name) {
    const Device* device = find(id);
    if (!device || device->nameFails)
        return -1;
    name = device->name;
    return noErr;
}

OSStatus FakeAudioHardware::getDeviceUID(AudioObjectID id, QString& uid) {
    const Device* device = find(id);
    if (!device)
        return -1;
    uid = device->uid;
    return noErr;
}

OSStatus FakeAudioHardware::getStreamsDataSize(AudioObjectID id, Scope scope, std::uint32_t& size) {
    const Device* device = find(id);
    if (!device || device->streamsFail)
        return -1;
    size = 4 * (scope == Scope::Output ? device->outputChannels : device->inputChannels);
    return noErr;
}

FakeAudioHardware::Element* FakeAudioHardware::element(AudioObjectID id, std::uint32_t number) {
    Device* device = find(id);
    if (!device)
        return nullptr;
    const auto found = device->elements.find(number);
    return found == device->elements.end() ? nullptr : &found->second;
}

OSStatus FakeAudioHardware::setVolumeScalar(AudioObjectID id, std::uint32_t number, float volume) {
    Element* found = element(id, number);
    if (!found || found->volumeFails)
        return -1;
    found->volume = volume;
    return noErr;
}

OSStatus FakeAudioHardware::getVolumeScalar(AudioObjectID id, std::uint32_t number, float& volume) {
    const Element* found = element(id, number);
    if (!found)
        return -1;
    volume = found->volume;
    return noErr;
}

OSStatus FakeAudioHardware::setMute(AudioObjectID id, std::uint32_t number, bool mute) {
    Element* found = element(id, number);
    if (!found)
        return -1;
    ++found->muteSets;
    if (found->muteFails)
        return -1;
    found->mute = mute;
    return noErr;
}

OSStatus FakeAudioHardware::getMute(AudioObjectID id, std::uint32_t number, bool& mute) {
    const Element* found = element(id, number);
    if (!found)
        return -1;
    mute = found->mute;
    return noErr;
}

OSStatus FakeAudioHardware::getDefaultOutputDevice(AudioObjectID& device) {
    if (defaultOutput == 0)
        return -1;
    device = defaultOutput;
    return noErr;
}

OSStatus FakeAudioHardware::getInputFormat(AudioObjectID id, double& sampleRate, std::uint32_t& channels) {
    const Device* device = find(id);
    if (!device)
        return -1;
    sampleRate = device->sampleRate;
    channels = device->inputChannels;
    return noErr;
}

std::unique_ptr<Platform::InputUnit> FakeAudioHardware::openOutputUnit(bool& found) {
    found = unitFound;
    if (onOpen)
        onOpen();
    if (!unitFound || !unitOpens)
        return nullptr;
    opened.push_back(nextUnit);
    auto next = std::make_shared<FakeInputUnit::State>();
    next->sampleRate = nextUnit->sampleRate;
    next->channels = nextUnit->channels;
    next->bufferFrames = nextUnit->bufferFrames;
    nextUnit = std::move(next);
    return std::make_unique<FakeInputUnit>(opened.back());
}
