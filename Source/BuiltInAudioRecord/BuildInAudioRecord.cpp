// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/BuiltInAudioRecord/BuildInAudioRecord.h"

#include "Platform/Audio/AudioHardware.h"
#include "Platform/Desktop/Workspace.h"
#include "Platform/Foundation/MainQueue.h"
#include "Platform/Foundation/Services.h"

#include <QDateTime>
#include <QLoggingCategory>

#include <array>
#include <chrono>
#include <cmath>
#include <cstdlib>

using Platform::ExtAudioFileWriter;
using Platform::InputUnit;

namespace {

Q_LOGGING_CATEGORY(engineLog, "sonaphex.engine", QtInfoMsg)

constexpr OSStatus parameterError = -50;

/// Keeps the unit's I/O thread from beginning a cycle.
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

void noteFileSystemChanged(const QString& path) {
    if (auto* workspace = Platform::services().workspace)
        workspace->noteFileSystemChanged(path);
}

/// When the first frame was captured, on the clock on the wall: with QT_LOGGING_RULES="sonaphex.engine.debug=true" one
/// sees how long a start takes.
void logFirstFrame(std::uint64_t hostTime) {
    if (hostTime == 0 || !engineLog().isDebugEnabled())
        return;
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    const double ago = double(std::chrono::nanoseconds(now).count()) / 1e9 - double(hostTime) / 1e9;
    qCDebug(engineLog, "first frame captured at %.4f", double(QDateTime::currentMSecsSinceEpoch()) / 1000 - ago);
}

/// Every third sample of the first channel. Without samples the level is no number, and is passed on as it is.
float levelOf(const AudioBufferList& list) {
    const auto* samples = static_cast<const float*>(list.mBuffers[0].mData);
    const std::uint32_t count = list.mBuffers[0].mDataByteSize / 4;
    double sum = 0;
    std::uint32_t taken = 0;
    for (std::uint32_t i = 0; i < count; i += 3, ++taken)
        sum += std::fabs(samples[i]);
    return float(sum) / float(taken) * 12.0F;
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
    lastError_ = QString::fromLatin1(step);
    if (!reason.isEmpty())
        lastError_ += QStringLiteral(": ") + reason;
    return false;
}

void BuildInAudioRecord::closeUnit() {
    std::unique_ptr<InputUnit> closing;
    {
        const std::lock_guard lock(mutex_);
        if (audioUnit_)
            lostBefore_ += std::int64_t(audioUnit_->lostFrames());
        closing = std::move(audioUnit_);
        isRunning_ = false;
    }
    closing.reset(); // waits for the cycle under way, which still uses renderUnit_
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
        return fail(found ? "the input unit does not open" : "there is no input unit");
    {
        const std::lock_guard lock(mutex_);
        lastError_.clear();
        audioUnit_ = std::move(opened);
    }
    renderUnit_ = audioUnit_.get();
    InputUnit& unit = *audioUnit_;
    unit.setEventHandler(eventHandler_);
    unit.setFillLostFrames(fillLostFrames_);

    // A unit whose input cannot be switched on may still have it on.
    if (unit.setEnableInput(true) == noErr && unit.setEnableOutput(false) != noErr)
        return fail("the unit's output cannot be switched off");
    if (unit.setCurrentDevice(device) != noErr)
        return fail("the device cannot be used");
    if (unit.setInputCallback(&BuildInAudioRecord::AudioInputProc, this) != noErr)
        return fail("the device does not call back");
    if (unit.getDeviceFormat(deviceFormat_) != noErr)
        return fail("the device's format cannot be read");

    AudioStreamBasicDescription format;
    format.mSampleRate = deviceFormat_.mSampleRate;
    format.mChannelsPerFrame = std::max(2U, deviceFormat_.mChannelsPerFrame); // mono is captured as two channels
    format.mFormatID = kAudioFormatLinearPCM;
    format.mFormatFlags = kAudioFormatFlagIsFloat | kAudioFormatFlagIsPacked | kAudioFormatFlagIsNonInterleaved;
    format.mBitsPerChannel = 32;
    format.mBytesPerFrame = 4;
    format.mFramesPerPacket = 1;
    format.mBytesPerPacket = 4;
    actualOutputFormat_ = format;
    if (unit.setClientFormat(format) != noErr)
        return fail("the device's format cannot be captured");

    std::uint32_t frames = 0;
    if (unit.getBufferFrameSize(frames) != noErr)
        return fail("the device's buffer size cannot be read");
    if (unit.initialize() != noErr)
        return fail("the unit cannot be initialised");
    bufferSize_ = frames * format.mBytesPerFrame;
    audioBuffer_.reset(allocateAudioBufferList(format.mChannelsPerFrame, bufferSize_));
    if (!audioBuffer_)
        return fail("not enough memory");
    previousHostTime_ = 0;
    measuredFrames_ = 0;
    measuredNanoseconds_ = 0;
    if (unit.start() != noErr)
        return fail("the device cannot be started");
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
        return parameterError; // more than the unit promised; it would not fit
    const OSStatus status = renderUnit_->render(actionFlags, timeStamp, busNumber, frames, audioBuffer_.get());
    measureTime(*timeStamp, frames);
    const bool recording = recordStatus_ == 1;
    if (recording)
        if (const OSStatus written = writeFiles(*timeStamp, frames); written != noErr)
            return written;
    const float level = levelOf(*audioBuffer_);
    if (isRecordComputerAudio_)
        clientRecievedComputerAudioData(level);
    else
        clientRecievedBuiltInAudioData(level);
    // The delegate may have begun the recording because of this very cycle: then it is its first one.
    if (!recording && recordStatus_ == 1)
        if (const OSStatus written = writeFiles(*timeStamp, frames); written != noErr)
            return written;
    return status;
}

OSStatus BuildInAudioRecord::writeFiles(const AudioTimeStamp& timeStamp, std::uint32_t frames) {
    if (outputM4a_.writer)
        if (const OSStatus written = writeM4a(timeStamp, frames); written != noErr)
            return written;
    return outputWAV_.writer ? writeCycle(outputWAV_, 0, frames) : noErr;
}

OSStatus BuildInAudioRecord::writeM4a(const AudioTimeStamp& timeStamp, std::uint32_t frames) {
    std::uint32_t before = 0;
    if (cut_) {
        before = std::uint32_t(std::min<std::int64_t>(cut_->framesBefore, frames));
        const OSStatus written = writeCycle(outputM4a_, 0, before);
        cut_->framesBefore -= before;
        framesAccepted_ += before;
        if (cut_->framesBefore == 0)
            finishCut();
        if (written != noErr || before == frames)
            return written;
    }
    if (framesAccepted_ == 0 && frames > before)
        firstHostTime_ = timeStamp.mHostTime + std::uint64_t(before / actualOutputFormat_.mSampleRate * 1e9);
    if (const OSStatus written = writeCycle(outputM4a_, before, frames - before); written != noErr)
        return written;
    framesAccepted_ += frames - before;
    return noErr;
}

/// Hands a part of the cycle to a file.
OSStatus BuildInAudioRecord::writeCycle(Export& file, std::uint32_t first, std::uint32_t frames) {
    // A file that was begun on another device expects other buffers.
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
        const double took = double(timeStamp.mHostTime - previousHostTime_);
        const double nominal = double(previousFrames_) / actualOutputFormat_.mSampleRate * 1e9;
        // A longer gap is a device that was away, and says nothing about its clock.
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

AudioStreamBasicDescription BuildInAudioRecord::exportDescription(int type) const {
    AudioStreamBasicDescription format;
    if (type == 1) {
        format.mSampleRate = 44100;
        format.mFormatID = kAudioFormatMPEG4AAC;
        format.mFramesPerPacket = 1024;
        format.mChannelsPerFrame = 2;
    } else if (type == 0) {
        format.mSampleRate = 44100;
        format.mFormatID = kAudioFormatLinearPCM;
        format.mFormatFlags = kAudioFormatFlagIsSignedInteger | kAudioFormatFlagIsPacked;
        format.mBytesPerPacket = 8;
        format.mFramesPerPacket = 1024; // files of this program have always been described so
        format.mBytesPerFrame = 8;
        format.mChannelsPerFrame = 2;
        format.mBitsPerChannel = 32;
        (void)Platform::services().mediaFiles->completeFormat(format);
    }
    return format;
}

/// The writer, not yet made ready for frames: until then it may continue another one.
std::unique_ptr<ExtAudioFileWriter> BuildInAudioRecord::createWriter(const QString& path, int forType) {
    const std::uint32_t fileType = forType == 1 ? kAudioFileM4AType : forType == 0 ? kAudioFileWAVEType : 0;
    Platform::MediaError error;
    auto writer = Platform::services().mediaFiles->createWriter(path, fileType, exportDescription(forType),
                                                                kAudioFileFlags_EraseFile, error);
    if (!writer || writer->setClientDataFormat(actualOutputFormat_) != noErr) {
        (void)noteFailure(writer ? writer->firstError() : error, path);
        return nullptr;
    }
    if (deviceFormat_.mChannelsPerFrame == 1 && actualOutputFormat_.mChannelsPerFrame == 2 &&
        writer->hasAudioConverter()) {
        constexpr std::array<std::int32_t, 2> bothFromTheFirst{0, 0};
        (void)writer->setConverterChannelMap(bothFromTheFirst);
    }
    return writer;
}

bool BuildInAudioRecord::noteFailure(const Platform::MediaError& error, const QString& path) {
    const std::lock_guard lock(mutex_);
    lastError_ = error ? error.text : QStringLiteral("%1 cannot be written").arg(path);
    return false;
}

std::unique_ptr<ExtAudioFileWriter> BuildInAudioRecord::setOutAudioPath(const QString& path, int forType) {
    auto writer = createWriter(path, forType);
    if (writer && writer->writeAsync(0, nullptr) != noErr) {
        (void)noteFailure(writer->firstError(), path);
        return nullptr;
    }
    return writer;
}

std::unique_ptr<ExtAudioFileWriter> BuildInAudioRecord::takeWriter(Export& file) {
    const CyclesHeld held(audioUnit_.get());
    if (&file == &outputM4a_)
        finishCut();
    const std::lock_guard lock(mutex_);
    return std::move(file.writer);
}

void BuildInAudioRecord::noteClosed(const ExtAudioFileWriter& writer) {
    const auto error = writer.firstError();
    const std::lock_guard lock(mutex_);
    writeError_ = error;
}

bool BuildInAudioRecord::openExport(Export& file, const QString& path, int type) {
    {
        const std::lock_guard lock(mutex_);
        file.path = path;
    }
    if (const auto old = takeWriter(file))
        (void)old->dispose();
    auto writer = setOutAudioPath(path, type);
    const CyclesHeld held(audioUnit_.get());
    const std::lock_guard lock(mutex_);
    file.clientFormat = actualOutputFormat_;
    file.writer = std::move(writer);
    if (type == 1) {
        framesAccepted_ = 0;
        firstHostTime_ = 0;
        writeError_ = {};
    }
    return file.writer != nullptr;
}

bool BuildInAudioRecord::setOutPutAudioPath(const QString& path, int forType) {
    const int type = forType == 2 ? 1 : forType;
    {
        const std::lock_guard lock(mutex_);
        outPutFilePath_ = path;
    }
    if (type == 1)
        return openExport(outputM4a_, path, 1);
    if (type == 0)
        return openExport(outputWAV_, path, 0);
    return true;
}

bool BuildInAudioRecord::exchangeM4aFile(const QString& path, std::function<void(QString, OSStatus)> closed,
                                         std::int64_t framesBefore) {
    const CyclesHeld held(audioUnit_.get());
    finishCut();
    if (!outputM4a_.writer)
        return setOutPutAudioPath(path, 1);
    auto writer = createWriter(path, 1);
    if (!writer)
        return false;
    {
        const std::lock_guard lock(mutex_);
        cut_ = Cut{std::move(writer), std::move(closed), std::exchange(outputM4a_.path, path),
                   std::max<std::int64_t>(0, framesBefore)};
        outPutFilePath_ = path;
    }
    framesAccepted_ = -cut_->framesBefore;
    firstHostTime_ = 0;
    if (cut_->framesBefore == 0)
        finishCut();
    return true;
}

/// Exchanges the writers of a cut, now that the old file has its last frame. On the I/O thread or with cycles held.
void BuildInAudioRecord::finishCut() {
    if (!cut_)
        return;
    // A writer that cannot continue the other begins anew: the resampler's phase is lost, no frame is.
    if (outputM4a_.writer)
        (void)cut_->writer->continueFrom(*outputM4a_.writer);
    (void)cut_->writer->writeAsync(0, nullptr);
    std::unique_ptr<ExtAudioFileWriter> old;
    Cut cut;
    {
        const std::lock_guard lock(mutex_);
        cut = std::move(*cut_);
        cut_.reset();
        old = std::exchange(outputM4a_.writer, std::move(cut.writer));
        outputM4a_.clientFormat = actualOutputFormat_;
    }
    framesAccepted_ = 0;
    if (!old)
        return;
    old->disposeLater([oldPath = cut.oldPath, closed = std::move(cut.closed)](OSStatus status) {
        Platform::MainQueue::post([oldPath] { noteFileSystemChanged(oldPath); });
        if (closed)
            closed(oldPath, status);
    });
}

std::uint64_t BuildInAudioRecord::nextHostTime() const {
    if (previousHostTime_ == 0)
        return 0;
    return previousHostTime_ + std::uint64_t(previousFrames_ / actualOutputFormat_.mSampleRate * 1e9);
}

bool BuildInAudioRecord::startRecordAudio() {
    if (recordStatus_ != 0 || !audioUnit_)
        return false;
    {
        const std::lock_guard lock(mutex_);
        lostBefore_ = -std::int64_t(audioUnit_->lostFrames());
    }
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
    auto writer = takeWriter(outputM4a_);
    const QString path = outputM4aFilePath();
    closeExportFile(); // what else is open
    if (!writer)
        return false;
    noteClosed(*writer);
    writer->disposeLater([path, closed = std::move(closed)](OSStatus status) {
        Platform::MainQueue::post([path] { noteFileSystemChanged(path); });
        if (closed)
            closed(path, status);
    });
    return true;
}

bool BuildInAudioRecord::pauseRecordAudio() {
    int recording = 1;
    recordStatus_.compare_exchange_strong(recording, 2);
    return recordStatus_ != 0;
}

bool BuildInAudioRecord::resumeRecordAudio() {
    int paused = 2;
    recordStatus_.compare_exchange_strong(paused, 1);
    return recordStatus_ != 0;
}

void BuildInAudioRecord::closeExportFile() {
    if (const auto writer = takeWriter(outputM4a_)) {
        (void)writer->dispose();
        noteClosed(*writer);
        noteFileSystemChanged(outputM4aFilePath());
    }
    if (const auto writer = takeWriter(outputWAV_)) {
        (void)writer->dispose();
        noteFileSystemChanged(outputWAVFilePath());
    }
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
    const CyclesHeld held(audioUnit_.get()); // who goes hears nothing any more when this returns
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

Platform::MediaError BuildInAudioRecord::writeError() const {
    const std::lock_guard lock(mutex_);
    return outputM4a_.writer ? outputM4a_.writer->firstError() : writeError_;
}

BuildInAudioRecord::CaptureSpan BuildInAudioRecord::captureSpan() const {
    // Single cycles are stamped with some milliseconds of play: over a minute that is less than clocks differ by.
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

void BuildInAudioRecord::setEventHandler(InputUnit::EventHandler handler) {
    eventHandler_ = std::move(handler);
    if (audioUnit_ && !isRunning_)
        audioUnit_->setEventHandler(eventHandler_);
}
