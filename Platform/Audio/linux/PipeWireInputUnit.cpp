// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Audio/linux/PipeWireInputUnit.h"

#include "Platform/Audio/CycleAssembler.h"
#include "Platform/Foundation/Clock.h"
#include "Platform/Foundation/MainQueue.h"

#include <QCoreApplication>
#include <QThread>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <utility>

namespace Platform {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr double ringSeconds = 10;
/// Linking takes about 10 ms; on an overloaded machine it may finish after this time.
constexpr int openMs = 1000;
/// A linked stream that delivers nothing for this long is dead although no event said so. This happens when only the
/// session manager ends.
constexpr auto dryAfter = 2s;
/// When no cycle follows, the last level is shown for this long at most. Longer than two blocks and two looks.
constexpr auto silentAfter = 300ms;
/// How often the I/O thread looks into the ring. The data thread cannot wake it: that would be a system call. Nothing
/// waits for a cycle, so several are taken at once; holdCycles() takes them earlier. The window shows a level ten times
/// a second, and each wake-up costs more than the cycles that it takes. A killed recording lacks what waits here.
constexpr auto look = 100ms;
constexpr auto lookLater = 500ms; ///< for Use::Later
/// One look in vain counts as this long at most. After a standstill of the process or the machine, the first look comes
/// late and before the blocks that were on their way.
constexpr auto longestLook = lookLater;
constexpr auto catchUpAtMost = 100ms;

/// Host time a while ago.
std::uint64_t timeBefore(std::chrono::milliseconds ago) {
    const auto then = std::chrono::steady_clock::now() - ago;
    return std::uint64_t(std::chrono::nanoseconds(then.time_since_epoch()).count());
}

} // namespace

PipeWireInputUnit::PipeWireInputUnit(std::shared_ptr<DeviceRegistry> registry) : registry_(std::move(registry)) {
}

PipeWireInputUnit::~PipeWireInputUnit() {
    stop();
}

OSStatus PipeWireInputUnit::fail(OSStatus status, const QString& reason) {
    lastError_ = reason;
    return status;
}

OSStatus PipeWireInputUnit::setEnableInput(bool on) {
    inputEnabled_ = on;
    return noErr;
}

OSStatus PipeWireInputUnit::setEnableOutput(bool on) {
    return on ? fail(kAudioUnitErr_InvalidPropertyValue,
                     QCoreApplication::translate("Audio", "this unit captures only"))
              : noErr;
}

OSStatus PipeWireInputUnit::setCurrentDevice(AudioObjectID device) {
    if (stream_)
        return fail(kAudioUnitErr_CannotDoInCurrentContext,
                    QCoreApplication::translate("Audio", "the unit is running"));
    const auto info = registry_->device(device);
    if (!info)
        return fail(kAudioHardwareBadDeviceError,
                    QCoreApplication::translate("Audio", "there is no device number %1").arg(device));
    if (info->captureStreams == 0)
        return fail(
            kAudioUnitErr_InvalidPropertyValue,
            QCoreApplication::translate("Audio", "%1 has no input").arg(QString::fromStdString(info->description)));
    target_.device = device;
    target_.sampleRate = std::uint32_t(std::lround(info->sampleRate));
    target_.channels = info->channels;
    target_.positions = info->channelPositions;
    target_.cycleFrames = registry_->cycleFrames(info->sampleRate);
    target_.hardware = info->properties.contains("device.api");
    initialized_ = false;
    return noErr;
}

OSStatus PipeWireInputUnit::setInputCallback(RenderCallback callback, void* refCon) {
    if (stream_)
        return fail(kAudioUnitErr_CannotDoInCurrentContext,
                    QCoreApplication::translate("Audio", "the unit is running"));
    callback_ = callback;
    refCon_ = refCon;
    return noErr;
}

OSStatus PipeWireInputUnit::getDeviceFormat(AudioStreamBasicDescription& format) {
    if (target_.device == 0)
        return fail(kAudioUnitErr_Uninitialized, QCoreApplication::translate("Audio", "no device is set"));
    format = planarFloatFormat(target_.sampleRate, target_.channels);
    return noErr;
}

OSStatus PipeWireInputUnit::setClientFormat(const AudioStreamBasicDescription& format) {
    if (target_.device == 0)
        return fail(kAudioUnitErr_Uninitialized, QCoreApplication::translate("Audio", "no device is set"));
    const auto own = planarFloatFormat(target_.sampleRate, format.mChannelsPerFrame);
    const bool supported = format.mFormatID == own.mFormatID && format.mFormatFlags == own.mFormatFlags &&
                           format.mBitsPerChannel == own.mBitsPerChannel && format.mChannelsPerFrame >= 1 &&
                           format.mSampleRate == own.mSampleRate;
    if (!supported)
        return fail(kAudioUnitErr_FormatNotSupported,
                    QCoreApplication::translate(
                        "Audio", "the unit delivers 32-bit float, one buffer a channel, at the device's rate only"));
    return noErr;
}

