// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Audio/AudioTypes.h"

#include <chrono>
#include <functional>

#include <QString>

namespace Platform {

/// A hardware output unit that is used for input only: it captures one device and calls back once per cycle.
/// Each step that can fail is a method of its own. The steps before start() may come in any sensible order and run on
/// the main thread. The callback runs on the unit's own I/O thread (not the sound server's data thread), so it may take
/// a lock or wait for a writer; meanwhile the unit's ring collects the audio. The unit keeps the rate, channel count
/// and buffer size that were read at configuration: if the device returns with other values, its audio is converted.
class InputUnit {
public:
    /// Called once per cycle. @p refCon is the pointer that was set with it. The callback fetches the data with
    /// render().
    using RenderCallback = OSStatus (*)(void* refCon, std::uint32_t* actionFlags, const AudioTimeStamp* timeStamp,
                                        std::uint32_t busNumber, std::uint32_t frames, AudioBufferList* data);

    /// Changes of the device while the unit runs; delivered on the main thread.
    /// NothingComes: the device exists but has delivered nothing for a while; its next cycle ends this state.
    enum class Event { DeviceLost, DeviceReturned, ServerLost, ServerReturned, FramesLost, NothingComes };
    using EventHandler = std::function<void(Event)>;

    /// What the cycles are needed for.
    enum class Use {
        Nothing, ///< nothing is captured, and the device may sleep
        Later,   ///< they come twice a second; holdCycles() on the main thread still takes all
        Now      ///< each comes within about a tenth of a second
    };

    /// Stops and closes. When the destructor returns, no callback runs and none will.
    virtual ~InputUnit() = default;

    virtual OSStatus setEnableInput(bool on) = 0;
    virtual OSStatus setEnableOutput(bool on) = 0;
    virtual OSStatus setCurrentDevice(AudioObjectID device) = 0;
    virtual OSStatus setInputCallback(RenderCallback callback, void* refCon) = 0;
    /// The device's own format: its rate and channel count, 32-bit float.
    virtual OSStatus getDeviceFormat(AudioStreamBasicDescription& format) = 0;
    /// The format in which render() delivers: the device's rate; 32-bit float, one buffer a channel.
    virtual OSStatus setClientFormat(const AudioStreamBasicDescription& format) = 0;
    /// Frames in one cycle. A cycle may be shorter where frames were lost, never longer.
    virtual OSStatus getBufferFrameSize(std::uint32_t& frames) = 0;
    virtual OSStatus initialize() = 0;
    virtual OSStatus start() = 0;
    /// After it returns no callback runs. May be started again.
    virtual OSStatus stop() = 0;

    /// Copies the frames of the current cycle into @p data; only inside the callback. Sets each buffer's byte size.
    virtual OSStatus render(std::uint32_t* actionFlags, const AudioTimeStamp* timeStamp, std::uint32_t busNumber,
                            std::uint32_t frames, AudioBufferList* data) = 0;

    /// While held, the I/O thread starts no new cycle; the ring collects the audio. Nestable. Any thread, also inside
    /// the unit's own callback. Returns when no cycle is running on *another* thread.
    virtual void holdCycles() = 0;
    virtual void releaseCycles() = 0;

    /// Frames lost before the ring since start(), the only place where audio may be lost. Includes the time during
    /// which the device or the server was away, once it is back. Any thread.
    [[nodiscard]] virtual std::uint64_t lostFrames() const = 0;
    /// The part of lostFrames() during which the device or the server was away. Read it after lostFrames(): it may
    /// already include a later loss. Any thread.
    [[nodiscard]] virtual std::uint64_t awayFrames() const = 0;
    /// The part of lostFrames() that our own ring had no room for, because the I/O thread did not run or was held for
    /// longer than the ring is deep. All other losses happened before the ring: the server missed a cycle, or the
    /// device was away.
    [[nodiscard]] virtual std::uint64_t overrunFrames() const { return 0; }
    /// Whether lost frames are replaced by silence of the same length (two sources that must stay aligned need this) or
    /// left out. Any thread, at any time; applies to gaps found from then on. The time without a device or server
    /// counts as lost, too.
    virtual void setFillLostFrames(bool /*on*/) {}
    /// How long captured frames stay in the ring before a cycle takes them, so that what happened in the desktop at
    /// their time is known by then. 0, the initial value, takes them soon. holdCycles() on the main thread takes all.
    /// With a delay the sound server is asked for short blocks: programs hand over their sound in such blocks, and
    /// nothing is known about the time within one. Main thread, at any time; at most a second.
    virtual void setDelay(std::chrono::milliseconds /*delay*/) {}
    /// The initial value is Use::Now. After Use::Nothing it returns when the device delivers again, at most a second
    /// later: all frames that are captured from then on are delivered. The first cycle starts anew, and the time before
    /// does not count as lost. With Use::Nothing, start() does not wait for the device. Main thread, at any time.
    virtual void setUse(Use /*use*/) {}
    /// Main thread; before start().
    virtual void setEventHandler(EventHandler handler) = 0;
    /// Why the last step failed, for the user and the log. Empty when nothing failed.
    [[nodiscard]] virtual QString lastError() const = 0;
};

/// Keeps an I/O thread from beginning a cycle while it lives. @p Source is an input unit, or an engine whose unit must
/// not be exchanged meanwhile. Null holds nothing.
template <typename Source>
class HeldCycles {
public:
    explicit HeldCycles(Source* source) : source_(source) {
        if (source_)
            source_->holdCycles();
    }
    ~HeldCycles() {
        if (source_)
            source_->releaseCycles();
    }
    HeldCycles(const HeldCycles&) = delete;
    HeldCycles& operator=(const HeldCycles&) = delete;

private:
    Source* source_;
};

} // namespace Platform
