// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Audio/AudioTypes.h"
#include "Platform/Audio/InputUnit.h"
#include "Platform/Foundation/Dictionary.h"
#include "Platform/Media/ExtAudioFile.h"
#include "Source/BuiltInAudioRecord/PauseSpan.h"
#include "Source/BuiltInAudioRecord/PreRoll.h"

#include <atomic>
#include <chrono>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>

#include <QVariantList>

/// Receives one level per cycle, on the engine's I/O thread. Not owned by the engine.
class BuildInAudioRecordDelegate {
public:
    virtual ~BuildInAudioRecordDelegate() = default;
    /// From an engine on an input device.
    virtual void clientRecievedBuiltInAudioData(float /*level*/) {}
    /// From the engine on the computer-audio device; a quarter of the measured level.
    virtual void clientRecievedComputerAudioData(float /*level*/) {}
};

/// The recorder engine: captures one input device and, while it records, writes the audio to one or two files.
///
/// All operations belong to the main thread, except those marked as allowed on the I/O thread. The render callback runs
/// on the input unit's I/O thread.
class BuildInAudioRecord {
public:
    /// Keys of a device descriptor.
    static inline const QString DeviceNameKey = QStringLiteral("DeviceName");
    static inline const QString DeviceIDKey = QStringLiteral("DeviceID");

    BuildInAudioRecord();
    virtual ~BuildInAudioRecord();
    BuildInAudioRecord(const BuildInAudioRecord&) = delete;
    BuildInAudioRecord& operator=(const BuildInAudioRecord&) = delete;

    /// Descriptors (DeviceName, DeviceID) of all input devices, in the system's order. A name that could not be read is
    /// an invalid value.
    [[nodiscard]] static QVariantList getAudioInPutDeviceIDs();
    /// Null when the name cannot be read.
    [[nodiscard]] static QString getDeviceNameByDeviceID(AudioObjectID device);
    /// A device whose streams cannot be queried counts as an input device.
    [[nodiscard]] static bool isInputDeviceID(AudioObjectID device);
    /// Sets input channels 1 and 2 to full volume and clears the mute of those whose volume could be set.
    static void setMaxVolume(AudioObjectID device);
    /// Whether one of input channels 1 and 2 is muted or has no volume. False when that cannot be read.
    [[nodiscard]] static bool isMuted(AudioObjectID device);

    /// Opens, configures and starts the input unit on a device; from then on it delivers levels, recording or not. When
    /// the engine already has a unit, it closes that one first. A unit whose configuration failed stays open and
    /// silent.
    virtual bool configureAudioUnit(AudioObjectID device);
    /// Whether this engine may record that device. It does not change settings of a device that it does not record.
    [[nodiscard]] virtual bool records(AudioObjectID /*device*/) const { return true; }
    /// Creates the export file: type 0 WAVE, 1 (and 2) MPEG-4 AAC; an existing file is overwritten. It stays open until
    /// its recording is stopped, another file of its type replaces it, or cleanUp() is called. False when it cannot be
    /// created.
    virtual bool setOutPutAudioPath(const QString& path, int forType);
    /// Creates the writer of such a file, in the format of exportDescription(); null on failure.
    [[nodiscard]] std::unique_ptr<Platform::ExtAudioFileWriter> setOutAudioPath(const QString& path, int forType);
    /// The data format of export type 0 or 1; all zeros for any other.
    [[nodiscard]] AudioStreamBasicDescription exportDescription(int type) const;
    /// Starts to write cycles. False while recording or paused, and without a unit. When the delegate starts it from
    /// inside a cycle, because of a sound, the file begins setPreRoll() before the first frame of that cycle that is
    /// not silent.
    virtual bool startRecordAudio();
    /// Ends the recording and closes its files; waits until they are complete. Always true.
    virtual bool stopRecordAudio();
    /// Both return whether a recording is running, paused or not.
    virtual bool pauseRecordAudio();
    virtual bool resumeRecordAudio();
    /// 0 stopped, 1 recording, 2 paused. Any thread.
    [[nodiscard]] virtual int recordStatus() const;
    [[nodiscard]] bool hasSetM4aExportFile() const;
    [[nodiscard]] bool hasSetWAVExportFile() const;
    [[nodiscard]] QString outputM4aFilePath() const;
    [[nodiscard]] QString outputWAVFilePath() const;
    [[nodiscard]] virtual QString outPutFilePath() const;
    /// Closes the open files, M4A first, waits, and notifies file browsers.
    virtual void closeExportFile();
    /// Stops the recording and closes files and unit.
    virtual void cleanUp();
    [[nodiscard]] std::int64_t currMillisecond() const;
    [[nodiscard]] bool isRecordComputerAudio() const;
    /// Selects which of the delegate's operations receives the levels. Before the unit starts.
    virtual void setIsecordComputerAudio_(bool on);
    [[nodiscard]] BuildInAudioRecordDelegate* delegate() const;
    virtual void setDelegate(BuildInAudioRecordDelegate* delegate);