OSStatus PipeWireInputUnit::getBufferFrameSize(std::uint32_t& frames) {
    if (target_.device == 0)
        return fail(kAudioUnitErr_Uninitialized, QCoreApplication::translate("Audio", "no device is set"));
    frames = target_.cycleFrames;
    return noErr;
}

OSStatus PipeWireInputUnit::initialize() {
    if (target_.device == 0 || !callback_)
        return fail(kAudioUnitErr_Uninitialized,
                    QCoreApplication::translate("Audio", "no device or no callback is set"));
    if (!inputEnabled_)
        return fail(kAudioUnitErr_Uninitialized, QCoreApplication::translate("Audio", "the input is not enabled"));
    if (stream_)
        return fail(kAudioUnitErr_CannotDoInCurrentContext,
                    QCoreApplication::translate("Audio", "the unit is running"));
    initialized_ = true;
    return noErr;
}

OSStatus PipeWireInputUnit::start() {
    if (!initialized_)
        return fail(kAudioUnitErr_Uninitialized, QCoreApplication::translate("Audio", "the unit is not initialised"));
    if (stream_)
        return noErr;
    ring_ = std::make_unique<CaptureRing>(target_.channels, std::size_t(ringSeconds * target_.sampleRate));
    stream_ = std::make_unique<CaptureStream>(registry_, target_, *ring_, [this](CaptureStream::Change change) {
        switch (change) {
        case CaptureStream::Change::DeviceLost:
            return tell(Event::DeviceLost);
        case CaptureStream::Change::DeviceReturned:
            return tell(Event::DeviceReturned);
        case CaptureStream::Change::ServerLost:
            return tell(Event::ServerLost);
        case CaptureStream::Change::ServerReturned:
            return tell(Event::ServerReturned);
        }
    });
    stream_->setShortBlocks(delay_.load() > 0ms);
    QString why;
    if (use_ == Use::Nothing)
        stream_->pause();
    // A device that is not needed now may be linked later.
    if (!stream_->open(use_ == Use::Nothing ? 0 : openMs, why)) {
        stream_.reset();
        return fail(kAudioHardwareNotRunningError, why);
    }
    stopping_ = false;
    ioThread_ = std::thread([this] { runCycles(); });
    return noErr;
}

OSStatus PipeWireInputUnit::stop() {
    if (ioThread_.joinable()) {
        {
            std::lock_guard guard(cycleMutex_);
            stopping_ = true;
        }
        cycleChanged_.notify_all();
        ioThread_.join();
    }
    stream_.reset();
    return noErr;
}

void PipeWireInputUnit::setDelay(std::chrono::milliseconds delay) {
    delay_ = delay;
    if (stream_)
        stream_->setShortBlocks(delay > 0ms);
}

void PipeWireInputUnit::setUse(Use use) {
    Use before{};
    {
        std::lock_guard guard(cycleMutex_);
        before = use_.exchange(use);
    }
    if (use == before)
        return;
    cycleChanged_.notify_all();
    if (stream_ && use == Use::Nothing)
        stream_->pause();
    else if (stream_ && before == Use::Nothing)
        stream_->resume(openMs);
}

void PipeWireInputUnit::tell(Event event) {
    alive_.post([this, event] {
        if (handler_)
            handler_(event);
    });
}

void PipeWireInputUnit::setEventHandler(EventHandler handler) {
    handler_ = std::move(handler);
}

std::uint64_t PipeWireInputUnit::lostFrames() const {
    return ring_ ? ring_->lostFrames() : 0;
}

std::uint64_t PipeWireInputUnit::awayFrames() const {
    return ring_ ? ring_->awayFrames() : 0;
}

std::uint64_t PipeWireInputUnit::overrunFrames() const {
    return ring_ ? ring_->overrunFrames() : 0;
}

void PipeWireInputUnit::runCycles() {
    CycleAssembler assembler(*ring_, target_.sampleRate, target_.cycleFrames);
    std::uint64_t seenBlocks = 0;
    std::uint64_t toldLost = 0;
    lastLookAt_ = std::chrono::steady_clock::now();
    withoutBlocks_ = 0s;
    std::uint64_t asked = 0;
    for (;;) {
        CaptureCycle cycle;
        const Use use = use_;
        // The device is gone: deliver the incomplete cycle, the rest will not arrive.
        const bool ended = !stream_->streaming();
        // A command that waits, and the end of the device, take everything.
        const auto delay = ended || catchUpsDone_ != asked ? 0ms : delay_.load();
        while (assembler.next(cycle, fillLost_, ended, delay == 0ms ? CycleAssembler::AnyTime : timeBefore(delay))) {
            if (!runCycle(assembler, cycle))
                return;
        }
        const std::uint64_t seenBefore = seenBlocks;
        watch(seenBlocks, toldLost);
        std::unique_lock lock(cycleMutex_);
        if (std::exchange(catchUpsDone_, asked) != asked)
            cycleChanged_.notify_all();
        const auto isWoken = [&] { return stopping_ || catchUpsAsked_ != asked || use_ != use; };
        // What was on its way when the capture was paused is still taken.
        if (use == Use::Nothing && seenBlocks == seenBefore)
            cycleChanged_.wait(lock, isWoken);
        else
            cycleChanged_.wait_for(lock, use == Use::Later ? lookLater : look, isWoken);
        if (stopping_)
            return;
        asked = catchUpsAsked_;
        if (use == Use::Nothing)
            withoutBlocks_ = 0s;
    }
}

