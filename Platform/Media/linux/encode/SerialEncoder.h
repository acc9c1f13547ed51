// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Media/linux/encode/AacEncoder.h"
#include "Platform/Media/linux/encode/FrameSink.h"

#include <array>
#include <vector>

namespace Platform {

/// AAC encoding in one run on the calling thread, for a file that is written while its audio arrives. It has no lock,
/// no thread of its own, and keeps at most the frames of one packet. One thread calls.
class SerialEncoder {
public:
    using Packet = AacEncoder::Packet;

    explicit SerialEncoder(const AacSettings& settings);

    [[nodiscard]] bool valid() const { return encoder_.valid() && !failed_; }
    [[nodiscard]] AacStreamInfo streamInfo() const { return encoder_.streamInfo(); }

    /// Appends to @p out the packets that are ready.
    void append(const float* const* channels, std::size_t frames, std::vector<Packet>& out);
    void finish(std::vector<Packet>& out);

private:
    void finishPacket(std::vector<Packet>& out);
    void encode(const float* const* channels, int frames, std::vector<Packet>& out);

    using Row = std::array<float, AacEncoder::packetFrames>;

    AacEncoder encoder_;
    std::vector<Row> waiting_; ///< frames of an incomplete packet, one row per channel
    std::vector<const float*> rows_;
    std::size_t frames_ = 0; ///< number of frames in waiting_
    bool failed_ = false;
};

} // namespace Platform
