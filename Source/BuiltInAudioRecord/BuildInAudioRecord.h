// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Audio/AudioTypes.h"
#include "Platform/Audio/InputUnit.h"
#include "Platform/Foundation/Dictionary.h"
#include "Platform/Media/ExtAudioFile.h"

#include <atomic>
#include <functional>
#include <memory>

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

    // ---- devices --------------------------------------------------------------------------------------------------
    /// Descriptors (DeviceName, DeviceID) of all devices that can capture, in the system's order. A name that could
    /// not be read is an invalid value.
    [[nodiscard]] static QVariantList getAudioInPutDeviceIDs();
    /// Null when the name cannot be read.
    [[nodiscard]] static QString getDeviceNameByDeviceID(AudioObjectID device);
    /// A device whose streams cannot be asked for counts as an input device.
    [[nodiscard]] static bool isInputDeviceID(AudioObjectID device);
    /// Sets input channels 1 and 2 to full volume and clears the mute of those whose volume could be set.
    static void setMaxVolume(AudioObjectID device);

    // ---- engine ---------------------------------------------------------------------------------------------------
    virtual bool configureAudioUnit(AudioObjectID device);
    virtual bool setOutPutAudioPath(const QString& path, int forType);
    [[nodiscard]] std::unique_ptr<Platform::ExtAudioFileWriter> setOutAudioPath(const QString& path, int forType);
    [[nodiscard]] AudioStreamBasicDescription exportDescription(int type) const;
    virtual bool startRecordAudio();
    virtual bool stopRecordAudio();
    virtual bool pauseRecordAudio();
    virtual bool resumeRecordAudio();
    [[nodiscard]] virtual int recordStatus() const;
    [[nodiscard]] bool hasSetM4aExportFile() const;
    [[nodiscard]] bool hasSetWAVExportFile() const;
    [[nodiscard]] QString outputM4aFilePath() const;
    [[nodiscard]] QString outputWAVFilePath() const;
    [[nodiscard]] virtual QString outPutFilePath() const;
    virtual void closeExportFile();
    virtual void cleanUp();
    [[nodiscard]] std::int64_t currMillisecond() const;
    [[nodiscard]] bool isRecordComputerAudio() const;
    virtual void setIsecordComputerAudio_(bool on);
    [[nodiscard]] BuildInAudioRecordDelegate* delegate() const;
    virtual void setDelegate(BuildInAudioRecordDelegate* delegate);

    [[nodiscard]] static AudioBufferList* allocateAudioBufferList(std::uint32_t numChannels, std::uint32_t size);
    static void destroyAudioBufferList(AudioBufferList* list);

    // ---- what a recording must know besides ------------------------------------------------------------------------
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
    /// Exchanges the M4A writer for a new one at @p path in the midst of a recording: no frame is lost or repeated
    /// between the two files. Returns at once; the old file is closed on its own thread, then @p closed is called there
    /// with the old path and its status. Allowed on the engine's I/O thread; cycles of other engines must be held by
    /// the caller. False when the new file could not be made: then recording goes on into the old one.
    virtual bool exchangeM4aFile(const QString& path, std::function<void(QString oldPath, OSStatus)> closed);
    /// stopRecordAudio() that does not wait for the M4A file: its own thread closes it, then calls @p closed there with
    /// the path and the first error of the file's life. When there was nothing to close, @p closed is not called and
    /// the answer is false.
    virtual bool stopRecordAudioLater(std::function<void(QString path, OSStatus)> closed) {
        const bool wasRecording = recordStatus() != 0;
        const QString path = outPutFilePath();
        stopRecordAudio();
        if (wasRecording && closed)
            closed(path, noErr);
        return wasRecording;
    }
    /// Where the M4A file at hand stands in time; from it two recordings are laid over each other.
    struct CaptureSpan {
        std::uint64_t firstHostTime = 0; ///< capture time of its first frame, 0 before that
        double measuredRate = 0; ///< frames that the device gave in a second of the steady clock; 0 when not yet known
    };
    /// Any thread; best asked while cycles are held, or before the file is exchanged or closed.
    [[nodiscard]] virtual CaptureSpan captureSpan() const { return {}; }
    /// See InputUnit::holdCycles().
    virtual void holdCycles();
    virtual void releaseCycles();
    /// Device and server events of the unit, on the main thread.
    virtual void setEventHandler(Platform::InputUnit::EventHandler handler);
};
