// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Desktop/PlayerWatch.h"
#include "Source/BuiltInAudioRecord/BuildInAudioRecord.h"
#include "Source/Preferences/RecordPreferences.h"
#include "Source/Record/RecordNotice.h"
#include "Source/Record/RecordPrograms.h"
#include "Source/Record/RecordState.h"

#include <QObject>
#include <QStringList>
#include <QVariantList>

#include <functional>
#include <memory>

/// What the controller calls on the program around it. All calls are made on the main thread.
class RecordStateControllerDelegate {
public:
    virtual ~RecordStateControllerDelegate() = default;
    virtual void stopSoundPlaying() {}
    virtual void setTabViewShowWave(bool /*show*/) {}
    virtual void updateRecordStateAction() {}
    /// The default creates the entry (identity, path) and adds it to the shared library.
    virtual void addRecordFile(const QString& path, const Dictionary& tags);
    /// Whether the library has an entry of the file. The default asks the shared library.
    [[nodiscard]] virtual bool hasRecordFile(const QString& path);
    /// The user accepted the add-on prompt.
    virtual void insertTheSystemAudioRecordDevice() {}
    /// The user closed the window while nothing is recorded.
    virtual void terminate() {}
};

/// The recording side of the main window without the window: two engines, start, stop, pause, split, the display's
/// clock, and the queue that turns raw files into tagged recordings of the library. A window binds to its properties.
///
/// Main thread only, except for the level callbacks: they run on I/O threads, start an armed recording and split at
/// silences.
class RecordStateController : public QObject, public BuildInAudioRecordDelegate {
    Q_OBJECT
    // One property for each value that a window shows. The notify signals are emitted on the main thread.
    Q_PROPERTY(bool startEnabled READ isStateAudioCanStartRecord NOTIFY stateChanged)
    Q_PROPERTY(bool pauseEnabled READ isStateAudioRecord NOTIFY stateChanged)
    Q_PROPERTY(bool splitEnabled READ splitEnabled NOTIFY stateChanged)
    Q_PROPERTY(bool sourcesEnabled READ sourcesEnabled NOTIFY stateChanged)
    Q_PROPERTY(bool popUpEnabled READ popUpEnabled NOTIFY stateChanged)
    Q_PROPERTY(bool builtInChecked READ builtInChecked NOTIFY stateChanged)
    Q_PROPERTY(bool computerAudioChecked READ computerAudioChecked NOTIFY stateChanged)
    Q_PROPERTY(bool isRecordPause_ READ isRecordPause_ WRITE setIsRecordPause_ NOTIFY stateChanged)
    Q_PROPERTY(QString startToolTip READ startToolTip NOTIFY stateChanged)
    Q_PROPERTY(QString startImage READ startImage NOTIFY stateChanged)
    Q_PROPERTY(QString startPressedImage READ startPressedImage NOTIFY stateChanged)
    Q_PROPERTY(QString pauseToolTip READ pauseToolTip NOTIFY stateChanged)
    Q_PROPERTY(QString pauseImage READ pauseImage NOTIFY stateChanged)
    Q_PROPERTY(QString stateString READ stateString NOTIFY displayChanged)
    Q_PROPERTY(QString timeString READ timeString NOTIFY displayChanged)
    Q_PROPERTY(Qt::GlobalColor stateColor READ stateColor NOTIFY displayChanged)
    Q_PROPERTY(QString headline READ headline NOTIFY displayChanged)
    Q_PROPERTY(QStringList deviceNames READ deviceNames NOTIFY devicesChanged)
    Q_PROPERTY(int selectedDevice READ selectedDevice NOTIFY devicesChanged)

public:
    /// Creates an engine; tests supply their own.
    using EngineFactory = std::function<std::unique_ptr<BuildInAudioRecord>()>;

    explicit RecordStateController(EngineFactory factory = {}, QObject* parent = nullptr);
    ~RecordStateController() override;

