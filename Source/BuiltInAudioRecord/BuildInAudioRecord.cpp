// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/BuiltInAudioRecord/BuildInAudioRecord.h"

#include "Platform/Audio/AudioHardware.h"
#include "Platform/Foundation/Services.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QLoggingCategory>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdlib>

using Platform::InputUnit;

namespace {

Q_LOGGING_CATEGORY(engineLog, "sonaphex.engine", QtInfoMsg)

constexpr OSStatus parameterError = -50;

/// Logs the wall-clock time at which the first frame was captured: with QT_LOGGING_RULES="sonaphex.engine.debug=true"
/// it shows how long a start takes.
void logFirstFrame(std::uint64_t hostTime) {
    if (hostTime == 0 || !engineLog().isDebugEnabled())
        return;
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    const double ago = double(std::chrono::nanoseconds(now).count()) / 1e9 - double(hostTime) / 1e9;
    qCDebug(engineLog, "first frame captured at %.4f", double(QDateTime::currentMSecsSinceEpoch()) / 1000 - ago);
}

/// Index of the first frame with a sample other than 0, @p frames when there is none.
std::uint32_t firstSoundIn(const AudioBufferList& list, std::uint32_t frames) {
    std::uint32_t first = frames;
    for (std::uint32_t i = 0; i < list.mNumberBuffers; ++i) {
        const auto* samples = static_cast<const float*>(list.mBuffers[i].mData);
        const auto* sound = std::find_if(samples, samples + first, [](float sample) { return sample != 0; });
        first = std::uint32_t(sound - samples);
    }
    return first;
}

/// Uses every third sample of the first channel. Without samples the level is NaN, and is passed on.
float levelOf(const AudioBufferList& list) {
    const auto* samples = static_cast<const float*>(list.mBuffers[0].mData);
    const std::uint32_t count = list.mBuffers[0].mDataByteSize / 4;
    double sum = 0;
    std::uint32_t taken = 0;
    for (std::uint32_t i = 0; i < count; i += 3, ++taken)
        sum += std::fabs(samples[i]);
    return float(sum) / float(taken) * 12.0F;
}

/// Whether three consecutive samples of a channel are at full scale. A single one can be the peak of an unclipped wave.
bool isClipped(const AudioBufferList& list) {
    constexpr float fullScale = 0.9999F; // the greatest 16-bit sample is 0.99997
    const auto isFull = [](float sample) { return std::fabs(sample) >= fullScale; };
    for (std::uint32_t i = 0; i < list.mNumberBuffers; ++i) {
        const auto* samples = static_cast<const float*>(list.mBuffers[i].mData);
        const std::size_t count = list.mBuffers[i].mDataByteSize / 4;
        // Three consecutive samples include one of every third; only its neighbours have to be looked at.
        for (std::size_t at = 2; at < count; at += 3) {
            if (!isFull(samples[at]))
                continue;
            const std::size_t end = std::min(at + 3, count);
            std::size_t run = 0;
            for (std::size_t near = at - 2; near < end && run < 3; ++near)
                run = isFull(samples[near]) ? run + 1 : 0;
            if (run == 3)
                return true;
        }
    }
    return false;
}

} // namespace

BuildInAudioRecord::BuildInAudioRecord() = default;

BuildInAudioRecord::~BuildInAudioRecord() {
    BuildInAudioRecord::cleanUp();
}

AudioBufferList* BuildInAudioRecord::allocateAudioBufferList(std::uint32_t numChannels, std::uint32_t size) {
    const std::size_t block = sizeof(AudioBufferList) + std::size_t(numChannels) * sizeof(AudioBuffer);
    auto* list = static_cast<AudioBufferList*>(std::calloc(1, block));
    if (!list)
        return nullptr;
    list->mNumberBuffers = numChannels;
    for (std::uint32_t i = 0; i < numChannels; ++i) {
        AudioBuffer& buffer = list->mBuffers[i];
        buffer.mNumberChannels = 1;
        buffer.mDataByteSize = size;
        buffer.mData = std::calloc(1, std::max(size, 1U));
        if (!buffer.mData) {
            destroyAudioBufferList(list);
            return nullptr;
        }
    }
    return list;
}

