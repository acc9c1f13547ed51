// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <cstdlib>
#include <memory>
#include <vector>

struct spa_pod;

namespace Platform {

/// Reading and writing the parameters of a node of the sound server.
struct NodeFormat {
    std::uint32_t rate = 0; ///< Hz; 0 is unknown
    std::uint32_t channels = 0;
    std::vector<std::uint32_t> positions; ///< SPA_AUDIO_CHANNEL_...

    [[nodiscard]] bool known() const { return rate > 0 || channels > 0; }
    /// Reads a format parameter: its values, or the first of each where it offers several. All unknown unless it is raw
    /// audio.
    [[nodiscard]] static NodeFormat read(const spa_pod* pod);
};

struct FreePod {
    void operator()(spa_pod* pod) const noexcept { std::free(pod); }
};
using PodPtr = std::unique_ptr<spa_pod, FreePod>;

/// Mono, front left and right, or numbered places beyond two channels.
[[nodiscard]] std::vector<std::uint32_t> defaultChannelPositions(std::uint32_t channels);

/// The format that a stream requests: raw 32-bit float at the given rate, interleaved or one buffer per channel.
[[nodiscard]] PodPtr interleavedFloatPod(const NodeFormat& format);
[[nodiscard]] PodPtr planarFloatPod(const NodeFormat& format);

/// Takes volumes (linear) and mute from a Props parameter; values that it does not contain stay as they are. The
/// property of a device that was never opened has no values yet. Returns whether there is a volume control.
bool readVolumes(const spa_pod* pod, std::vector<float>& volumes, bool& muted);
[[nodiscard]] PodPtr volumesPod(const std::vector<float>& volumes);
[[nodiscard]] PodPtr mutePod(bool mute);

} // namespace Platform
