// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <vector>

namespace Platform {

/// An AAC packet of one channel as a packet of two equal channels: a channel pair in mid/side coding (ISO/IEC 14496-3,
/// 4.4.2.1) whose middle is the channel and whose side is empty. Both channels decode to exactly the samples of the one
/// channel, and only one channel has to be encoded. Empty when @p packet is no AAC-LC packet of one channel.
[[nodiscard]] std::vector<std::uint8_t> packetOfEqualChannels(const std::vector<std::uint8_t>& packet);

} // namespace Platform
