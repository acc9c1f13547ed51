// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Media/ExtAudioFile.h"
#include "Platform/Media/PlayerRing.h"

#include <atomic>
#include <memory>

#include <QString>

namespace Platform {

/// One playback: a decoding thread, a ring, and a stream of the sound server that reads the ring. Created to play and
/// destroyed to stop; main thread. Meanwhile only the decoding thread uses the reader.
class SoundPlayer {
public:
    static constexpr double kSecondsAhead = 0.75;

    /// @p format is the reader's client format: float, not interleaved, one or two channels. @p ahead: seconds that are
    /// decoded in advance.
    SoundPlayer(ExtAudioFileReader& reader, const AudioStreamBasicDescription& format, double ahead = kSecondsAhead);
    /// Returns when neither thread uses the reader any more.
    ~SoundPlayer();
    SoundPlayer(const SoundPlayer&) = delete;
    SoundPlayer& operator=(const SoundPlayer&) = delete;

    /// Plays from a frame on. False when the sound server is missing or refuses, with the reason in @p why.
    [[nodiscard]] bool start(std::int64_t frame, QString& why);
    void setPaused(bool paused) { paused_.store(paused, std::memory_order_relaxed); }
    void setVolume(float volume) { volume_.store(volume, std::memory_order_relaxed); }
    /// Frames until a new volume takes effect: one cycle of the server.
    [[nodiscard]] std::uint32_t volumeDelay() const { return cycleFrames_.load(std::memory_order_relaxed); }
    void seek(std::int64_t frame);
    [[nodiscard]] std::int64_t position() const { return ring_.position(); }
    /// Whether the last frame was played, including its way through the server.
    [[nodiscard]] bool ended() const { return ended_.load(std::memory_order_acquire) && ring_.atEnd(); }
    /// Whether the server or the stream is gone.
    [[nodiscard]] bool lost() const { return lost_.load(std::memory_order_acquire); }
    /// Frames that were not decoded in time; silence was played instead and they followed later.
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
    float heardVolume_ = -1; ///< audio thread; negative before the first cycle
    int silentCycles_ = 0;   ///< audio thread; count since the last frame

    std::unique_ptr<Decoder> decoder_;
    std::unique_ptr<Connection> connection_; // destroyed first
};

} // namespace Platform