void BuildInAudioRecord::destroyAudioBufferList(AudioBufferList* list) {
    if (!list)
        return;
    for (std::uint32_t i = 0; i < list->mNumberBuffers; ++i)
        std::free(list->mBuffers[i].mData);
    std::free(list);
}

bool BuildInAudioRecord::fail(const char* step) {
    const QString reason = audioUnit_ ? audioUnit_->lastError() : Platform::services().audioHardware->lastError();
    const std::lock_guard lock(mutex_);
    lastError_ = QCoreApplication::translate("Record", step);
    if (!reason.isEmpty())
        lastError_ += QStringLiteral(": ") + reason;
    return false;
}

void BuildInAudioRecord::closeUnit() {
    std::unique_ptr<InputUnit> closing;
    {
        const std::lock_guard lock(mutex_);
        if (audioUnit_) {
            lostBefore_ += std::int64_t(audioUnit_->lostFrames());
            awayBefore_ += std::int64_t(audioUnit_->awayFrames());
        }
        closing = std::move(audioUnit_);
        isRunning_ = false;
    }
    closing.reset(); // waits for the running cycle, which still uses renderUnit_
    renderUnit_ = nullptr;
}

bool BuildInAudioRecord::configureAudioUnit(AudioObjectID device) {
    if (audioUnit_) {
        (void)audioUnit_->stop();
        closeUnit();
    }
    bool found = false;
    auto opened = Platform::services().audioHardware->openOutputUnit(found);
    if (!opened)
        return fail(found ? QT_TRANSLATE_NOOP("Record", "the input unit cannot be opened")
                          : QT_TRANSLATE_NOOP("Record", "there is no input unit"));
    {
        const std::lock_guard lock(mutex_);
        lastError_.clear();
        audioUnit_ = std::move(opened);
    }
    renderUnit_ = audioUnit_.get();
    InputUnit& unit = *audioUnit_;
    unit.setEventHandler(eventHandler_);
    unit.setFillLostFrames(fillLostFrames_);
    unit.setDelay(delay_);
    unit.setUse(use_);

    // The input may be enabled although the unit refuses to enable it.
    if (unit.setEnableInput(true) == noErr && unit.setEnableOutput(false) != noErr)
        return fail(QT_TRANSLATE_NOOP("Record", "the unit's output cannot be switched off"));
    if (unit.setCurrentDevice(device) != noErr)
        return fail(QT_TRANSLATE_NOOP("Record", "the device cannot be used"));
    if (unit.setInputCallback(&BuildInAudioRecord::AudioInputProc, this) != noErr)
        return fail(QT_TRANSLATE_NOOP("Record", "the device accepts no callback"));
    if (unit.getDeviceFormat(deviceFormat_) != noErr)
        return fail(QT_TRANSLATE_NOOP("Record", "the device's format cannot be read"));

    // A mono device is captured as two channels.
    const auto format = planarFloatFormat(deviceFormat_.mSampleRate, std::max(2U, deviceFormat_.mChannelsPerFrame));
    actualOutputFormat_ = format;
    if (unit.setClientFormat(format) != noErr)
        return fail(QT_TRANSLATE_NOOP("Record", "the device's format cannot be captured"));

    std::uint32_t frames = 0;
    if (unit.getBufferFrameSize(frames) != noErr)
        return fail(QT_TRANSLATE_NOOP("Record", "the device's buffer size cannot be read"));
    if (unit.initialize() != noErr)
        return fail(QT_TRANSLATE_NOOP("Record", "the unit cannot be initialised"));
    bufferSize_ = frames * format.mBytesPerFrame;
    audioBuffer_.reset(allocateAudioBufferList(format.mChannelsPerFrame, bufferSize_));
    if (!audioBuffer_)
        return fail(QT_TRANSLATE_NOOP("Record", "not enough memory"));
    allocatePreRoll();
    previousHostTime_ = 0;
    measuredFrames_ = 0;
    measuredNanoseconds_ = 0;
    if (unit.start() != noErr)
        return fail(QT_TRANSLATE_NOOP("Record", "the device cannot be started"));
    const std::lock_guard lock(mutex_);
    isRunning_ = true;
    return true;
}

