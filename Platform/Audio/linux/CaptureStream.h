// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Audio/CaptureRing.h"
#include "Platform/Audio/linux/DeviceRegistry.h"

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <string>
#include <vector>

namespace Platform {

/// Captures one device into a ring, and again after the device or the server was away and returned. This is the part of
/// an input unit that runs on the server's threads.
class CaptureStream final : private DeviceRegistry::Listener {
public:
    struct Target {
        AudioObjectID device = 0;
        std::uint32_t sampleRate = 0; ///< Hz; a device with another rate is converted to it
        std::uint32_t channels = 0;
        std::vector<std::uint32_t> positions;
        std::uint32_t cycleFrames = 0;
        bool hardware = false; ///< the device has a clock of its own: a gap in its times is a gap in the audio
    };
    enum class Change { DeviceLost, DeviceReturned, ServerLost, ServerReturned };
    /// Called on the server's loop thread.
    using Observer = std::function<void(Change)>;

    CaptureStream(std::shared_ptr<DeviceRegistry> registry, Target target, CaptureRing& ring, Observer observer);
    /// When it returns, nothing more is pushed and the observer is not called again.
    ~CaptureStream() override;
    CaptureStream(const CaptureStream&) = delete;
    CaptureStream& operator=(const CaptureStream&) = delete;

    /// Connects to the device and waits until it is linked, at most @p milliseconds. A session manager that refuses a
    /// listed device is asked again in that time. False with @p why when the device does not exist or was refused to
    /// the end.
    [[nodiscard]] bool open(int milliseconds, QString& why);
    /// Asks the server for short blocks, so that capture times tell more about other programs' times; also for the next
    /// connections. Takes the loop's lock.
    void setShortBlocks(bool on);
    /// Pauses the capture: the device may sleep, and the time until resume() does not count as lost. A device that
    /// returns meanwhile is reported, and not captured. Takes the loop's lock.
    void pause();
    /// Continues after pause() and waits until the device delivers, at most @p milliseconds. The next block starts
    /// anew.
    void resume(int milliseconds);
    /// Blocks pushed so far; used to notice a stream that stopped delivering. Any thread.
    [[nodiscard]] std::uint64_t blocks() const { return blocks_.load(std::memory_order_relaxed); }
    /// Whether the stream is linked and should deliver. Any thread.
    [[nodiscard]] bool streaming() const { return state_ == State::Streaming; }
    /// Reconnects a stream that delivers nothing although its device exists. Any thread but an audio thread.
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
    [[nodiscard]] std::string latency() const;
    void closeStream();
    void setState(State state, const char* error = nullptr);
    void lose(Change reason);
    void askAgainSoon();
    void setAskAgainTimer(std::chrono::milliseconds after); ///< 0: never

    void processRt() noexcept REC_NONBLOCKING;
    [[nodiscard]] std::uint64_t lostBeforeRt(const spa_io_clock& clock, std::uint64_t start) noexcept REC_NONBLOCKING;

    const std::shared_ptr<DeviceRegistry> registry_;
    const Target target_;
    CaptureRing& ring_;
    const Observer observer_;

    // On the loop's thread.
    enum class Missing { Nothing, Device, Server };
    Missing missing_ = Missing::Nothing;
    bool shortBlocks_ = false;
    bool paused_ = false;
    bool gone_ = false; ///< the stream lost its device and must be closed outside its own callback
    bool setVolume_ = false;
    bool opening_ = false; ///< open() waits: a refusal is not a loss yet
    std::chrono::milliseconds askAgainAfter_{0};
    std::atomic<bool> revive_{false};

    std::atomic<State> state_{State::Closed};
    std::mutex stateMutex_;
    std::condition_variable stateChanged_;
    std::string error_;

    // Data thread; changed elsewhere only while no stream runs.
    std::atomic<const spa_io_position*> position_{nullptr};
    std::vector<const float*> pointers_;
    std::atomic<bool> begins_{true};   ///< the next block is the first of its stream
    std::atomic<bool> resumes_{false}; ///< the next block is the first one after a pause
    bool mayBeSilentStart_ = true;
    std::uint32_t clockId_ = 0;
    bool clockKnown_ = false;
    std::uint64_t expectedPosition_ = 0;
    std::uint64_t expectedNsec_ = 0;
    std::uint64_t endOfLast_ = 0; ///< host time at which the last block ended; 0 before the first
    std::atomic<std::uint64_t> blocks_{0};

    // Destroyed in reverse order.
    PipeWire::LoopSource work_;
    PipeWire::LoopSource askAgainTimer_;
    PipeWire::StreamPtr stream_;
    PipeWire::Hook listener_;
};

} // namespace Platform
