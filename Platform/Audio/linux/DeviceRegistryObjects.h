// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The server's objects as the device registry keeps them; for its own sources only. All on the loop's thread.
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
    NodeFormat offered; ///< what it could do
    NodeFormat chosen;  ///< what it does since it was opened; may be unknown
    int sequence = -1;  ///< answered when it told about itself
    bool announced = false;
    PipeWire::NodePtr proxy;
    PipeWire::Hook listener;
};

/// The hardware that nodes belong to: a sound card, a headset. Of its bus a card's node says nothing itself.
struct DeviceRegistry::Card {
    Card(DeviceRegistry& r, std::uint32_t i) : owner(r), deviceId(std::to_string(i)) {}

    void onInfo(const pw_device_info* update);
    void askForRoutes(std::span<const spa_param_info> params);
    void onRoute(std::uint32_t number, const spa_pod* pod);
    [[nodiscard]] bool has(const AudioDeviceInfo& node) const;
    /// The route that this node of the card uses; null when it has none.
    [[nodiscard]] DeviceRoute* routeOf(const AudioDeviceInfo& node);
    void publishNodes();

    DeviceRegistry& owner;
    std::string deviceId;
    std::map<std::string, std::string> properties;
    std::uint32_t routeFlags = 0;               ///< they differ after each change of the routes
    std::map<std::int32_t, DeviceRoute> routes; ///< the active ones, by the card's own number of the device
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

/// A value of a dictionary of the server; empty when there is none.
[[nodiscard]] inline std::string lookup(const spa_dict* properties, const char* key) {
    const char* value = properties ? spa_dict_lookup(properties, key) : nullptr;
    return value ? value : "";
}

} // namespace Platform