OSStatus BuildInAudioRecord::AudioInputProc(void* refCon, std::uint32_t* actionFlags, const AudioTimeStamp* timeStamp,
                                            std::uint32_t busNumber, std::uint32_t frames, AudioBufferList*) {
    return static_cast<BuildInAudioRecord*>(refCon)->renderCycle(actionFlags, timeStamp, busNumber, frames);
}

OSStatus BuildInAudioRecord::renderCycle(std::uint32_t* actionFlags, const AudioTimeStamp* timeStamp,
                                         std::uint32_t busNumber, std::uint32_t frames) {
    if (std::uint64_t(frames) * 4 > bufferSize_)
        return parameterError; // more than the unit announced; it would not fit
    const OSStatus status = renderUnit_->render(actionFlags, timeStamp, busNumber, frames, audioBuffer_.get());
    measureTime(*timeStamp, frames);
    cycleStartsAnew_ = timeStamp->mStartsAnew;
    const bool recording = recordStatus_ == 1;
    if (recordStatus_ != 0)
        if (const OSStatus written = writeFiles(*timeStamp, frames); written != noErr)
            return written;
    if (isClipped(*audioBuffer_))
        ++clippedCycles_;
    const float level = levelOf(*audioBuffer_);
    if (isRecordComputerAudio_)
        clientRecievedComputerAudioData(level);
    else
        clientRecievedBuiltInAudioData(level);
    // The delegate may have started the recording because of this cycle, which is then its first one.
    if (!recording && recordStatus_ == 1)
        if (const OSStatus written = writeFirstSound(*timeStamp, frames); written != noErr)
            return written;
    keepForPreRoll(*timeStamp, frames);
    return status;
}

void BuildInAudioRecord::setPreRoll(std::chrono::milliseconds length) {
    if (length == preRollLength_)
        return;
    const Platform::HeldCycles held(audioUnit_.get());
    preRollLength_ = length;
    allocatePreRoll();
}

void BuildInAudioRecord::allocatePreRoll() {
    const double seconds = std::chrono::duration<double>(preRollLength_).count();
    preRoll_.allocate(actualOutputFormat_.mChannelsPerFrame,
                      std::uint32_t(std::llround(seconds * actualOutputFormat_.mSampleRate)));
    preRollBuffer_.reset(seconds > 0 ? allocateAudioBufferList(actualOutputFormat_.mChannelsPerFrame, bufferSize_)
                                     : nullptr);
}

void BuildInAudioRecord::keepForPreRoll(const AudioTimeStamp& timeStamp, std::uint32_t frames) {
    if (!preRollBuffer_)
        return;
    if (timeStamp.mStartsAnew || timeStamp.mSampleTime != preRollSampleTime_ || recordStatus_ != 0)
        preRoll_.clear();
    preRollSampleTime_ = timeStamp.mSampleTime + frames;
    if (recordStatus_ == 0)
        preRoll_.append(*audioBuffer_, frames);
}

