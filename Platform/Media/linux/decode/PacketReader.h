// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Foundation/Result.h"
#include "Platform/Media/linux/decode/SourceFile.h"
#include "Platform/Media/linux/encode/PacketFile.h"

#include <memory>
#include <vector>

namespace Platform {

/// The AAC packets of a complete MPEG-4 file that this program wrote. Any thread.
class PacketReader {
public:
    /// Error::Kind::UnknownFormat: a file of another program, or one that still grows.
    static Result<std::shared_ptr<PacketReader>> open(const QString& path);

    [[nodiscard]] const AacStreamInfo& info() const { return info_; }
    [[nodiscard]] std::int64_t validFrames() const { return validFrames_; }
    [[nodiscard]] std::int64_t count() const { return std::int64_t(packets_.size()); }
    /// The bytes of a packet; empty when they cannot be read.
    [[nodiscard]] std::vector<std::uint8_t> packet(std::int64_t index) const;

private:
    struct Packet {
        std::int64_t offset;
        std::uint32_t size;
    };
    bool readDescription(ByteRange table);
    bool readPackets(ByteRange table);

    SourceFile file_;
    AacStreamInfo info_;
    std::int64_t validFrames_ = 0;
    std::vector<Packet> packets_;
};

} // namespace Platform
