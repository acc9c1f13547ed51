// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Disc/AudioTrack.h"

#include <condition_variable>
#include <mutex>
#include <span>
#include <thread>
#include <vector>

namespace Platform {

/// Decodes the tracks of a layout one after the other, ahead of the drive that burns them, into a ring of sectors. The
/// drive draws from the ring while the disk that holds the sources stands still. One thread draws.
class TrackFeed {
public:
    /// How many bytes survive a source that stands still for five seconds at this speed (kilobytes of 1000 a second;
    /// 0 is taken for the fastest CD drives).
    [[nodiscard]] static std::size_t bytesFor(float speed);

    /// @p bytes: the ring's size at most.
    TrackFeed(DRLayout layout, std::size_t bytes);
    /// Ends the decoding thread.
    ~TrackFeed();
    TrackFeed(const TrackFeed&) = delete;
    TrackFeed& operator=(const TrackFeed&) = delete;

    /// Starts to decode, and waits until the ring is full or everything is in it. @return false after an error or a
    /// cancel()
    [[nodiscard]] bool fill();
    /// Takes the next bytes, without the pre-gaps: all of @p out, or none after an error, a cancel() or the last
    /// sector. Waits while the ring is empty.
    [[nodiscard]] bool take(std::span<std::byte> out);
    /// Lets every waiting call return. Any thread.
    void cancel();
    /// What went wrong with a source. Any thread.
    [[nodiscard]] MediaError error() const;
    /// How often take() had to wait. Any thread.
    [[nodiscard]] std::size_t waits() const;

private:
    void decode();
    [[nodiscard]] bool put(std::span<const std::byte> block);

    DRLayout layout_;
    std::vector<std::byte> ring_;
    std::thread thread_;

    mutable std::mutex mutex_; // guards what follows
    std::condition_variable changed_;
    std::size_t written_ = 0; ///< bytes since the beginning
    std::size_t taken_ = 0;
    std::size_t waits_ = 0;
    bool ended_ = false; ///< nothing more comes into the ring
    bool cancelled_ = false;
    MediaError error_;
};

} // namespace Platform
