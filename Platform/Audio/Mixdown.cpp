// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Audio/Mixdown.h"

#include <array>
#include <numbers>

namespace Platform {

namespace {

constexpr float minus3dB = float(1 / std::numbers::sqrt2);
constexpr float minus6dB = 0.5F;

struct Place {
    std::string_view channel;
    StereoGains gains;
};

constexpr std::array places = {
    Place{"FL", {1, 0}},
    Place{"FR", {0, 1}},
    Place{"MONO", {1, 1}},
    Place{"FC", {minus3dB, minus3dB}},
    Place{"LFE", {minus6dB, minus6dB}},
    Place{"LFE2", {minus6dB, minus6dB}},
    // One rear channel replaces two surround channels: 3 dB lower for its position and 3 dB because both sides play it.
    Place{"RC", {minus6dB, minus6dB}},
    Place{"TC", {minus6dB, minus6dB}},
    Place{"TFC", {minus6dB, minus6dB}},
    Place{"TRC", {minus6dB, minus6dB}},
    Place{"BC", {minus6dB, minus6dB}},
};

/// "SL", "RL", "FLC", "TFL", "RLC" and their right counterparts: the last L or R of the name is the side.
StereoGains sideOf(std::string_view channel) {
    if (channel.ends_with('C') || channel.ends_with('W') || channel.ends_with('H'))
        channel.remove_suffix(1);
    if (channel.ends_with('L'))
        return {minus3dB, 0};
    if (channel.ends_with('R'))
        return {0, minus3dB};
    return {};
}

} // namespace

StereoGains stereoGainsOf(std::string_view channel, unsigned index) {
    for (const Place& place : places)
        if (place.channel == channel)
            return place.gains;
    if (!channel.starts_with("AUX"))
        if (const StereoGains gains = sideOf(channel); gains != StereoGains{})
            return gains;
    const float level = index < 2 ? 1 : minus3dB;
    return index % 2 == 0 ? StereoGains{level, 0} : StereoGains{0, level};
}

} // namespace Platform