    /// Set-up in its fixed order: engines, devices, computer audio, clock.
    void awakeFromNib();
    /// Not owned; null for the defaults.
    void setDelegate(RecordStateControllerDelegate* delegate);
    /// Settings to use instead of the stored ones; not owned, before awakeFromNib().
    void setPreferences(RecordPreferences* preferences);
    /// What to follow media players with, instead of those of the session bus; for tests. Before a recording.
    void setPlayers(Platform::PlayerWatch::Factory players);

    // The commands.
    void startAndStopRecord();
    void pauseAndResumeRecord();
    /// Closes and queues the current file and continues in a new one without a gap. Does nothing when nothing is
    /// recorded.
    void splitTheRecord();
    void chooseRecordBuiltIn(bool on);
    void chooseRecordComputerAudio(bool on);
    /// Which programs the computer-audio source takes. Ignored while something is recorded.
    void chooseRecordPrograms(const RecordPrograms& programs);
    void chooseBuiltInDevice(int index);
    /// Sets the input device to full volume and clears its mute.
    void unmuteBuiltInDevice();
    /// Shows the stored choices again, if their devices exist.
    void refreshTheFace();
    /// Always false: the window never closes. Ends the program when nothing is recorded, else shows an alert.
    bool windowShouldClose();

    /// One tick of the display's clock: 0.5 s. The clock runs from awakeFromNib() on; tests stop it and call this.
    void recordFlushTime();
    void setDisplayClockRunning(bool running);
    /// Whether somebody sees the level; initially true. Else, while nothing is recorded, it changes twice a second
    /// only.
    void setLevelSeen(bool seen);

