// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/BuiltInAudioRecord/BuildInAudioRecord.h"

#include "Platform/Audio/AudioHardware.h"
#include "Platform/Foundation/Services.h"

using Scope = Platform::AudioHardware::Scope;

QVariantList BuildInAudioRecord::getAudioInPutDeviceIDs() {
    QVariantList descriptors;
    for (const AudioObjectID device : Platform::services().audioHardware->devices()) {
        const QString name = getDeviceNameByDeviceID(device);
        if (isInputDeviceID(device))
            descriptors.append(Dictionary{{DeviceNameKey, name.isNull() ? QVariant() : QVariant(name)},
                                          {DeviceIDKey, qulonglong(device)}});
    }
    return descriptors;
}

QString BuildInAudioRecord::getDeviceNameByDeviceID(AudioObjectID device) {
    QString name;
    if (Platform::services().audioHardware->getDeviceName(device, name) != noErr)
        return {};
    return name.isNull() ? QString(QLatin1String("")) : name;
}

bool BuildInAudioRecord::isInputDeviceID(AudioObjectID device) {
    // Not 0: a device that cannot be queried is listed rather than hidden.
    std::uint32_t size = 256;
    (void)Platform::services().audioHardware->getStreamsDataSize(device, Scope::Input, size);
    return size != 0;
}

void BuildInAudioRecord::setMaxVolume(AudioObjectID device) {
    if (device == 0)
        return;
    auto& hardware = *Platform::services().audioHardware;
    for (const std::uint32_t element : {1U, 2U})
        if (hardware.setVolumeScalar(device, element, 1.0F) == noErr)
            (void)hardware.setMute(device, element, false);
}

bool BuildInAudioRecord::isMuted(AudioObjectID device) {
    if (device == 0)
        return false;
    auto& hardware = *Platform::services().audioHardware;
    for (const std::uint32_t element : {1U, 2U}) {
        bool mute = false;
        float volume = 1;
        if (hardware.getMute(device, element, mute) == noErr && mute)
            return true;
        if (hardware.getVolumeScalar(device, element, volume) == noErr && volume <= 0)
            return true;
    }
    return false;
}
