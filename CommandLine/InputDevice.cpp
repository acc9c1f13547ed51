// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "CommandLine/InputDevice.h"

#include "Platform/Audio/AudioHardware.h"
#include "Platform/Foundation/Services.h"
#include "Platform/Foundation/Translations.h"
#include "Source/BuiltInAudioRecord/BuildInAudioRecord.h"

#include <QCoreApplication>
#include <QStringList>

namespace CommandLine {

std::vector<InputDevice> inputDevices() {
    std::vector<InputDevice> devices;
    auto& hardware = *Platform::services().audioHardware;
    for (const QVariant& entry : BuildInAudioRecord::getAudioInPutDeviceIDs()) {
        const Dictionary descriptor = entry.toMap();
        InputDevice device;
        device.id = descriptor.value(BuildInAudioRecord::DeviceIDKey).toUInt();
        device.name = descriptor.value(BuildInAudioRecord::DeviceNameKey).toString();
        (void)hardware.getDeviceUID(device.id, device.uid);
        (void)hardware.getInputFormat(device.id, device.sampleRate, device.channels);
        devices.push_back(device);
    }
    return devices;
}

bool findInputDevice(const QString& wanted, InputDevice& device, QString& why) {
    const auto devices = inputDevices();
    for (const auto matches :
         {+[](const InputDevice&one, const QString&name) { return one.name == name; },
          +[](const InputDevice&one, const QString&name) { return one.uid == name; },
          +[](const InputDevice&one, const QString&name) { return QString::number(one.id) == name; }})
        for (const InputDevice& one : devices)
            if (matches(one, wanted)) {
                device = one;
                return true;
            }
    QStringList names;
    for (const InputDevice& one : devices)
        names << (one.name.isEmpty() ? one.uid : one.name);
    why = names.isEmpty()
              ? QCoreApplication::translate("CommandLine", "there is no input device \"%1\": there is none at all")
                    .arg(wanted)
              : QCoreApplication::translate("CommandLine", "there is no input device \"%1\": there are %2")
                    .arg(wanted, Platform::Translations::list(names));
    return false;
}

} // namespace CommandLine
