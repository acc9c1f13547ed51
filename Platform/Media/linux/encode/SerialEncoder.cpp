// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Media/linux/encode/SerialEncoder.h"

#include <algorithm>
#include <utility>

namespace Platform {

SerialEncoder::SerialEncoder(const AacSettings& settings)
    : encoder_(settings.rate, settings.channels, settings.hasEqualChannels()), waiting_(std::size_t(settings.channels)),
      rows_(waiting_.size()) {
}

void SerialEncoder::append(const float* const* channels, std::size_t frames, std::vector<Packet>& out) {
    constexpr auto whole = std::size_t(AacEncoder::packetFrames);
    std::size_t done = 0;
    while (done < frames && !failed_) {
        if (frames_ == 0 && frames - done >= whole) {
            // The caller's rows contain a whole packet: the encoder reads it without a copy.
            for (std::size_t c = 0; c < rows_.size(); ++c)
                rows_[c] = channels[c] + done;
            encode(rows_.data(), int(whole), out);
            done += whole;
            continue;
        }
        const std::size_t count = std::min(frames - done, whole - frames_);
        for (std::size_t c = 0; c < waiting_.size(); ++c)
            std::copy_n(channels[c] + done, count, waiting_[c].data() + frames_);
        frames_ += count;
        done += count;
        if (frames_ == whole)
            finishPacket(out);
    }
}

void SerialEncoder::finish(std::vector<Packet>& out) {
    if (frames_ > 0)
        finishPacket(out);
    if (!encoder_.flush(out))
        failed_ = true;
}

void SerialEncoder::finishPacket(std::vector<Packet>& out) {
    std::ranges::transform(waiting_, rows_.begin(), [](const Row& row) { return row.data(); });
    encode(rows_.data(), int(std::exchange(frames_, 0)), out);
}

void SerialEncoder::encode(const float* const* channels, int frames, std::vector<Packet>& out) {
    if (!encoder_.encode(channels, frames, out))
        failed_ = true;
}

} // namespace Platform
