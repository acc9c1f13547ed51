// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Media/EncodedAudio.h"
#include "Platform/Media/linux/decode/PacketReader.h"

namespace Platform {

class PacketCopy final : public EncodedAudio {
public:
    explicit PacketCopy(std::shared_ptr<const PacketReader> file);

    [[nodiscard]] int sampleRate() const override { return info_.sampleRate; }
    [[nodiscard]] std::int64_t frames() const override { return frames_; }
    Result<> copy(const QString& path, std::int64_t first, std::int64_t end,
                  const std::function<bool(double)>& progress) const override;
    bool append(const EncodedAudio& next) override;

private:
    /// Packets of one file in a row.
    struct Run {
        std::shared_ptr<const PacketReader> file;
        std::int64_t first = 0;
        std::int64_t end = 0; ///< not included
        [[nodiscard]] std::int64_t count() const { return end - first; }
    };
    [[nodiscard]] std::int64_t packetCount() const;
    [[nodiscard]] std::vector<std::uint8_t> packet(std::int64_t index) const;
    /// Leaves the first @p count packets.
    void shorten(std::int64_t count);

    AacStreamInfo info_;
    std::int64_t frames_ = 0; ///< behind info_.primingFrames
    std::vector<Run> runs_;
};

} // namespace Platform
