// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Audio/AudioTypes.h"

#include <functional>

#include <QString>

namespace Platform {

/// A hardware output unit that is used for input only: it captures one device and calls back once a cycle.
///
/// Each step that can fail is a method of its own. The steps before start() may come in any sensible order and run on
/// the main thread. The callback runs on the unit's own I/O thread (not the sound server's data thread), so it may take
/// a lock or wait for a writer; what arrives meanwhile waits in the unit's ring. The unit keeps the rate, channel count
/// and buffer size that were read at configuration: a device that comes back with others is converted on the way in.
class InputUnit {
public:
    /// Told once a cycle. @p refCon is what was set with it. The data is fetched with render().
    using RenderCallback = OSStatus (*)(void* refCon, std::uint32_t* actionFlags, const AudioTimeStamp* timeStamp,
                                        std::uint32_t busNumber, std::uint32_t frames, AudioBufferList* data);

    /// What happens to the device while the unit runs; delivered on the main thread.
    /// NothingComes: the device is there and has delivered nothing for a while; its next cycle ends that.
    enum class Event { DeviceLost, DeviceReturned, ServerLost, ServerReturned, FramesLost, NothingComes };
    using EventHandler = std::function<void(Event)>;

    /// Stops and closes: when the destructor returns, no callback runs or will run.
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

    /// Fetches the frames of the cycle at hand into @p data; only inside the callback. Sets each buffer's byte size.
    virtual OSStatus render(std::uint32_t* actionFlags, const AudioTimeStamp* timeStamp, std::uint32_t busNumber,
                            std::uint32_t frames, AudioBufferList* data) = 0;

    /// While held, the I/O thread begins no new cycle (what arrives waits in the ring). Nestable, from any thread,
    /// the unit's own callback included; returns once no cycle of *another* thread is under way.
    virtual void holdCycles() = 0;
    virtual void releaseCycles() = 0;

    /// Frames that were lost before the ring since start(): the only place where audio may be lost. Also what the
    /// device would have delivered while it or the server was away, once it is back. Any thread.
    [[nodiscard]] virtual std::uint64_t lostFrames() const = 0;
    /// Those of them that our own ring had no room for, because the I/O thread was kept from running or held for longer
    /// than the ring is deep. The others never reached us: the server missed a cycle, or the device was away.
    [[nodiscard]] virtual std::uint64_t overrunFrames() const { return 0; }
    /// Whether a lost stretch becomes silence of equal length (needed where two sources must stay together) instead of
    /// being left out. Any thread, at any time; holds for the holes that are met from then on. The time without a
    /// device or server counts as lost too.
    virtual void setFillLostFrames(bool /*on*/) {}
    /// Main thread; before start().
    virtual void setEventHandler(EventHandler handler) = 0;
    /// Why the last step failed, for people and the log. Empty when nothing did.
    [[nodiscard]] virtual QString lastError() const = 0;
};

/// Keeps a unit's I/O thread from beginning a cycle while it lives. Without a unit there is nothing to keep.
class CyclesHeld {
public:
    explicit CyclesHeld(InputUnit* unit) : unit_(unit) {
        if (unit_)
            unit_->holdCycles();
    }
    ~CyclesHeld() {
        if (unit_)
            unit_->releaseCycles();
    }
    CyclesHeld(const CyclesHeld&) = delete;
    CyclesHeld& operator=(const CyclesHeld&) = delete;

private:
    InputUnit* unit_;
};

} // namespace Platform
