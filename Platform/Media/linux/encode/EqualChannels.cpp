// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Media/linux/encode/EqualChannels.h"

#include <algorithm>
#include <bit>
#include <cstddef>

namespace Platform {

namespace {

// id_syn_ele
constexpr std::uint32_t singleChannel = 0;
constexpr std::uint32_t channelPair = 1;
constexpr std::uint32_t fill = 6;
constexpr std::uint32_t end = 7;

class BitReader {
public:
    explicit BitReader(const std::vector<std::uint8_t>& bytes) : bytes_(bytes) {}
    [[nodiscard]] std::size_t position() const { return position_; }
    /// At most 32 bits; zeros behind the end.
    std::uint32_t read(std::size_t count) {
        std::uint32_t value = 0;
        for (; count > 0; --count, ++position_) {
            const std::size_t byte = position_ / 8;
            const std::uint32_t bit = byte < bytes_.size() ? bytes_[byte] >> (7 - position_ % 8) & 1U : 0;
            value = value << 1 | bit;
        }
        return value;
    }

private:
    const std::vector<std::uint8_t>& bytes_;
    std::size_t position_ = 0;
};

class BitWriter {
public:
    explicit BitWriter(std::size_t bytes) { bytes_.reserve(bytes); }
    void write(std::uint32_t value, std::size_t count) {
        waiting_ = waiting_ << count | value;
        waitingBits_ += count;
        for (; waitingBits_ >= 8; waitingBits_ -= 8)
            bytes_.push_back(std::uint8_t(waiting_ >> (waitingBits_ - 8)));
    }
    void copy(BitReader& from, std::size_t count) {
        for (; count >= 24; count -= 24)
            write(from.read(24), 24);
        write(from.read(count), count);
    }
    std::vector<std::uint8_t> take() {
        if (waitingBits_ > 0)
            write(0, 8 - waitingBits_);
        return std::move(bytes_);
    }

private:
    std::vector<std::uint8_t> bytes_;
    std::uint64_t waiting_ = 0;
    std::size_t waitingBits_ = 0;
};

/// Where the bits of the last element end: before the three bits of the end and the zeros that fill the last byte.
std::size_t endOfElements(const std::vector<std::uint8_t>& packet) {
    if (packet.empty() || packet.back() == 0)
        return 0;
    const std::size_t bits = packet.size() * 8 - std::size_t(std::countr_zero(packet.back()));
    return bits < 3 ? 0 : bits - 3;
}

} // namespace

std::vector<std::uint8_t> packetOfEqualChannels(const std::vector<std::uint8_t>& packet) {
    BitReader in(packet);
    const std::size_t elementsEnd = endOfElements(packet);
    BitWriter out(packet.size() + 16);
    std::uint32_t element = in.read(3);
    while (element == fill && in.position() < elementsEnd) {
        out.write(fill, 3);
        std::uint32_t bytes = in.read(4);
        out.write(bytes, 4);
        if (bytes == 15) {
            const std::uint32_t more = in.read(8);
            out.write(more, 8);
            bytes += more - 1;
        }
        out.copy(in, std::size_t(bytes) * 8);
        element = in.read(3);
    }
    if (element != singleChannel)
        return {};
    out.write(channelPair, 3);
    out.write(in.read(4), 4); // instance tag
    const std::uint32_t gain = in.read(8);
    out.write(1, 1); // both channels share the description of their windows, which follows
    const std::uint32_t windows = in.read(4);
    out.write(windows, 4);
    const bool isShort = (windows >> 1 & 3) == 2;
    const std::size_t bandBits = isShort ? 4 : 6;
    const std::uint32_t bands = in.read(bandBits);
    out.write(bands, bandBits);
    int groups = 1;
    if (isShort) {
        const std::uint32_t grouping = in.read(7); // a zero for each window that begins a group
        out.write(grouping, 7);
        groups += 7 - std::popcount(grouping);
    } else if (const std::uint32_t predicts = in.read(1); predicts == 0) {
        out.write(0, 1);
    } else {
        return {};
    }
    out.write(2, 2); // mid/side in all bands
    out.write(gain, 8);
    if (in.position() > elementsEnd)
        return {};
    out.copy(in, elementsEnd - in.position());
    // The side: all bands of each group are zero, and no pulses, noise shaping or gain control follow.
    out.write(gain, 8);
    const std::size_t lengthBits = isShort ? 3 : 5;
    const std::uint32_t longest = (1U << lengthBits) - 1;
    for (int group = 0; group < groups && bands > 0; ++group) {
        out.write(0, 4); // the codebook of zeros
        std::uint32_t left = bands;
        for (; left >= longest; left -= longest)
            out.write(longest, lengthBits);
        out.write(left, lengthBits);
    }
    out.write(0, 3);
    out.write(end, 3);
    return out.take();
}

} // namespace Platform
