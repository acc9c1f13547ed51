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

/// Decodes the tracks of a layout one after the other into a ring of sectors, ahead of the drive that burns them. The
/// ring keeps the drive supplied while the disk with the source files is slow. One reader thread.
class TrackFeed {
public:
    /// The ring size that bridges five seconds without new data at this speed (kilobytes of 1000 bytes per second; 0
    /// means the speed of the fastest CD drives).
    [[nodiscard]] static std::size_t bytesFor(float speed);

    /// @p bytes: the largest size of the ring.
    TrackFeed(DRLayout layout, std::size_t bytes);
    /// Ends the decoding thread.
    ~TrackFeed();
    TrackFeed(const TrackFeed&) = delete;
    TrackFeed& operator=(const TrackFeed&) = delete;

    /// Starts to decode, and waits until the ring is full or everything is decoded. @return false after an error or a
    /// cancel()
    [[nodiscard]] bool fill();
    /// Takes the next bytes, without the pre-gaps: all of @p out, or nothing after an error, a cancel() or the last
    /// sector. Waits while the ring is empty.
    [[nodiscard]] bool take(std::span<std::byte> out);
    /// Makes every waiting call return. Any thread.
    void cancel();
    /// The first error of a source. Any thread.
    [[nodiscard]] Error error() const;
    /// How often take() had to wait. Any thread.
    [[nodiscard]] std::size_t waits() const;

private:
    void decode();
    [[nodiscard]] bool put(std::span<const std::byte> block);

    DRLayout layout_;
    std::vector<std::byte> ring_;
    std::thread thread_;

    mutable std::mutex mutex_; // guards the members below
    std::condition_variable changed_;
    std::size_t written_ = 0; ///< bytes since the beginning
    std::size_t taken_ = 0;
    std::size_t waits_ = 0;
    bool ended_ = false; ///< no more data will be written to the ring
    bool cancelled_ = false;
    Error error_;
};

} // namespace Platform