    /// One buffer of @p size bytes for each channel; null when there is no memory.
    [[nodiscard]] static AudioBufferList* allocateAudioBufferList(std::uint32_t numChannels, std::uint32_t size);
    static void destroyAudioBufferList(AudioBufferList* list);

    /// Whether the unit runs: configureAudioUnit() succeeded.
    [[nodiscard]] virtual bool isRunning() const;
    /// Frames lost since the last startRecordAudio(). Any thread.
    [[nodiscard]] virtual std::uint64_t lostFrames() const;
    /// The part of lostFrames() during which the device or the server was away. Read it after lostFrames(): it may
    /// already include a later loss. Any thread.
    [[nodiscard]] virtual std::uint64_t awayFrames() const;
    /// Cycles with clipped sound, recorded or not, since the engine was created: at least three consecutive samples of
    /// a channel at full scale or above. Any thread.
    [[nodiscard]] virtual std::uint64_t clippedCycles() const;
    /// Frames that the open M4A writer accepted, at the device's rate. Any thread.
    [[nodiscard]] virtual std::int64_t framesAccepted() const;
    /// The device's rate in Hz, read at configuration; 0 before.
    [[nodiscard]] virtual double sampleRate() const;
    /// Why configureAudioUnit() or setOutPutAudioPath() failed, for the user.
    [[nodiscard]] virtual QString lastError() const;
    /// The first write error of the open M4A file, or of the one that was closed last. Any thread.
    [[nodiscard]] virtual Platform::Error writeError() const;
    /// Replaces the M4A writer with a new one at @p path during a recording: no frame is lost or repeated between the
    /// two files. Returns at once. The old file is closed on its own thread, which then calls @p closed with the old
    /// path and its status; when no file was open, it is called before this returns. The next @p framesBefore frames
    /// still belong to the old file, so that two devices can be cut at the same time; framesAccepted() is 0 until they
    /// have arrived. Allowed on the engine's I/O thread; the caller must hold the cycles of other engines. False when
    /// the new file could not be created: then the recording continues in the old one.
    virtual bool exchangeM4aFile(const QString& path, std::function<void(QString oldPath, OSStatus)> closed,
                                 std::int64_t framesBefore = 0);
    /// Pauses at a capture time, which may fall inside a cycle, so that two devices pause together; the return value
    /// and the status change at once. Call it while cycles are held; 0 means with the next cycle.
    bool pauseRecordAudioAt(std::uint64_t hostTime);
    bool resumeRecordAudioAt(std::uint64_t hostTime);
    /// Capture time at which the next cycle begins, 0 before the first cycle. Call it while cycles are held.
    [[nodiscard]] virtual std::uint64_t nextHostTime() const;
    /// Whether the current cycle is the first one after the device was away. Only inside a call of the delegate.
    [[nodiscard]] bool cycleStartsAnew() const { return cycleStartsAnew_; }
    /// stopRecordAudio() that does not wait for the M4A file: the file's own thread closes it, then calls @p closed
    /// there with the path and the file's first error. When nothing had to be closed, @p closed is not called and the
    /// result is false.
    virtual bool stopRecordAudioLater(std::function<void(QString path, OSStatus)> closed);
    /// The capture times of the current M4A file; used to align two recordings.
    struct CaptureSpan {
        std::uint64_t firstHostTime = 0; ///< capture time of its first frame; 0 before the first frame
        double measuredRate =
            0; ///< frames per second of the steady clock that the device delivered; 0 when not yet known
    };
    /// Any thread; exact only while cycles are held, or before the file is exchanged or closed.
    [[nodiscard]] virtual CaptureSpan captureSpan() const;
    /// See InputUnit::holdCycles(). The unit must not be replaced between the two calls.
    virtual void holdCycles();
    virtual void releaseCycles();
    /// See InputUnit::setFillLostFrames(); also applied to the next device. Main thread.
    virtual void setFillLostFrames(bool on);
    /// See InputUnit::setDelay(); also applied to the next device. Main thread.
    virtual void setDelay(std::chrono::milliseconds delay);
    /// See InputUnit::setUse(); also applied to the next device. Main thread.
    virtual void setUse(Platform::InputUnit::Use use);
    /// How much of the time before a first sound a recording contains; 0, the initial value, begins with the cycle of
    /// the sound. The engine then keeps that much of what the device delivers while nothing is recorded: never frames
    /// of an earlier recording, nor frames before a gap. Main thread.
    virtual void setPreRoll(std::chrono::milliseconds length);
    /// Device and server events of the unit, on the main thread.
    virtual void setEventHandler(Platform::InputUnit::EventHandler handler);

private:
    struct Export;
    static OSStatus AudioInputProc(void* refCon, std::uint32_t* actionFlags, const AudioTimeStamp* timeStamp,
                                   std::uint32_t busNumber, std::uint32_t frames, AudioBufferList* data);
    OSStatus renderCycle(std::uint32_t* actionFlags, const AudioTimeStamp* timeStamp, std::uint32_t busNumber,
                         std::uint32_t frames);
    void measureTime(const AudioTimeStamp& timeStamp, std::uint32_t frames);
    OSStatus writeFiles(const AudioTimeStamp& timeStamp, std::uint32_t frames);
    OSStatus writeFirstSound(const AudioTimeStamp& timeStamp, std::uint32_t frames);
    void keepForPreRoll(const AudioTimeStamp& timeStamp, std::uint32_t frames);
    void allocatePreRoll();
    OSStatus writePart(const AudioTimeStamp& timeStamp, std::uint32_t first, std::uint32_t frames);
    OSStatus writeM4a(const AudioTimeStamp& timeStamp, std::uint32_t first, std::uint32_t frames);
    OSStatus writeCycle(Export& file, std::uint32_t first, std::uint32_t frames);
    [[nodiscard]] std::unique_ptr<Platform::ExtAudioFileWriter> createWriter(const QString& path, int forType);
    [[nodiscard]] bool noteFailure(const Platform::Error& error, const QString& path);
    void finishCut();
    void clientRecievedBuiltInAudioData(float level);
    void clientRecievedComputerAudioData(float level);
    bool openExport(Export& file, const QString& path, int type);
    [[nodiscard]] std::unique_ptr<Platform::ExtAudioFileWriter> takeWriter(Export& file);
    /// closeExportFile(), but the writer's thread closes the M4A file; see stopRecordAudioLater().
    bool closeExportFileLater(std::function<void(QString path, OSStatus)> closed);
    void noteClosed(const Platform::ExtAudioFileWriter& writer);
    void closeUnit();
    bool fail(const char* step);

