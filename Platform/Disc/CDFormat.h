// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

namespace Platform {

/// The numbers of an audio CD.
namespace CDFormat {
inline constexpr int kRate = 44100;
inline constexpr int kFramesPerSector = 588; ///< 16 bit, two channels
inline constexpr int kBytesPerSector = 2352;
inline constexpr int kSectorsPerSecond = 75;
inline constexpr std::int64_t kShortestTrack = 300; ///< sectors: players may skip shorter tracks
inline constexpr int kMostTracks = 99;
inline constexpr std::int64_t kSectorsOf80Minutes = std::int64_t(80) * 60 * kSectorsPerSecond;
} // namespace CDFormat

} // namespace Platform
