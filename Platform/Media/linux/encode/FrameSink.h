// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Media/linux/encode/OutputFile.h"
#include "Platform/Media/linux/encode/PacketFile.h"

#include <cstdint>
#include <memory>
#include <vector>

namespace Platform {

/// Takes frames at the file's rate and stores them in the file's format. The file's own thread.
class FrameSink {
public:
    virtual ~FrameSink() = default;
    /// @p channels: one row per channel of the file (two rows may be the same memory).
    virtual void append(const float* const* channels, std::size_t frames) = 0;
    /// Stores the rest and completes the file.
    virtual void finish() = 0;
};

[[nodiscard]] std::unique_ptr<FrameSink> createWaveSink(OutputFile& file, int rate, int channels, int bitsPerChannel,
                                                        bool isFloat);

/// How MPEG-4 AAC is encoded.
struct AacSettings {
    int rate = 44100;
    int channels = 2;
    /// Maps file channels to rows: file channel c is row rowOf[c]. Identical rows are stored once.
    std::vector<std::size_t> rowOf;
    /// Two channels that are the same row.
    [[nodiscard]] bool hasEqualChannels() const { return channels == 2 && rowOf.size() == 2 && rowOf[0] == rowOf[1]; }
    /// Threads that encode stretches of the file in parallel. 1 encodes on the calling thread, in one run: the packets
    /// of a live recording must not wait for each other.
    int workers = 1;
    /// Shortest stretch for a thread, in packets of 1024 frames; only for several workers.
    std::int64_t stretchPackets = 0;
};

/// Nothing when this rate or channel count cannot be encoded.
[[nodiscard]] std::unique_ptr<FrameSink> createAacSink(OutputFile& file, std::unique_ptr<PacketFile> container,
                                                       const AacSettings& settings);

} // namespace Platform
