// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "CaptureComputerAudio/AudioDevice.h"

#include "Platform/Audio/AudioHardware.h"
#include "Platform/Foundation/Services.h"

#include <QStringList>

using namespace Qt::StringLiterals;

namespace {

Platform::AudioHardware* hardware() {
    return Platform::services().audioHardware;
}

/// Both separators are needed: a path uses "@" where a unique ID uses ":".
QStringList partsOf(QString text) {
    return text.replace(u'@', u':').split(u':');
}

} // namespace

std::optional<AudioDevice> AudioDevice::defaultAudioOutputDevice() {
    AudioObjectID device = 0;
    if (!hardware() || hardware()->getDefaultOutputDevice(device) != noErr)
        return {};
    return AudioDevice(device);
}

std::vector<AudioDevice> AudioDevice::audioDevices() {
    return hardware() ? std::vector(hardware()->devices().size(), AudioDevice(0)) : std::vector<AudioDevice>();
}

QString AudioDevice::uniqueID() const {
    QString uid;
    if (!hardware() || hardware()->getDeviceUID(audioDeviceID(), uid) != noErr)
        return {};
    return uid;
}

QString AudioDevice::path() const {
    auto candidates = IOService::getServicesByClassName(u"IOAudioEngine"_s);
    for (const auto& part : uniqueID().split(u':')) {
        candidates = findDeviceByKey(part, candidates);
        if (candidates.size() == 1)
            break;
    }
    return candidates.empty() ? QString() : candidates.back().path();
}

std::vector<IOService> AudioDevice::findDeviceByKey(const QString& key, const std::vector<IOService>& services) {
    std::vector<IOService> found;
    for (const auto& service : services)
        if (service.path().contains(key))
            found.push_back(service);
    return found.empty() ? services : found;
}

bool AudioDevice::sameDeviceWithPath(const QString& path) const {
    auto named = partsOf(path.section(u'/', -1));
    const auto own = partsOf(uniqueID());
    if (named.size() + 1 == own.size())
        named.append(own.constLast());
    return named == own;
}