    // The state.
    /// As shown by the buttons. An armed wait that Stop left running may record while this is Idle: recordState_()
    /// tells.
    [[nodiscard]] RecordState state() const;
    /// Status of the engine of the checked source: 0 stopped, 1 recording, 2 paused.
    [[nodiscard]] int recordState_() const;
    [[nodiscard]] bool isStateAudioCanStartRecord() const;
    [[nodiscard]] bool isStateAudioRecord() const;
    [[nodiscard]] bool isStateAudioRecordPause() const;
    [[nodiscard]] bool isRecordPause_() const;
    void setIsRecordPause_(bool paused);
    [[nodiscard]] bool canRecord() const;
    [[nodiscard]] float getAudioWaveLevelValue() const;
    /// Whether a checked source was clipped since the last call; see BuildInAudioRecord::clippedCycles().
    [[nodiscard]] bool takeClipping();
    /// "About 3 h 10 min left on this disk" while a recording runs that would fill the disk within ten hours; else
    /// empty.
    [[nodiscard]] QString roomLeft() const;
    [[nodiscard]] bool isShowWaveRecordFullTime() const;
    [[nodiscard]] bool splitEnabled() const;
    [[nodiscard]] bool sourcesEnabled() const;
    [[nodiscard]] bool popUpEnabled() const;
    [[nodiscard]] bool builtInChecked() const;
    [[nodiscard]] bool computerAudioChecked() const;
    /// The stored choice, and the programs that played lately.
    [[nodiscard]] const RecordPrograms& recordPrograms() const;
    /// "Waiting for Firefox" while a recording runs or is armed that takes only programs of which none plays; else
    /// empty.
    [[nodiscard]] QString waitingForPrograms() const;
    /// From now on, programs that play are remembered in recordPrograms(). A choice of programs does this by itself.
    void watchPrograms();
    [[nodiscard]] QString startToolTip() const;
    [[nodiscard]] QString startImage() const;
    [[nodiscard]] QString startPressedImage() const;
    [[nodiscard]] QString pauseToolTip() const;
    [[nodiscard]] QString pauseImage() const;
    [[nodiscard]] QString stateString() const;
    [[nodiscard]] QString timeString() const;
    [[nodiscard]] Qt::GlobalColor stateColor() const;
    /// See RecordDisplay::headline().
    [[nodiscard]] QString headline() const;
    /// Text of the converting notice in its current blink phase; empty until the first tick.
    [[nodiscard]] QString fileConvertTip() const;
    /// Seconds of the current file, counted by the clock.
    [[nodiscard]] float fRecordTime() const;
    /// Whether a computer-audio recording waits for its first sound.
    [[nodiscard]] bool isWaittingForSound() const;
    [[nodiscard]] QStringList deviceNames() const;
    [[nodiscard]] int selectedDevice() const;
    /// Jobs that wait or are running; the converting notice is shown while it is not 0.
    [[nodiscard]] int jobsInQueue() const;
    /// Progress of the current job, 0 to 1; negative when there is none.
    [[nodiscard]] double jobProgress() const;
    /// Seconds of frames written since the start, over all files of splits; with two sources, of the shorter one. A
    /// source whose device is lost does not count beside one that delivers.
    [[nodiscard]] double recordedSeconds() const;
    /// Stops writing each source with the cycle in which it reaches this many seconds since the start, over all files
    /// of splits: never fewer, and at most one cycle more. 0 means no limit. Call it before a start; it applies until
    /// it is changed.
    void setRecordLimit(double seconds);
    /// Whether a source has a raw file. Also true while it waits for its first sound.
    [[nodiscard]] bool hasFile() const;
    /// Why the current files cannot be written any more; empty while they can.
    [[nodiscard]] QString writeProblem() const;
    /// The index of a device in the list, -1 when it is not there.
    [[nodiscard]] int indexOfDevice(AudioObjectID device) const;
    /// Whether the computer-audio device exists.
    [[nodiscard]] bool hasComputerAudioDevice() const;
    /// The number of recordings that the filter has dropped in this process.
    [[nodiscard]] int droppedRecordings() const;
    /// Frames lost in the current recording, or in the last one: both sources, over all files of splits.
    [[nodiscard]] std::uint64_t lostFrames() const;
    /// The same in seconds.
    [[nodiscard]] double lostSeconds() const;
    /// False when a full disk or another error keeps all current files from growing. Then no time counts.
    [[nodiscard]] bool isGrowing() const;
    /// Messages for the user, newest last, one per event: lost audio, a device that disappeared, a source that is off,
    /// a disk that fills up, the place of an unfinished recording.
    [[nodiscard]] QStringList notices() const;
    [[nodiscard]] const QList<RecordNotice>& noticeList() const;
    /// The user dismissed all notices, or the one about an event.
    void dismissNotices();
    void dismissNotice(const QString& event);
    /// For a terminal: returns the sentences and removes them. The next start of the window still shows the unfinished
    /// recordings in them.
    [[nodiscard]] QStringList takeNotices();
    /// Shows a notice about unfinished recordings of earlier runs that the user has not dismissed. Called when the
    /// window starts.
    void tellUnfinishedRecordings();
    /// Finishes the recordings of processes that were killed after the recording and before their files were in the
    /// library; in the queue, with a notice for each. Called when the window or a command has started.
    void finishInterruptedRecordings();
    /// Ends a running recording and waits until all queued jobs are done or set aside (at quit or a signal).
    void finishAll();

    /// The next free name for a recording in the stored folder, reserved until its job is done. Any thread.
    [[nodiscard]] QString getAudioRecordPath();
    /// The first free name for a ringtone in the stored folder; not reserved.
    [[nodiscard]] QString nextRingtoneMakerFilePath();
    /// The initial tags of a new recording.
    [[nodiscard]] static Dictionary initID3BasicInfoDic();

    // Engine callbacks (I/O threads).
    void clientRecievedBuiltInAudioData(float level) override;
    void clientRecievedComputerAudioData(float level) override;

Q_SIGNALS:
    void stateChanged();
    void displayChanged();
    void devicesChanged();
    void queueChanged();
    /// A program began or ended to play; see watchPrograms().
    void programsChanged();
    void noticesChanged();
    /// A finished recording was added to the library (or dropped by the filter: then @p entry is empty).
    void recordingFinished(const QString& path, const Dictionary& entry);
    /// A recording could not be finished and was kept elsewhere.
    void recordingSetAside(const QString& path, const QStringList& kept);

private:
    struct Private;
    std::unique_ptr<Private> d;
};
