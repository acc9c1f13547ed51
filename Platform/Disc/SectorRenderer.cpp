// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Disc/SectorRenderer.h"

#include <QCoreApplication>

#include <algorithm>
#include <cstring>
#include <new>
#include <utility>

namespace Platform {

namespace {

constexpr float kStep = 32768;
/// A file may be shorter than its headers say by this many frames and not count as damaged: some formats store their
/// length in packets only.
constexpr std::int64_t kToleratedFrames = CDFormat::kRate / 10;

struct TwoBuffers {
    AudioBufferList list;
    AudioBuffer second;
};

/// Rounds to the nearest without a branch, so that the compiler can vectorise it.
std::int16_t rounded(float value) {
    value = std::min(std::max(value, -32768.0F), 32767.0F);
    return std::int16_t(std::int32_t(value + 32768.5F) - 32768);
}

} // namespace

Dither::Dither(std::uint32_t seed) {
    for (std::size_t i = 0; i < kLanes; ++i)
        state_[i] = (seed + std::uint32_t(i)) * 2654435761U | 1U;
}

inline std::uint32_t Dither::next(std::size_t lane) {
    std::uint32_t x = state_[lane];
    x ^= x << 13;
    x ^= x >> 17;
    x ^= x << 5;
    return state_[lane] = x;
}

void Dither::interleave(const float* left, const float* right, std::int16_t* out, std::size_t frames, bool exact) {
    if (exact) {
        for (std::size_t i = 0; i < frames; ++i) {
            out[2 * i] = rounded(left[i] * kStep);
            out[2 * i + 1] = rounded(right[i] * kStep);
        }
        return;
    }
    // The difference of the two halves of one random number has a triangular distribution, from -1 to 1 step.
    const auto triangular = [](std::uint32_t random) {
        return float(std::int32_t(random >> 16) - std::int32_t(random & 0xffffU)) * (1.0F / 65536);
    };
    constexpr std::size_t half = kLanes / 2;
    std::size_t i = 0;
    for (; i + half <= frames; i += half) {
        float noise[kLanes];
        for (std::size_t k = 0; k < kLanes; ++k)
            noise[k] = triangular(next(k));
        for (std::size_t k = 0; k < half; ++k) {
            out[2 * (i + k)] = rounded(left[i + k] * kStep + noise[k]);
            out[2 * (i + k) + 1] = rounded(right[i + k] * kStep + noise[half + k]);
        }
    }
    for (; i < frames; ++i) {
        out[2 * i] = rounded(left[i] * kStep + triangular(next(0)));
        out[2 * i + 1] = rounded(right[i] * kStep + triangular(next(half)));
    }
}

SectorRenderer::SectorRenderer(std::unique_ptr<ExtAudioFileReader> reader, QString path, std::int64_t frames,
                               bool exact)
    : reader_(std::move(reader)), path_(std::move(path)), frames_(frames), exact_(exact) {
}

bool SectorRenderer::seek(std::int64_t sector) {
    const std::int64_t frame = sector * CDFormat::kFramesPerSector;
    if (frame == at_)
        return true;
    at_ = frame;
    dither_ = Dither(std::uint32_t(sector) + 1);
    return frame >= frames_ || reader_->seek(frame) == noErr;
}

Result<> SectorRenderer::render(std::span<std::byte> out) {
    const auto wanted = std::int64_t(out.size() / 4);
    const std::int64_t fromFile = std::clamp<std::int64_t>(frames_ - at_, 0, wanted);
    for (auto& row : rows_)
        row.resize(std::size_t(wanted));
    std::int64_t done = 0;
    while (done < fromFile) {
        const auto ask = std::uint32_t(fromFile - done);
        TwoBuffers buffers{{2, {{1, ask * 4, rows_[0].data() + done}}}, {1, ask * 4, rows_[1].data() + done}};
        std::uint32_t frames = ask;
        if (reader_->read(frames, &buffers.list) != noErr) {
            const Error error = reader_->firstError();
            return error ? error
                         : Error{Error::Kind::Damaged,
                                 QCoreApplication::translate("Disc", "%1: cannot be read").arg(path_)};
        }
        if (frames == 0)
            break;
        done += frames;
    }
    if (fromFile - done > 0 && frames_ - (at_ + done) > kToleratedFrames)
        return Error{
            Error::Kind::Damaged,
            QCoreApplication::translate("Disc", "%1: the file ends earlier than when it was measured").arg(path_)};
    samples_.resize(std::size_t(done) * 2);
    dither_.interleave(rows_[0].data(), rows_[1].data(), samples_.data(), std::size_t(done), exact_);
    std::memcpy(out.data(), samples_.data(), samples_.size() * 2);
    std::memset(out.data() + samples_.size() * 2, 0, out.size() - samples_.size() * 2);
    at_ += wanted;
    return {};
}

} // namespace Platform
