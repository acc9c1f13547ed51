// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

namespace Platform {

/// How loud one channel of an output is on each side of a stereo recording, as amplitude factors.
struct StereoGains {
    float left = 0;
    float right = 0;

    friend bool operator==(const StereoGains&, const StereoGains&) = default;
};

/// The gains of a channel by its name on the sound server ("FL", "FC", "RR", "AUX3" ...). Front left and right keep
/// their level. Centre and surrounds are 3 dB lower, as usual for two speakers; the bass channel is 6 dB lower on each
/// side. A channel without a known position goes to the left when @p index (counted from 0) is even, else to the right;
/// the first two such channels keep their level.
[[nodiscard]] StereoGains stereoGainsOf(std::string_view channel, unsigned index);

} // namespace Platform
