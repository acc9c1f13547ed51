// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Audio/AudioTypes.h"
#include "Platform/Audio/InputUnit.h"
#include "Platform/Foundation/Dictionary.h"
#include "Platform/Media/ExtAudioFile.h"
#include "Source/BuiltInAudioRecord/PauseSpan.h"

#include <atomic>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>

#include <QVariantList>

/// Receives one level a cycle, on the engine's I/O thread. Not owned by the engine.
class BuildInAudioRecordDelegate {
public:
    virtual ~BuildInAudioRecordDelegate() = default;
    /// From an engine on an input device.
    virtual void clientRecievedBuiltInAudioData(float /*level*/) {}
    /// From the engine on the computer-audio device; a quarter of the measured level.
    virtual void clientRecievedComputerAudioData(float /*level*/) {}
};

/// The recorder engine: captures one input device and, while it records, writes what it hears to one or two files.
///
/// The operations belong to the main thread, but for those that are named as allowed on the I/O thread. The render
/// callback runs on the input unit's I/O thread.
class BuildInAudioRecord {
public:
    /// Keys of a device descriptor.
    static inline const QString DeviceNameKey = QStringLiteral("DeviceName");
    static inline const QString DeviceIDKey = QStringLiteral("DeviceID");

    BuildInAudioRecord();
    virtual ~BuildInAudioRecord();
    BuildInAudioRecord(const BuildInAudioRecord&) = delete;
    BuildInAudioRecord& operator=(const BuildInAudioRecord&) = delete;

    /// Descriptors (DeviceName, DeviceID) of all devices that can capture, in the system's order. A name that could
    /// not be read is an invalid value.
    [[nodiscard]] static QVariantList getAudioInPutDeviceIDs();
    /// Null when the name cannot be read.
    [[nodiscard]] static QString getDeviceNameByDeviceID(AudioObjectID device);
    /// A device whose streams cannot be asked for counts as an input device.
    [[nodiscard]] static bool isInputDeviceID(AudioObjectID device);
    /// Sets input channels 1 and 2 to full volume and clears the mute of those whose volume could be set.
    static void setMaxVolume(AudioObjectID device);

    /// Opens, configures and starts the input unit on a device; from then on levels arrive, whatever is recorded. On an
    /// engine that has a unit it moves to the other device. A unit that failed midway stays open and silent.
    virtual bool configureAudioUnit(AudioObjectID device);
    /// Whether this engine may record that device. Nothing of one that it does not record is changed.
    [[nodiscard]] virtual bool records(AudioObjectID /*device*/) const { return true; }
    /// Creates the export file: type 0 WAVE, 1 (and 2) MPEG-4 AAC; an existing file is overwritten. It stays open until
    /// it is recorded and stopped, replaced by another of its type, or cleaned up. False when it cannot be created.
    virtual bool setOutPutAudioPath(const QString& path, int forType);
    /// Creates the writer of such a file, in the format of exportDescription(); null on failure.
    [[nodiscard]] std::unique_ptr<Platform::ExtAudioFileWriter> setOutAudioPath(const QString& path, int forType);
    /// The data format of export type 0 or 1; all zeros for any other.
    [[nodiscard]] AudioStreamBasicDescription exportDescription(int type) const;
    /// Begins to write cycles. False while recording or paused, and without a unit.
    virtual bool startRecordAudio();
    /// Ends the recording and closes its files; waits until they are whole. Always true.
    virtual bool stopRecordAudio();
    /// Both answer whether a recording is under way, paused or not.
    virtual bool pauseRecordAudio();
    virtual bool resumeRecordAudio();
    /// 0 stopped, 1 recording, 2 paused. Any thread.
    [[nodiscard]] virtual int recordStatus() const;
    [[nodiscard]] bool hasSetM4aExportFile() const;
    [[nodiscard]] bool hasSetWAVExportFile() const;
    [[nodiscard]] QString outputM4aFilePath() const;
    [[nodiscard]] QString outputWAVFilePath() const;
    [[nodiscard]] virtual QString outPutFilePath() const;
    /// Closes the open files, M4A first, waits, and lets file browsers know.
    virtual void closeExportFile();
    /// Stops the recording and closes files and unit.
    virtual void cleanUp();
    [[nodiscard]] std::int64_t currMillisecond() const;
    [[nodiscard]] bool isRecordComputerAudio() const;
    /// Says which of the delegate's operations hears the levels. Before the unit starts.
    virtual void setIsecordComputerAudio_(bool on);
    [[nodiscard]] BuildInAudioRecordDelegate* delegate() const;
    virtual void setDelegate(BuildInAudioRecordDelegate* delegate);