/// Writes the pre-roll and then the cycle in which the sound begins.
OSStatus BuildInAudioRecord::writeFirstSound(const AudioTimeStamp& timeStamp, std::uint32_t frames) {
    if (!preRollBuffer_)
        return writeFiles(timeStamp, frames);
    if (timeStamp.mStartsAnew || timeStamp.mSampleTime != preRollSampleTime_)
        preRoll_.clear();
    const double rate = actualOutputFormat_.mSampleRate;
    const auto length = std::uint32_t(std::llround(std::chrono::duration<double>(preRollLength_).count() * rate));
    const std::uint32_t sound = firstSoundIn(*audioBuffer_, frames);
    const std::uint32_t skipped = sound > length ? sound - length : 0;
    const std::uint32_t cycle = bufferSize_ / 4;
    for (std::uint32_t ago = std::min(preRoll_.count(), length - (sound - skipped)); ago > 0;) {
        const std::uint32_t part = std::min(ago, cycle);
        preRoll_.copy(ago, part, *preRollBuffer_);
        AudioTimeStamp earlier = timeStamp;
        earlier.mHostTime -= std::uint64_t(ago / rate * 1e9);
        audioBuffer_.swap(preRollBuffer_);
        const OSStatus written = writePart(earlier, 0, part);
        audioBuffer_.swap(preRollBuffer_);
        if (written != noErr)
            return written;
        ago -= part;
    }
    return writePart(timeStamp, skipped, frames - skipped);
}

OSStatus BuildInAudioRecord::writeFiles(const AudioTimeStamp& timeStamp, std::uint32_t frames) {
    const auto parts = pause_.of(recordStatus_ == 2, timeStamp.mHostTime, frames, actualOutputFormat_.mSampleRate);
    if (parts.head > 0)
        if (const OSStatus written = writePart(timeStamp, 0, parts.head); written != noErr)
            return written;
    return parts.tail < frames ? writePart(timeStamp, parts.tail, frames - parts.tail) : noErr;
}

OSStatus BuildInAudioRecord::writePart(const AudioTimeStamp& timeStamp, std::uint32_t first, std::uint32_t frames) {
    if (outputM4a_.writer)
        if (const OSStatus written = writeM4a(timeStamp, first, frames); written != noErr)
            return written;
    return outputWAV_.writer ? writeCycle(outputWAV_, first, frames) : noErr;
}

OSStatus BuildInAudioRecord::writeM4a(const AudioTimeStamp& timeStamp, std::uint32_t first, std::uint32_t frames) {
    const std::uint32_t end = first + frames;
    if (cut_) {
        const auto before = std::uint32_t(std::min<std::int64_t>(cut_->framesBefore, frames));
        const OSStatus written = writeCycle(outputM4a_, first, before);
        cut_->framesBefore -= before;
        framesAccepted_ += before;
        if (cut_->framesBefore == 0)
            finishCut();
        first += before;
        if (written != noErr || first == end)
            return written;
    }
    if (framesAccepted_ == 0 && first < end)
        firstHostTime_ = timeStamp.mHostTime + std::uint64_t(first / actualOutputFormat_.mSampleRate * 1e9);
    if (const OSStatus written = writeCycle(outputM4a_, first, end - first); written != noErr)
        return written;
    framesAccepted_ += end - first;
    return noErr;
}

/// Passes a part of the cycle to a file.
OSStatus BuildInAudioRecord::writeCycle(Export& file, std::uint32_t first, std::uint32_t frames) {
    // A file that was started on another device expects another format.
    if (file.clientFormat != actualOutputFormat_)
        return parameterError;
    AudioBufferList& list = *audioBuffer_;
    const auto move = [&list](std::ptrdiff_t samples) {
        for (std::uint32_t i = 0; i < list.mNumberBuffers; ++i) {
            AudioBuffer& buffer = list.mBuffers[i];
            buffer.mData = static_cast<float*>(buffer.mData) + samples;
            buffer.mDataByteSize -= std::uint32_t(samples * 4);
        }
    };
    move(first);
    const OSStatus written = file.writer->writeAsync(frames, audioBuffer_.get());
    move(-std::ptrdiff_t(first));
    return written;
}

