// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Audio/CaptureRing.h"
#include "Platform/Audio/linux/DeviceRegistry.h"

#include <atomic>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <string>
#include <vector>

namespace Platform {

/// Captures one device into a ring, and again when the device or the server was away and came back. This is the part of
/// an input unit that lives on the server's threads.
class CaptureStream final : private DeviceRegistry::Listener {
public:
    struct Target {
        AudioObjectID device = 0;
        std::uint32_t sampleRate = 0; ///< Hz; another rate of the device is converted to it on the way in
        std::uint32_t channels = 0;
        std::vector<std::uint32_t> positions;
        std::uint32_t cycleFrames = 0;
        bool hardware = false; ///< a hole in time is a hole in the audio: it has a clock of its own
    };
    enum class Change { DeviceLost, DeviceReturned, ServerLost, ServerReturned };
    /// Called on the server's loop thread.
    using Observer = std::function<void(Change)>;

    CaptureStream(std::shared_ptr<DeviceRegistry> registry, Target target, CaptureRing& ring, Observer observer);
    /// Nothing is pushed or told any more when it returns.
    ~CaptureStream() override;
    CaptureStream(const CaptureStream&) = delete;
    CaptureStream& operator=(const CaptureStream&) = delete;

    /// Connects to the device and waits, at most @p milliseconds, until it is linked. False with @p why when it is not
    /// there or refuses; it is captured all the same once it comes.
    [[nodiscard]] bool open(int milliseconds, QString& why);
    /// Blocks pushed so far, to notice a stream that runs dry. Any thread.
    [[nodiscard]] std::uint64_t blocks() const { return blocks_.load(std::memory_order_relaxed); }
    /// Whether the stream is linked and should deliver. Any thread.
    [[nodiscard]] bool streaming() const { return state_ == State::Streaming; }
    /// Begins anew with a stream that delivers nothing though its device is there. Any thread but an audio thread.
    void revive();

private:
    enum class State { Closed, Connecting, Streaming, Failed };

    // On the loop's thread.
    void deviceAppeared(const AudioDeviceInfo& device) override;
    void deviceGone(AudioObjectID device) override;
    void serverGone() override;
    void devicesKnown() override;
    void onStateChanged(pw_stream_state state, const char* error);
    void onWork();

    bool connectStream(const AudioDeviceInfo& device);
    void closeStream();
    void setState(State state, const char* error = nullptr);
    void lose(Change reason);

    void processRt() noexcept REC_NONBLOCKING;
    [[nodiscard]] std::uint64_t lostBeforeRt(const spa_io_clock& clock, std::uint64_t start) noexcept REC_NONBLOCKING;

    const std::shared_ptr<DeviceRegistry> registry_;
    const Target target_;
    CaptureRing& ring_;
    const Observer observer_;

    // On the loop's thread.
    enum class Missing { Nothing, Device, Server };
    Missing missing_ = Missing::Nothing;
    bool gone_ = false; ///< the stream lost its device and waits to be closed outside its own callback
    bool setVolume_ = false;
    std::atomic<bool> revive_{false};

    std::atomic<State> state_{State::Closed};
    std::mutex stateMutex_;
    std::condition_variable stateChanged_;
    std::string error_;

    // On the data thread; at rest between two streams.
    std::atomic<const spa_io_position*> position_{nullptr};
    std::vector<const float*> pointers_;
    std::atomic<bool> begins_{true}; ///< the next block is the first of its stream
    bool mayBeSilentStart_ = true;
    std::uint32_t clockId_ = 0;
    bool clockKnown_ = false;
    std::uint64_t expectedPosition_ = 0;
    std::uint64_t expectedNsec_ = 0;
    std::uint64_t endOfLast_ = 0; ///< host time at which the last block ended; 0 before the first
    std::atomic<std::uint64_t> blocks_{0};

    // Destroyed from the bottom up.
    PipeWire::LoopSource work_;
    PipeWire::StreamPtr stream_;
    PipeWire::Hook listener_;
};

} // namespace Platform
