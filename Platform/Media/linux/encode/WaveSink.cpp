// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Media/linux/encode/FrameSink.h"

#include <cmath>
#include <cstring>

namespace Platform {

namespace {

constexpr std::size_t bufferBytes = 1 << 18;
constexpr std::uint32_t headerBytes = 80;
constexpr std::uint32_t waveLimit = 0xffffffff;

/// RIFF numbers are little-endian.
class LittleEndian {
public:
    LittleEndian& code(const char (&letters)[5]) {
        for (int i = 0; i < 4; ++i)
            bytes_.push_back(std::uint8_t(letters[i]));
        return *this;
    }
    LittleEndian& number(std::uint64_t value, int size) {
        for (int i = 0; i < size; ++i)
            bytes_.push_back(std::uint8_t(value >> (8 * i)));
        return *this;
    }
    [[nodiscard]] const std::vector<std::uint8_t>& bytes() const { return bytes_; }

private:
    std::vector<std::uint8_t> bytes_;
};

/// Full scale is 2^31; larger values are clipped, NaN becomes silence.
inline std::int32_t toInt32(float sample) {
    const float scaled = sample * 2147483648.0f;
    if (scaled >= 2147483648.0f)
        return 2147483647;
    if (scaled <= -2147483648.0f)
        return -2147483647 - 1;
    return scaled == scaled ? std::int32_t(std::lrintf(scaled)) : 0;
}

inline std::int32_t toInt(float sample, int bits) {
    if (bits == 32)
        return toInt32(sample);
    const auto limit = double(1 << (bits - 1));
    const double scaled = double(sample) * limit;
    if (!(scaled == scaled))
        return 0;
    return std::int32_t(std::lrint(std::clamp(scaled, -limit, limit - 1)));
}

class WaveSink final : public FrameSink {
public:
    WaveSink(OutputFile& file, int rate, int channels, int bits, bool isFloat)
        : file_(file), rate_(rate), channels_(channels), bits_(bits), isFloat_(isFloat) {
        buffer_.reserve(bufferBytes);
        file_.append(header());
    }

    void append(const float* const* channels, std::size_t frames) override {
        const std::size_t frameBytes = std::size_t(channels_) * std::size_t(bits_) / 8;
        for (std::size_t done = 0; done < frames;) {
            const std::size_t room = std::max<std::size_t>(1, (bufferBytes - buffer_.size()) / frameBytes);
            const std::size_t count = std::min(room, frames - done);
            convert(channels, done, count, frameBytes);
            done += count;
            if (buffer_.size() + frameBytes > bufferBytes)
                flush();
        }
    }

    void finish() override {
        flush();
        // Chunks have an even length.
        if (dataBytes_ % 2 && !file_.failed())
            file_.append(std::vector<std::uint8_t>(1));
        file_.patch(0, header());
    }

private:
    void convert(const float* const* channels, std::size_t from, std::size_t count, std::size_t frameBytes) {
        const std::size_t at = buffer_.size();
        buffer_.resize(at + count * frameBytes);
        std::uint8_t* out = buffer_.data() + at;
        const auto width = std::size_t(channels_);
        for (std::size_t c = 0; c < width; ++c) {
            const float* in = channels[c] + from;
            if (bits_ == 32 && !isFloat_) {
                for (std::size_t i = 0; i < count; ++i) {
                    const std::int32_t value = toInt32(in[i]);
                    std::memcpy(out + (i * width + c) * 4, &value, 4);
                }
            } else if (isFloat_) {
                for (std::size_t i = 0; i < count; ++i)
                    std::memcpy(out + (i * width + c) * 4, in + i, 4);
            } else {
                const std::size_t size = std::size_t(bits_) / 8;
                for (std::size_t i = 0; i < count; ++i) {
                    const std::int32_t value = toInt(in[i], bits_);
                    std::memcpy(out + (i * width + c) * size, &value, size);
                }
            }
        }
    }

    void flush() {
        const bool written = file_.append(buffer_);
        dataBytes_ += written ? buffer_.size() : 0;
        buffer_.clear();
        // The header is updated about once a second, so that a file whose program was killed still plays.
        sincePatch_ += bufferBytes;
        if (written && sincePatch_ >= 2 * bufferBytes) {
            sincePatch_ = 0;
            file_.patch(0, header());
        }
    }

    /// RIFF with room for the 64-bit sizes that turn it into RF64 once the file exceeds 4 GiB.
    std::vector<std::uint8_t> header() const {
        const std::uint64_t riffBytes = headerBytes - 8 + dataBytes_ + dataBytes_ % 2;
        const bool big = riffBytes > waveLimit - 1;
        const auto frameBytes = std::uint32_t(channels_ * bits_ / 8);
        LittleEndian out;
        if (big)
            out.code("RF64").number(waveLimit, 4);
        else
            out.code("RIFF").number(riffBytes, 4);
        out.code("WAVE");
        if (big)
            out.code("ds64")
                .number(28, 4)
                .number(riffBytes, 8)
                .number(dataBytes_, 8)
                .number(dataBytes_ / frameBytes, 8);
        else
            out.code("JUNK").number(28, 4).number(0, 8).number(0, 8).number(0, 8);
        out.number(0, 4);
        out.code("fmt ").number(16, 4).number(isFloat_ ? 3 : 1, 2).number(std::uint64_t(channels_), 2);
        out.number(std::uint64_t(rate_), 4).number(std::uint64_t(rate_) * frameBytes, 4).number(frameBytes, 2);
        out.number(std::uint64_t(bits_), 2);
        out.code("data").number(big ? waveLimit : dataBytes_, 4);
        return out.bytes();
    }

    OutputFile& file_;
    int rate_;
    int channels_;
    int bits_;
    bool isFloat_;
    std::vector<std::uint8_t> buffer_;
    std::uint64_t dataBytes_ = 0;
    std::size_t sincePatch_ = 0;
};

} // namespace

std::unique_ptr<FrameSink> createWaveSink(OutputFile& file, int rate, int channels, int bitsPerChannel, bool isFloat) {
    return std::make_unique<WaveSink>(file, rate, channels, bitsPerChannel, isFloat);
}

} // namespace Platform