void BuildInAudioRecord::measureTime(const AudioTimeStamp& timeStamp, std::uint32_t frames) {
    if (previousHostTime_ != 0 && timeStamp.mHostTime > previousHostTime_) {
        const auto took = double(timeStamp.mHostTime - previousHostTime_);
        const double nominal = double(previousFrames_) / actualOutputFormat_.mSampleRate * 1e9;
        // A longer gap means that the device was away; it says nothing about the clock.
        if (std::fabs(took - nominal) < 50e6) {
            measuredFrames_ += previousFrames_;
            measuredNanoseconds_ += timeStamp.mHostTime - previousHostTime_;
        }
    }
    previousHostTime_ = timeStamp.mHostTime;
    previousFrames_ = frames;
}

void BuildInAudioRecord::clientRecievedBuiltInAudioData(float level) {
    if (auto* receiver = delegate_.load())
        receiver->clientRecievedBuiltInAudioData(level);
}

void BuildInAudioRecord::clientRecievedComputerAudioData(float level) {
    if (auto* receiver = delegate_.load())
        receiver->clientRecievedComputerAudioData(level / 4);
}

std::uint64_t BuildInAudioRecord::nextHostTime() const {
    if (previousHostTime_ == 0)
        return 0;
    return previousHostTime_ + std::uint64_t(previousFrames_ / actualOutputFormat_.mSampleRate * 1e9);
}

bool BuildInAudioRecord::startRecordAudio() {
    if (recordStatus_ != 0)
        return false;
    {
        const std::lock_guard lock(mutex_); // the first sound may start it while the unit is being closed
        if (!audioUnit_)
            return false;
        lostBefore_ = -std::int64_t(audioUnit_->lostFrames());
        awayBefore_ = -std::int64_t(audioUnit_->awayFrames());
    }
    pause_.begin(0);
    recordStatus_ = 1;
    return true;
}

bool BuildInAudioRecord::stopRecordAudio() {
    if (recordStatus_.exchange(0) != 0) {
        logFirstFrame(firstHostTime_);
        closeExportFile();
    }
    return true;
}

bool BuildInAudioRecord::stopRecordAudioLater(std::function<void(QString, OSStatus)> closed) {
    if (recordStatus_.exchange(0) == 0)
        return false;
    logFirstFrame(firstHostTime_);
    return closeExportFileLater(std::move(closed));
}

bool BuildInAudioRecord::pauseRecordAudio() {
    return pauseRecordAudioAt(0);
}

bool BuildInAudioRecord::resumeRecordAudio() {
    return resumeRecordAudioAt(0);
}

bool BuildInAudioRecord::pauseRecordAudioAt(std::uint64_t hostTime) {
    int recording = 1;
    if (recordStatus_.compare_exchange_strong(recording, 2))
        pause_.begin(hostTime);
    return recordStatus_ != 0;
}

bool BuildInAudioRecord::resumeRecordAudioAt(std::uint64_t hostTime) {
    int paused = 2;
    if (recordStatus_.compare_exchange_strong(paused, 1))
        pause_.end(hostTime);
    return recordStatus_ != 0;
}

void BuildInAudioRecord::cleanUp() {
    BuildInAudioRecord::stopRecordAudio();
    if (const auto writer = takeWriter(outputM4a_))
        (void)writer->dispose();
    if (const auto writer = takeWriter(outputWAV_))
        (void)writer->dispose();
    closeUnit();
    const std::lock_guard lock(mutex_);
    outputM4a_.path = QString();
    outputWAV_.path = QString();
}

int BuildInAudioRecord::recordStatus() const {
    return recordStatus_;
}

bool BuildInAudioRecord::hasSetM4aExportFile() const {
    const std::lock_guard lock(mutex_);
    return outputM4a_.writer != nullptr;
}

bool BuildInAudioRecord::hasSetWAVExportFile() const {
    const std::lock_guard lock(mutex_);
    return outputWAV_.writer != nullptr;
}