    struct BufferListDeleter {
        void operator()(AudioBufferList* list) const { destroyAudioBufferList(list); }
    };
    /// One export file. The writer is replaced on the unit's I/O thread or while that thread is held, and under the
    /// mutex: the I/O thread itself reads it without the mutex.
    struct Export {
        std::unique_ptr<Platform::ExtAudioFileWriter> writer;
        AudioStreamBasicDescription clientFormat;
        QString path;
    };

    using BufferList = std::unique_ptr<AudioBufferList, BufferListDeleter>;
    BufferList audioBuffer_;
    std::uint32_t bufferSize_ = 0; // bytes of one channel in audioBuffer_
    /// The unit that the callback uses: still valid while audioUnit_ is already null and waits for its last cycle.
    Platform::InputUnit* renderUnit_ = nullptr;
    Export outputM4a_;
    /// A cut that waits for the last frames of the old file. Changed under the same rules as a writer.
    struct Cut {
        std::unique_ptr<Platform::ExtAudioFileWriter> writer;
        std::function<void(QString, OSStatus)> closed;
        QString oldPath;
        std::int64_t framesBefore = 0;
    };
    std::optional<Cut> cut_;
    Export outputWAV_;
    QString outPutFilePath_;
    AudioStreamBasicDescription actualOutputFormat_;
    AudioStreamBasicDescription deviceFormat_;
    std::int64_t currMillisecond_ = 0;
    std::atomic<int> recordStatus_{0};
    std::atomic<BuildInAudioRecordDelegate*> delegate_{nullptr};
    std::atomic<bool> isRecordComputerAudio_{false};

    bool isRunning_ = false;
    QString lastError_;
    Platform::Error writeError_;
    Platform::InputUnit::EventHandler eventHandler_;
    bool fillLostFrames_ = false;
    std::chrono::milliseconds delay_{0};
    Platform::InputUnit::Use use_ = Platform::InputUnit::Use::Now;
    std::atomic<std::int64_t> framesAccepted_{0}; // negative while a cut waits
    std::atomic<std::uint64_t> clippedCycles_{0};
    // Added to the unit's counts to get those of the recording.
    std::int64_t lostBefore_ = 0;
    std::int64_t awayBefore_ = 0;

    // Measures the device's clock against the steady clock; written in the callback.
    std::atomic<std::uint64_t> firstHostTime_{0};
    std::atomic<std::uint64_t> measuredFrames_{0};
    std::atomic<std::uint64_t> measuredNanoseconds_{0};
    std::uint64_t previousHostTime_ = 0;
    std::uint32_t previousFrames_ = 0;
    bool cycleStartsAnew_ = false;
    PauseSpan pause_;

    // Changed while cycles are held, or before the unit starts.
    std::chrono::milliseconds preRollLength_{0};
    PreRoll preRoll_;
    BufferList preRollBuffer_;     ///< as long as a cycle; empty without a pre-roll
    double preRollSampleTime_ = 0; ///< of the frame that would follow in preRoll_

    /// Guards members that other threads read: the unit, the writers, the paths and the errors. Never held while a
    /// thread waits. A cycle only takes it when a recording starts or a file is exchanged.
    mutable std::mutex mutex_;
    std::unique_ptr<Platform::InputUnit> audioUnit_; // closed first: cycles use the other members until then
};
