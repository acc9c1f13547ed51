// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Disc/TrackFeed.h"

#include <QCoreApplication>

#include <algorithm>
#include <cstring>

namespace Platform {

namespace {

constexpr std::int64_t kBlockSectors = 75;
constexpr float kFastest = 52 * 176.4F; // kilobytes per second
constexpr float kSecondsStalled = 5;
constexpr float kMargin = 1.15F;
constexpr std::size_t kLeast = std::size_t(8) << 20;

} // namespace

std::size_t TrackFeed::bytesFor(float speed) {
    const float bytes = std::clamp(speed <= 0 ? kFastest : speed, 1.0F, kFastest) * 1000 * kSecondsStalled * kMargin;
    return std::max(kLeast, std::size_t(bytes));
}

TrackFeed::TrackFeed(DRLayout layout, std::size_t bytes) : layout_(std::move(layout)) {
    std::size_t all = 0;
    for (const auto& track : layout_)
        all += std::size_t(track->sectors());
    const std::size_t sectors = std::clamp<std::size_t>(bytes / CDFormat::kBytesPerSector, kBlockSectors,
                                                        std::max<std::size_t>(all, kBlockSectors));
    ring_.resize(sectors * CDFormat::kBytesPerSector);
}

TrackFeed::~TrackFeed() {
    cancel();
    if (thread_.joinable())
        thread_.join();
}

bool TrackFeed::fill() {
    if (!thread_.joinable())
        thread_ = std::thread([this] { decode(); });
    std::unique_lock lock(mutex_);
    changed_.wait(lock, [this] { return cancelled_ || ended_ || written_ - taken_ == ring_.size(); });
    return !cancelled_ && !error_;
}

void TrackFeed::decode() {
    Error error;
    std::vector<std::byte> block(std::size_t(kBlockSectors * CDFormat::kBytesPerSector));
    for (const auto& each : layout_) {
        const auto track = std::dynamic_pointer_cast<AudioTrack>(each);
        const auto renderer =
            track ? track->renderer()
                  : Error{Error::Kind::NoAudio,
                          QCoreApplication::translate("Disc", "%1: is not an audio file").arg(each->path())};
        error = renderer.error();
        bool goesOn = bool(renderer);
        for (std::int64_t left = each->sectors(); goesOn && left > 0; left -= kBlockSectors) {
            const auto sectors = std::min(left, kBlockSectors);
            const auto part = std::span(block).first(std::size_t(sectors * CDFormat::kBytesPerSector));
            error = (*renderer)->render(part).error();
            goesOn = !error && put(part);
        }
        if (!goesOn)
            break;
    }
    const std::lock_guard lock(mutex_);
    error_ = error;
    ended_ = true;
    changed_.notify_all();
}

bool TrackFeed::put(std::span<const std::byte> block) {
    while (!block.empty()) {
        std::size_t at = 0;
        std::size_t count = 0;
        {
            std::unique_lock lock(mutex_);
            changed_.wait(lock, [this] { return cancelled_ || written_ - taken_ < ring_.size(); });
            if (cancelled_)
                return false;
            at = written_ % ring_.size();
            count = std::min({block.size(), ring_.size() - (written_ - taken_), ring_.size() - at});
        }
        // The reader does not touch the free part of the ring.
        std::memcpy(ring_.data() + at, block.data(), count);
        block = block.subspan(count);
        const std::lock_guard lock(mutex_);
        written_ += count;
        changed_.notify_all();
    }
    return true;
}

bool TrackFeed::take(std::span<std::byte> out) {
    std::unique_lock lock(mutex_);
    if (written_ - taken_ < out.size() && !ended_ && !cancelled_) {
        ++waits_;
        changed_.wait(lock, [&] { return cancelled_ || ended_ || written_ - taken_ >= out.size(); });
    }
    if (cancelled_ || written_ - taken_ < out.size())
        return false;
    for (std::size_t done = 0; done < out.size();) {
        const std::size_t at = (taken_ + done) % ring_.size();
        const std::size_t count = std::min(out.size() - done, ring_.size() - at);
        std::memcpy(out.data() + done, ring_.data() + at, count);
        done += count;
    }
    taken_ += out.size();
    changed_.notify_all();
    return true;
}

void TrackFeed::cancel() {
    const std::lock_guard lock(mutex_);
    cancelled_ = true;
    changed_.notify_all();
}

Error TrackFeed::error() const {
    const std::lock_guard lock(mutex_);
    return error_;
}

std::size_t TrackFeed::waits() const {
    const std::lock_guard lock(mutex_);
    return waits_;
}

} // namespace Platform
