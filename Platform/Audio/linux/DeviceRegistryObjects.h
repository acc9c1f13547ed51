// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The server's objects as the device registry stores them; included by its own sources only. Loop's thread.
#pragma once

#include "Platform/Audio/linux/DeviceRegistry.h"
#include "Platform/Audio/linux/DeviceRoute.h"
#include "Platform/Audio/linux/NodeFormat.h"

#include <span>

namespace Platform {

/// A device's node on the server.
struct DeviceRegistry::Node {
    Node(DeviceRegistry& r, std::uint32_t i) : owner(r), nodeId(i) {}

    void onInfo(const pw_node_info* update);
    void onParam(std::uint32_t id, const spa_pod* pod);

    DeviceRegistry& owner;
    std::uint32_t nodeId;
    AudioDeviceInfo info;
    NodeFormat offered; ///< the formats it offers
    NodeFormat chosen;  ///< the format it uses since it was opened; may be unknown
    int sequence = -1;  ///< sync number; its answer comes after the node described itself
    bool announced = false;
    std::vector<float> reportedVolumes; ///< the last reported ones; info may hold newer ones that were set here
    bool reportedMuted = false;
    PipeWire::NodePtr proxy;
    PipeWire::Hook listener;
};

/// The hardware of a node: a sound card, a headset. A card's node does not name its bus; the card does.
struct DeviceRegistry::Card {
    Card(DeviceRegistry& r, std::uint32_t i) : owner(r), deviceId(std::to_string(i)) {}

    void onInfo(const pw_device_info* update);
    void askForRoutes(std::span<const spa_param_info> params);
    void onRoute(std::uint32_t number, const spa_pod* pod);
    [[nodiscard]] bool has(const AudioDeviceInfo& node) const;
    /// The route that this node of the card uses; null when there is none.
    [[nodiscard]] DeviceRoute* routeOf(const AudioDeviceInfo& node);
    void publishNodes();

    DeviceRegistry& owner;
    std::string deviceId;
    std::map<std::string, std::string> properties;
    std::uint32_t routeFlags = 0;               ///< toggles with each change of the routes
    std::map<std::int32_t, DeviceRoute> routes; ///< the active routes, by the card's own device number
    PipeWire::DevicePtr proxy;
    PipeWire::Hook listener;
};

struct DeviceRegistry::Metadata {
    Metadata(DeviceRegistry& r, std::string n) : owner(r), name(std::move(n)) {}

    DeviceRegistry& owner;
    std::string name;
    PipeWire::MetadataPtr proxy;
    PipeWire::Hook listener;
};

/// A value of a server dictionary; empty when the key is missing.
[[nodiscard]] inline std::string lookup(const spa_dict* properties, const char* key) {
    const char* value = properties ? spa_dict_lookup(properties, key) : nullptr;
    return value ? value : "";
}

} // namespace Platform