    /// One buffer of @p size bytes for each channel; null when there is no memory.
    [[nodiscard]] static AudioBufferList* allocateAudioBufferList(std::uint32_t numChannels, std::uint32_t size);
    static void destroyAudioBufferList(AudioBufferList* list);

    /// Whether the unit runs: configureAudioUnit() came to its end.
    [[nodiscard]] virtual bool isRunning() const;
    /// Frames lost since the last startRecordAudio(). Any thread.
    [[nodiscard]] virtual std::uint64_t lostFrames() const;
    /// Frames, at the device's rate, that the open M4A writer took. Any thread.
    [[nodiscard]] virtual std::int64_t framesAccepted() const;
    /// The device's rate in Hz that was read at configuration, 0 before.
    [[nodiscard]] virtual double sampleRate() const;
    /// Why configureAudioUnit() or setOutPutAudioPath() failed, for people.
    [[nodiscard]] virtual QString lastError() const;
    /// The first thing that went wrong in writing the open M4A file, or the one that was closed last. Any thread.
    [[nodiscard]] virtual Platform::MediaError writeError() const;
    /// Exchanges the M4A writer for a new one at @p path in the midst of a recording: no frame is lost or repeated
    /// between the two files. Returns at once; the old file is closed on its own thread, then @p closed is called there
    /// with the old path and its status; when no file was open, it is called before this returns. @p framesBefore of
    /// the frames that come next still belong to the old file, so that two devices can be cut at one time;
    /// framesAccepted() is 0 until they have come. Allowed on the engine's I/O thread; cycles of other engines must be
    /// held by the caller. False when the new file could not be made: then recording goes on into the old one.
    virtual bool exchangeM4aFile(const QString& path, std::function<void(QString oldPath, OSStatus)> closed,
                                 std::int64_t framesBefore = 0);
    /// The same at one capture time, which may fall inside a cycle: two devices pause together, though the answers and
    /// the status change at once. While cycles are held; 0 is with the next cycle.
    bool pauseRecordAudioAt(std::uint64_t hostTime);
    bool resumeRecordAudioAt(std::uint64_t hostTime);
    /// Capture time at which the next cycle begins, 0 when none has come yet. While cycles are held.
    [[nodiscard]] virtual std::uint64_t nextHostTime() const;
    /// Whether the cycle at hand is the first after a time without the device. Only inside a call of the delegate.
    [[nodiscard]] bool cycleStartsAnew() const { return cycleStartsAnew_; }
    /// stopRecordAudio() that does not wait for the M4A file: its own thread closes it, then calls @p closed there with
    /// the path and the first error of the file's life. When there was nothing to close, @p closed is not called and
    /// the answer is false.
    virtual bool stopRecordAudioLater(std::function<void(QString path, OSStatus)> closed);
    /// Where the M4A file at hand stands in time; from it two recordings are laid over each other.
    struct CaptureSpan {
        std::uint64_t firstHostTime = 0; ///< capture time of its first frame, 0 before that
        double measuredRate = 0; ///< frames that the device gave in a second of the steady clock; 0 when not yet known
    };
    /// Any thread; best asked while cycles are held, or before the file is exchanged or closed.
    [[nodiscard]] virtual CaptureSpan captureSpan() const;
    /// See InputUnit::holdCycles(). The unit must not be exchanged between the two.
    virtual void holdCycles();
    virtual void releaseCycles();
    /// See InputUnit::setFillLostFrames(); kept for the next device too. Main thread.
    virtual void setFillLostFrames(bool on);
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
    OSStatus writePart(const AudioTimeStamp& timeStamp, std::uint32_t first, std::uint32_t frames);
    OSStatus writeM4a(const AudioTimeStamp& timeStamp, std::uint32_t first, std::uint32_t frames);
    OSStatus writeCycle(Export& file, std::uint32_t first, std::uint32_t frames);
    [[nodiscard]] std::unique_ptr<Platform::ExtAudioFileWriter> createWriter(const QString& path, int forType);
    [[nodiscard]] bool noteFailure(const Platform::MediaError& error, const QString& path);
    void finishCut();
    void clientRecievedBuiltInAudioData(float level);
    void clientRecievedComputerAudioData(float level);
    bool openExport(Export& file, const QString& path, int type);
    [[nodiscard]] std::unique_ptr<Platform::ExtAudioFileWriter> takeWriter(Export& file);
    /// closeExportFile() that leaves the M4A file to its writer's thread; see stopRecordAudioLater().
    bool closeExportFileLater(std::function<void(QString path, OSStatus)> closed);
    void noteClosed(const Platform::ExtAudioFileWriter& writer);
    void closeUnit();
    bool fail(const char* step);

