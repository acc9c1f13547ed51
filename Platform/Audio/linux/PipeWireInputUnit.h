// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Audio/InputUnit.h"
#include "Platform/Audio/linux/CaptureStream.h"
#include "Platform/Foundation/MainQueue.h"

#include <QObject>
#include <chrono>
#include <memory>
#include <thread>

namespace Platform {

class CycleAssembler;
struct CaptureCycle;

/// An input unit on the sound server: a stream fills a ring, and a thread of the unit empties it cycle by cycle.
class PipeWireInputUnit final : public InputUnit {
public:
    explicit PipeWireInputUnit(std::shared_ptr<DeviceRegistry> registry);
    ~PipeWireInputUnit() override;

    OSStatus setEnableInput(bool on) override;
    OSStatus setEnableOutput(bool on) override;
    OSStatus setCurrentDevice(AudioObjectID device) override;
    OSStatus setInputCallback(RenderCallback callback, void* refCon) override;
    OSStatus getDeviceFormat(AudioStreamBasicDescription& format) override;
    OSStatus setClientFormat(const AudioStreamBasicDescription& format) override;
    OSStatus getBufferFrameSize(std::uint32_t& frames) override;
    OSStatus initialize() override;
    OSStatus start() override;
    OSStatus stop() override;
    OSStatus render(std::uint32_t* actionFlags, const AudioTimeStamp* timeStamp, std::uint32_t busNumber,
                    std::uint32_t frames, AudioBufferList* data) override;
    /// On the main thread, first delivers the cycles that were captured already: a command that stops, pauses or cuts a
    /// recording takes effect at the time at which it is given.
    void holdCycles() override;
    void releaseCycles() override;
    std::uint64_t lostFrames() const override;
    std::uint64_t awayFrames() const override;
    std::uint64_t overrunFrames() const override;
    void setFillLostFrames(bool on) override { fillLost_ = on; }
    void setDelay(std::chrono::milliseconds delay) override;
    void setUse(Use use) override;
    void setEventHandler(EventHandler handler) override;
    QString lastError() const override { return lastError_; }

private:
    OSStatus fail(OSStatus status, const QString& reason);
    void tell(Event event);
    void runCycles();
    /// Waits for the end of a hold, then runs the callback. False when the unit stops.
    bool runCycle(const CycleAssembler& assembler, const CaptureCycle& cycle);
    /// Has the I/O thread take what is in the ring, and waits for it, at most a tenth of a second. Not on an I/O
    /// thread: two of them could wait for each other.
    void catchUp(std::unique_lock<std::mutex>& lock);
    void watch(std::uint64_t& seenBlocks, std::uint64_t& toldLost);

    const std::shared_ptr<DeviceRegistry> registry_;
    QString lastError_;
    bool inputEnabled_ = false;
    RenderCallback callback_ = nullptr;
    void* refCon_ = nullptr;
    CaptureStream::Target target_;
    bool initialized_ = false;
    EventHandler handler_;
    std::atomic<bool> fillLost_{false};
    std::atomic<Use> use_{Use::Now};
    std::atomic<std::chrono::milliseconds> delay_{std::chrono::milliseconds(0)};

    std::mutex cycleMutex_;
    std::condition_variable cycleChanged_;
    int holds_ = 0;
    bool inCycle_ = false;
    bool stopping_ = false;
    std::uint64_t catchUpsAsked_ = 0;
    std::uint64_t catchUpsDone_ = 0;
    std::thread::id ioThreadId_;

    // The current cycle; I/O thread.
    const CycleAssembler* current_ = nullptr;
    std::uint32_t currentFrames_ = 0;
    std::chrono::steady_clock::time_point lastLookAt_;
    std::chrono::duration<double> withoutBlocks_{}; ///< for how long the looks have found no new block
    bool toldNothingComes_ = false;

    // Shut down in this order: the thread, the stream, the ring.
    std::unique_ptr<CaptureRing> ring_;
    std::unique_ptr<CaptureStream> stream_;
    std::thread ioThread_;
    /// Receiver of posted events; destroying it drops those that are pending. Main thread.
    MainQueue::WhileAlive alive_;
};

} // namespace Platform