void PipeWireInputUnit::catchUp(std::unique_lock<std::mutex>& lock) {
    const std::uint64_t wanted = ++catchUpsAsked_;
    cycleChanged_.notify_all();
    cycleChanged_.wait_for(lock, catchUpAtMost, [&] { return catchUpsDone_ >= wanted; });
}

bool PipeWireInputUnit::runCycle(const CycleAssembler& assembler, const CaptureCycle& cycle) {
    {
        std::unique_lock lock(cycleMutex_);
        cycleChanged_.wait(lock, [this] { return stopping_ || holds_ == 0; });
        if (stopping_)
            return false;
        inCycle_ = true;
        ioThreadId_ = std::this_thread::get_id();
    }
    current_ = &assembler;
    currentFrames_ = cycle.frames;
    {
        const HostTimeScope scope(cycle.hostTime);
        const AudioTimeStamp timeStamp = {
            .mHostTime = cycle.hostTime, .mSampleTime = double(cycle.sampleTime), .mStartsAnew = cycle.startsAnew};
        std::uint32_t actionFlags = 0;
        callback_(refCon_, &actionFlags, &timeStamp, 1, cycle.frames, nullptr);
    }
    current_ = nullptr;
    {
        std::lock_guard guard(cycleMutex_);
        inCycle_ = false;
    }
    cycleChanged_.notify_all();
    return true;
}

void PipeWireInputUnit::watch(std::uint64_t& seenBlocks, std::uint64_t& toldLost) {
    if (const auto lost = ring_->lostFrames(); lost != toldLost) {
        toldLost = lost;
        tell(Event::FramesLost);
    }
    const auto now = std::chrono::steady_clock::now();
    withoutBlocks_ += std::min<std::chrono::duration<double>>(now - std::exchange(lastLookAt_, now), longestLook);
    if (const auto blocks = stream_->blocks(); blocks != seenBlocks) {
        seenBlocks = blocks;
        withoutBlocks_ = 0s;
        toldNothingComes_ = false;
        return;
    }
    const auto cycle = std::chrono::duration<double>(double(target_.cycleFrames) / target_.sampleRate);
    if (!toldNothingComes_ && withoutBlocks_ > std::max<std::chrono::duration<double>>(silentAfter, 2 * cycle)) {
        toldNothingComes_ = true;
        tell(Event::NothingComes);
    }
    if (withoutBlocks_ > dryAfter) {
        withoutBlocks_ = 0s;
        stream_->revive();
    }
}

OSStatus PipeWireInputUnit::render(std::uint32_t*, const AudioTimeStamp*, std::uint32_t, std::uint32_t frames,
                                   AudioBufferList* data) {
    if (!current_ || !data)
        return kAudioUnitErr_CannotDoInCurrentContext;
    frames = std::min(frames, currentFrames_);
    for (std::uint32_t i = 0; i < data->mNumberBuffers; ++i) {
        AudioBuffer& buffer = (&data->mBuffers[0])[i];
        buffer.mDataByteSize = frames * std::uint32_t(sizeof(float));
        if (!buffer.mData)
            continue;
        // A mono device fills every requested channel; of other devices, missing channels are silent.
        const std::uint32_t source = target_.channels == 1 ? 0 : i;
        if (source < target_.channels)
            std::memcpy(buffer.mData, current_->channel(source), buffer.mDataByteSize);
        else
            std::memset(buffer.mData, 0, buffer.mDataByteSize);
    }
    return noErr;
}

void PipeWireInputUnit::holdCycles() {
    std::unique_lock lock(cycleMutex_);
    if (holds_ == 0 && QThread::currentThread() == QCoreApplication::instance()->thread() && ioThread_.joinable())
        catchUp(lock);
    ++holds_;
    if (!inCycle_ || ioThreadId_ != std::this_thread::get_id())
        cycleChanged_.wait(lock, [this] { return !inCycle_; });
}

void PipeWireInputUnit::releaseCycles() {
    {
        std::lock_guard guard(cycleMutex_);
        --holds_;
    }
    cycleChanged_.notify_all();
}

} // namespace Platform