    struct BufferListDeleter {
        void operator()(AudioBufferList* list) const { destroyAudioBufferList(list); }
    };
    /// One export file. The writer is exchanged on the unit's I/O thread or while that thread is held, and under the
    /// mutex: the I/O thread itself reads it without.
    struct Export {
        std::unique_ptr<Platform::ExtAudioFileWriter> writer;
        AudioStreamBasicDescription clientFormat;
        QString path;
    };

    std::unique_ptr<AudioBufferList, BufferListDeleter> audioBuffer_;
    std::uint32_t bufferSize_ = 0; // bytes of one channel in audioBuffer_
    /// What the callback renders with: still valid while audioUnit_, already null, waits for its last cycle to end.
    Platform::InputUnit* renderUnit_ = nullptr;
    Export outputM4a_;
    /// A cut that waits for the last frames of the old file. Changed like a writer.
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
    Platform::MediaError writeError_;
    Platform::InputUnit::EventHandler eventHandler_;
    bool fillLostFrames_ = false;
    std::atomic<std::int64_t> framesAccepted_{0}; // below 0 while a cut waits
    std::int64_t lostBefore_ = 0;                 // what a unit's own count is off by, against that of the recording

    // The device's clock against the steady one; written in the callback.
    std::atomic<std::uint64_t> firstHostTime_{0};
    std::atomic<std::uint64_t> measuredFrames_{0};
    std::atomic<std::uint64_t> measuredNanoseconds_{0};
    std::uint64_t previousHostTime_ = 0;
    std::uint32_t previousFrames_ = 0;
    bool cycleStartsAnew_ = false;
    PauseSpan pause_;

    /// Guards what other threads ask for: the unit, the writers, the paths and the errors. Never held while anything
    /// waits. A cycle takes it only where a recording begins or a file is exchanged.
    mutable std::mutex mutex_;
    std::unique_ptr<Platform::InputUnit> audioUnit_; // closed first: until then cycles use the rest
};

/// Keeps one engine from beginning a cycle while it lives. Its unit must not be exchanged meanwhile.
class HeldCycles {
public:
    explicit HeldCycles(BuildInAudioRecord& engine) : engine_(engine) { engine_.holdCycles(); }
    ~HeldCycles() { engine_.releaseCycles(); }
    HeldCycles(const HeldCycles&) = delete;
    HeldCycles& operator=(const HeldCycles&) = delete;

private:
    BuildInAudioRecord& engine_;
};
