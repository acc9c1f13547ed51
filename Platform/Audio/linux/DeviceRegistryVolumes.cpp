// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Sound cards, and the volume and mute of devices.
#include "Platform/Audio/linux/DeviceRegistryObjects.h"

#include <cstdlib>

namespace Platform {

using namespace PipeWire;

void DeviceRegistry::bindCard(std::uint32_t id) {
    auto& card = cards_[id] = std::make_unique<Card>(*this, id);
    card->proxy.reset(
        static_cast<pw_device*>(pw_registry_bind(registry_.get(), id, PW_TYPE_INTERFACE_Device, PW_VERSION_DEVICE, 0)));
    static constexpr pw_device_events events = {
        .version = PW_VERSION_DEVICE_EVENTS,
        .info = [](void* data, const pw_device_info* info) { static_cast<Card*>(data)->onInfo(info); },
        .param =
            [](void* data, int, std::uint32_t param, std::uint32_t number, std::uint32_t, const spa_pod* pod) {
                if (param == SPA_PARAM_Route)
                    static_cast<Card*>(data)->onRoute(number, pod);
            },
    };
    pw_device_add_listener(card->proxy.get(), card->listener.get(), &events, card.get());
}

void DeviceRegistry::Card::onInfo(const pw_device_info* update) {
    if (update->change_mask & PW_DEVICE_CHANGE_MASK_PARAMS)
        askForRoutes({update->params, update->n_params});
    if (!(update->change_mask & PW_DEVICE_CHANGE_MASK_PROPS) || !update->props)
        return;
    for (const char* key : {PW_KEY_DEVICE_BUS, PW_KEY_DEVICE_NAME})
        if (auto value = lookup(update->props, key); !value.empty())
            properties[key] = std::move(value);
    publishNodes();
}

/// Asks again at each change. A subscription does not work: server 0.3.65 does not forward the answers of a card that
/// lives in another process.
void DeviceRegistry::Card::askForRoutes(std::span<const spa_param_info> params) {
    for (const auto& each : params) {
        if (each.id != SPA_PARAM_Route || each.flags == routeFlags)
            continue;
        routeFlags = each.flags;
        if (each.flags & SPA_PARAM_INFO_READ)
            pw_device_enum_params(proxy.get(), 0, SPA_PARAM_Route, 0, UINT32_MAX, nullptr);
    }
}

/// @p number counts the routes of one answer. The first route makes all earlier answers invalid.
void DeviceRegistry::Card::onRoute(std::uint32_t number, const spa_pod* pod) {
    if (number == 0)
        routes.clear();
    if (const auto route = DeviceRoute::read(pod))
        routes[route->device] = *route;
    publishNodes();
}

bool DeviceRegistry::Card::has(const AudioDeviceInfo& node) const {
    const auto named = node.properties.find(PW_KEY_DEVICE_ID);
    return named != node.properties.end() && named->second == deviceId;
}

DeviceRoute* DeviceRegistry::Card::routeOf(const AudioDeviceInfo& node) {
    const auto named = node.properties.find("card.profile.device");
    if (!has(node) || named == node.properties.end())
        return nullptr;
    const auto found = routes.find(std::int32_t(std::strtol(named->second.c_str(), nullptr, 10)));
    return found != routes.end() ? &found->second : nullptr;
}

void DeviceRegistry::Card::publishNodes() {
    for (const auto& [id, node] : owner.nodes_)
        if (node->announced && has(node->info))
            owner.publish(*node);
}

DeviceRegistry::Node* DeviceRegistry::find(AudioObjectID device) {
    for (const auto& [id, node] : nodes_)
        if (node->announced && node->info.id == device)
            return node.get();
    return nullptr;
}

std::pair<DeviceRegistry::Card*, DeviceRoute*> DeviceRegistry::routeOf(const Node& node) {
    for (const auto& [id, card] : cards_)
        if (auto* route = card->routeOf(node.info); route && route->hasVolume)
            return {card.get(), route};
    return {};
}

OSStatus DeviceRegistry::setVolume(AudioObjectID device, std::uint32_t element, float volume) {
    LoopLock lock(connection_->threadLoop());
    Node* node = find(device);
    if (!node)
        return kAudioHardwareBadDeviceError;
    std::vector<float> volumes;
    if (const auto known = this->device(device))
        volumes = known->volumes;
    if (element == 0 || element > volumes.size())
        return kAudioHardwareUnknownPropertyError;
    volumes[element - 1] = volume;
    const auto [card, route] = routeOf(*node);
    const int result =
        card ? pw_device_set_param(card->proxy.get(), SPA_PARAM_Route, 0, route->withVolumes(volumes).get())
             : pw_node_set_param(node->proxy.get(), SPA_PARAM_Props, 0, volumesPod(volumes).get());
    followRequest();
    if (result < 0)
        return kAudioHardwareIllegalOperationError;
    (route ? route->volumes : node->info.volumes) = volumes;
    publish(*node);
    return noErr;
}

OSStatus DeviceRegistry::setMute(AudioObjectID device, bool mute) {
    LoopLock lock(connection_->threadLoop());
    Node* node = find(device);
    if (!node)
        return kAudioHardwareBadDeviceError;
    const auto [card, route] = routeOf(*node);
    const int result = card ? pw_device_set_param(card->proxy.get(), SPA_PARAM_Route, 0, route->withMute(mute).get())
                            : pw_node_set_param(node->proxy.get(), SPA_PARAM_Props, 0, mutePod(mute).get());
    followRequest();
    if (result < 0)
        return kAudioHardwareIllegalOperationError;
    (route ? route->muted : node->info.muted) = mute;
    publish(*node);
    return noErr;
}

} // namespace Platform
