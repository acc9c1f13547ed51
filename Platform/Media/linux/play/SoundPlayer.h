// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Media/ExtAudioFile.h"
#include "Platform/Media/PlayerRing.h"

#include <atomic>
#include <memory>

#include <QString>

namespace Platform {

/// One playback: a thread that decodes, a ring, and a stream of the sound server that empties it. Made to play and
/// destroyed to stop; main thread. The reader is used by the decoder's thread alone meanwhile.
class SoundPlayer {
public:
    /// @p format is the reader's client format: float, not interleaved, one or two channels.
    SoundPlayer(ExtAudioFileReader& reader, const AudioStreamBasicDescription& format);
    /// Returns when neither thread touches the reader any more.
    ~SoundPlayer();
    SoundPlayer(const SoundPlayer&) = delete;
    SoundPlayer& operator=(const SoundPlayer&) = delete;

    /// Plays from a frame on. False when no sound server takes it, with the reason in @p why.
    [[nodiscard]] bool start(std::int64_t frame, QString& why);
    void setPaused(bool paused) { paused_.store(paused, std::memory_order_relaxed); }
    void setVolume(float volume) { volume_.store(volume, std::memory_order_relaxed); }
    /// Frames until a volume that is set now is reached: one cycle of the server.
    [[nodiscard]] std::uint32_t volumeDelay() const { return cycleFrames_.load(std::memory_order_relaxed); }
    void seek(std::int64_t frame);
    [[nodiscard]] std::int64_t position() const { return ring_.position(); }
    /// Whether the last frame was heard, its way through the server included.
    [[nodiscard]] bool ended() const { return ended_.load(std::memory_order_acquire) && ring_.atEnd(); }
    /// Whether the server or the stream is gone.
    [[nodiscard]] bool lost() const { return lost_.load(std::memory_order_acquire); }
    /// Frames that were not decoded in time; silence was heard in their place and they followed later.
    [[nodiscard]] std::uint64_t lateFrames() const { return lateFrames_.load(std::memory_order_relaxed); }

private:
    struct Decoder;
    struct Connection;
    void processRt(float* interleaved, std::uint32_t frames) noexcept;

    AudioStreamBasicDescription format_;
    PlayerRing ring_;
    std::atomic<bool> paused_{false};
    std::atomic<float> volume_{1};
    std::atomic<bool> ended_{false};
    std::atomic<bool> lost_{false};
    std::atomic<std::uint64_t> lateFrames_{0};
    std::atomic<std::uint32_t> cycleFrames_{0};
    float heardVolume_ = -1; ///< audio thread; below 0 before the first cycle
    int silentCycles_ = 0;   ///< audio thread; since the last frame

    std::unique_ptr<Decoder> decoder_;
    std::unique_ptr<Connection> connection_; // destroyed first
};

} // namespace Platform
