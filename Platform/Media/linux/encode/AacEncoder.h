// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Media/linux/encode/PacketFile.h"
#include "Platform/Media/linux/libav/LibAvCodec.h"

#include <vector>

namespace Platform {

/// One run of libavcodec's AAC encoder. One thread.
class AacEncoder {
public:
    using Packet = std::vector<std::uint8_t>;
    static constexpr int packetFrames = 1024;

    /// At the encoder's default bit rate. Check valid() afterwards. @p equalChannels: both of two channels always have
    /// the same samples. Only the first is read and encoded, which takes half the time.
    AacEncoder(int rate, int channels, bool equalChannels = false);
    [[nodiscard]] bool valid() const { return bool(context_); }
    [[nodiscard]] AacStreamInfo streamInfo() const;

    /// Encodes 1024 frames, or fewer at the end of the file; appends the packets that are ready.
    bool encode(const float* const* channels, int frames, std::vector<Packet>& out);
    /// Appends the remaining packets. Nothing can be encoded afterwards.
    bool flush(std::vector<Packet>& out);

private:
    bool receive(std::vector<Packet>& out);

    Av::CodecPtr context_;
    Av::FramePtr frame_;
    Av::PacketPtr packet_;
    std::int64_t position_ = 0;
    bool equalChannels_ = false;
};

} // namespace Platform
