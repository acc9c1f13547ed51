// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Audio/linux/NodeFormat.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace Platform {

/// The path from a device of a sound card to its socket or microphone. When a card has routes, its volume and mute are
/// those of the route, not those of the node.
struct DeviceRoute {
    std::int32_t index = 0;
    std::int32_t device = 0; ///< the node's card.profile.device
    bool hasVolume = false;
    std::vector<float> volumes; ///< linear, one per channel
    bool muted = false;

    /// Reads a Route parameter; nothing when it describes no route.
    [[nodiscard]] static std::optional<DeviceRoute> read(const spa_pod* pod);
    /// Parameters that set the volumes, or mute, of this route and let the session manager store them.
    [[nodiscard]] PodPtr withVolumes(const std::vector<float>& volumes) const;
    [[nodiscard]] PodPtr withMute(bool mute) const;
};

} // namespace Platform