QString BuildInAudioRecord::outputM4aFilePath() const {
    const std::lock_guard lock(mutex_);
    return outputM4a_.path;
}

QString BuildInAudioRecord::outputWAVFilePath() const {
    const std::lock_guard lock(mutex_);
    return outputWAV_.path;
}

QString BuildInAudioRecord::outPutFilePath() const {
    const std::lock_guard lock(mutex_);
    return outPutFilePath_;
}

std::int64_t BuildInAudioRecord::currMillisecond() const {
    return currMillisecond_;
}

bool BuildInAudioRecord::isRecordComputerAudio() const {
    return isRecordComputerAudio_;
}

void BuildInAudioRecord::setIsecordComputerAudio_(bool on) {
    isRecordComputerAudio_ = on;
}

BuildInAudioRecordDelegate* BuildInAudioRecord::delegate() const {
    return delegate_;
}

void BuildInAudioRecord::setDelegate(BuildInAudioRecordDelegate* delegate) {
    const Platform::HeldCycles held(audioUnit_.get()); // when this returns, the old delegate is not called any more
    delegate_ = delegate;
}

bool BuildInAudioRecord::isRunning() const {
    const std::lock_guard lock(mutex_);
    return isRunning_;
}

std::uint64_t BuildInAudioRecord::lostFrames() const {
    const std::lock_guard lock(mutex_);
    return std::uint64_t(lostBefore_ + (audioUnit_ ? std::int64_t(audioUnit_->lostFrames()) : 0));
}

std::uint64_t BuildInAudioRecord::awayFrames() const {
    const std::lock_guard lock(mutex_);
    return std::uint64_t(awayBefore_ + (audioUnit_ ? std::int64_t(audioUnit_->awayFrames()) : 0));
}

std::uint64_t BuildInAudioRecord::clippedCycles() const {
    return clippedCycles_;
}

std::int64_t BuildInAudioRecord::framesAccepted() const {
    return std::max<std::int64_t>(0, framesAccepted_);
}

double BuildInAudioRecord::sampleRate() const {
    return actualOutputFormat_.mSampleRate;
}

QString BuildInAudioRecord::lastError() const {
    const std::lock_guard lock(mutex_);
    return lastError_;
}

Platform::Error BuildInAudioRecord::writeError() const {
    const std::lock_guard lock(mutex_);
    return outputM4a_.writer ? outputM4a_.writer->firstError() : writeError_;
}

BuildInAudioRecord::CaptureSpan BuildInAudioRecord::captureSpan() const {
    // Single time stamps are off by some milliseconds: over a minute that is less than the difference of two clocks.
    constexpr std::uint64_t longEnough = 60'000'000'000;
    const std::uint64_t nanoseconds = measuredNanoseconds_;
    return {firstHostTime_, nanoseconds < longEnough ? 0.0 : double(measuredFrames_) * 1e9 / double(nanoseconds)};
}

void BuildInAudioRecord::holdCycles() {
    if (audioUnit_)
        audioUnit_->holdCycles();
}

void BuildInAudioRecord::releaseCycles() {
    if (audioUnit_)
        audioUnit_->releaseCycles();
}

void BuildInAudioRecord::setFillLostFrames(bool on) {
    fillLostFrames_ = on;
    if (audioUnit_)
        audioUnit_->setFillLostFrames(on);
}

void BuildInAudioRecord::setDelay(std::chrono::milliseconds delay) {
    delay_ = delay;
    if (audioUnit_)
        audioUnit_->setDelay(delay);
}

void BuildInAudioRecord::setUse(InputUnit::Use use) {
    use_ = use;
    if (audioUnit_)
        audioUnit_->setUse(use);
}

void BuildInAudioRecord::setEventHandler(InputUnit::EventHandler handler) {
    eventHandler_ = std::move(handler);
    if (audioUnit_ && !isRunning_)
        audioUnit_->setEventHandler(eventHandler_);
}
