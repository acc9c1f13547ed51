// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Audio/linux/PipeWireIORegistry.h"

#include "Platform/Audio/linux/DeviceRegistry.h"
#include "Platform/Audio/linux/RegistryPath.h"

namespace Platform {

namespace {

/// How long to wait for a server that is still describing its devices.
constexpr int kSettleMs = 1000;
constexpr char kEngineClassProperty[] = "korvane.engine.class";
constexpr OSStatus kNoSuchService = -1;

std::string propertyOf(const AudioDeviceInfo& device, const char* key) {
    const auto found = device.properties.find(key);
    return found != device.properties.end() ? found->second : std::string();
}

/// The hardware of a node, as far as the node's properties say.
std::string hardwareOf(const AudioDeviceInfo& device) {
    for (const char* key : {"device.name", "alsa.card_name", "api.bluez5.address", "api.alsa.path"})
        if (auto name = propertyOf(device, key); !name.empty())
            return name;
    return {};
}

std::string busOf(const AudioDeviceInfo& device) {
    for (const char* key : {"device.bus", "api.alsa.card.bus"})
        if (auto bus = propertyOf(device, key); !bus.empty())
            return bus;
    // A node of a Bluetooth device does not always name its bus.
    return propertyOf(device, "api.bluez5.address").empty() ? "" : "bluetooth";
}

} // namespace

std::unique_ptr<IORegistry> createIORegistry() {
    return std::make_unique<PipeWireIORegistry>();
}

PipeWireIORegistry::PipeWireIORegistry() : registry_(DeviceRegistry::shared()) {
}

PipeWireIORegistry::~PipeWireIORegistry() = default;

std::vector<IORegistry::Object> PipeWireIORegistry::servicesOfClass(const QString& className) {
    if (registry_->connection()->connected())
        registry_->waitUntilKnown(kSettleMs);
    const auto wanted = className.toStdString();
    std::vector<Object> found;
    for (const auto& device : registry_->devices())
        if (wanted == "IOAudioEngine" || propertyOf(device, kEngineClassProperty) == wanted)
            found.push_back(device.id);
    return found;
}

void PipeWireIORegistry::retain(Object /*object*/) {
}

void PipeWireIORegistry::release(Object /*object*/) {
}

QString PipeWireIORegistry::path(Object object) {
    const auto device = registry_->device(object);
    if (!device)
        return {};
    return QString::fromStdString(RegistryPath::path(busOf(*device), hardwareOf(*device), device->nodeName));
}

QVariant PipeWireIORegistry::property(Object object, const QString& key) {
    const auto device = registry_->device(object);
    if (!device)
        return {};
    if (const auto value = propertyOf(*device, key.toUtf8().constData()); !value.empty())
        return QString::fromStdString(value);
    if (const auto value = registry_->driverMetadata(device->nodeId, key.toStdString()); !value.empty())
        return QString::fromStdString(value);
    const auto ours = set_.find(object);
    return ours != set_.end() ? ours->second.value(key) : QVariant();
}

OSStatus PipeWireIORegistry::setProperty(Object object, const QString& key, const QVariant& value) {
    const auto device = registry_->device(object);
    if (!device)
        return kNoSuchService;
    const auto status =
        registry_->setMetadata(device->nodeId, key.toStdString(), "Spa:String", value.toString().toStdString());
    if (status == noErr)
        set_[object][key] = value;
    return status;
}

} // namespace Platform
