// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "CaptureComputerAudio/ComputerAudioClaim.h"
#include "Platform/Foundation/MainQueue.h"
#include "Platform/Foundation/Result.h"
#include "Source/Record/RecordDisplay.h"
#include "Source/Record/RecordNotices.h"
#include "Source/Record/RecordQueue.h"
#include "Source/Record/RecordRoom.h"
#include "Source/Record/RecordSources.h"
#include "Source/Record/RecordStateController.h"
#include "Source/Record/RecordTracks.h"
#include "Source/Record/RecordingNames.h"
#include "Source/Record/SilenceSplitter.h"

#include <QElapsedTimer>
#include <QThreadPool>
#include <QTimer>

#include <array>
#include <mutex>

/// One of the two sources of a recording, with its engine.
struct RecordSource {
    std::unique_ptr<BuildInAudioRecord> engine;
    QString label;                    ///< for the user, as the beginning of a sentence
    QString labelInSentence;          ///< the same within a sentence
    QString rawName;                  ///< of the raw files; the number and the extension follow
    QString jobKey;                   ///< key of the raw file in a job
    std::atomic<bool> checked{false}; ///< state of the check box
    std::atomic<bool> off{false};     ///< its engine did not start: this recording is made without it
    std::atomic<bool> hasFile{false}; ///< the engine has a raw file
    std::atomic<bool> heard{false};   ///< the raw file contains at least one frame
    std::int64_t framesBefore = 0;    ///< frames to come that still belong to the file before a cut
    bool away = false;                ///< the device or the server is lost now; guarded by the mutex
    bool wasAway = false;             ///< it was lost during the current file; guarded by the mutex
    std::uint64_t awaySince = 0;      ///< host time; 0 while it is present; main thread
    double awaySeconds = 0;           ///< in this recording, without the present absence; main thread

    std::atomic<std::uint64_t> silentSince{0}; ///< capture time, 0 while there is sound or nothing is recorded
    std::atomic<bool> sounded{false};          ///< this recording contains a sound of it
    bool silenceShown = false;                 ///< main thread
    std::uint64_t clippedCyclesSeen = 0;       ///< by takeClipping(); main thread

    [[nodiscard]] bool takesPart() const { return checked && !off; }
    /// Whether the engine is recording or paused, and has a file.
    [[nodiscard]] bool writes() const { return hasFile && engine->recordStatus() != 0; }
    /// Length of the current file.
    [[nodiscard]] double seconds() const;
};

/// The frames that a recording lost.
struct RecordLosses {
    std::uint64_t frames = 0;
    double seconds = 0;
    /// The parts while the computer was too busy. The rest is the time in which a device or the server was away.
    std::uint64_t busyFrames = 0;
    double busySeconds = 0;

    RecordLosses& operator+=(const RecordLosses& other) {
        frames += other.frames;
        seconds += other.seconds;
        busyFrames += other.busyFrames;
        busySeconds += other.busySeconds;
        return *this;
    }
};

struct RecordStateController::Private {
    explicit Private(RecordStateController* controller) : q(controller) {}

    /// Numbers the raw files; never restarts in a process. Changed under a controller's mutex.
    static inline std::atomic<int> recordNum{0};

    RecordStateController* q;
    RecordStateControllerDelegate defaultDelegate;
    RecordStateControllerDelegate* delegate = &defaultDelegate;
    RecordPreferences storedPreferences;
    RecordPreferences* preferences = &storedPreferences;

    std::unique_ptr<RecordQueue> queue; ///< outlives the engines: their files report to it
    std::array<RecordSource, 2> sources;
    RecordSource& builtIn = sources[0];
    RecordSource& computer = sources[1];
    std::unique_ptr<RecordSources> devices;
    QTimer recordTimerForTime_;
    /// Posted work is dropped when this was destroyed. I/O threads copy it, so it must not change while the object
    /// lives.
    const Platform::MainQueue::WhileAlive alive;

    std::atomic<RecordState> state{RecordState::Idle};
    std::atomic<bool> isRecordPause_{false};
    std::atomic<float> builtInLevelValue_{0};
    std::atomic<float> computerLevelValue_{0};
    std::atomic<float> fRecordTime_{0};
    std::atomic<int> dropped_{0};
    std::atomic<double> closedSeconds_{0}; ///< of the files that splits have closed
    std::atomic<double> limit_{0};         ///< seconds of a recording; 0 means no limit
    RecordingNames names;

    std::mutex mutex; ///< guards the next three; never held while waiting for an I/O thread
    SilenceSplitter splitter;
    RecordLosses lostBefore_; ///< of the closed files of the current or last recording
    QString audioRecordPath_; ///< of the current recording; empty when a job has taken it over

    RecordTracks tracks; ///< what media players play meanwhile

    // Main thread only.
    bool popUpEnabled_ = true;
    RecordDisplay display_;
    QString convertTip_;
    RecordPrograms programs_;
    ComputerAudioClaim claim_;    ///< held while computer audio is recorded or armed
    bool programsChosen_ = false; ///< the driver has got a choice from here
    bool programsWatched_ = false;
    QElapsedTimer programsSent_; ///< since the driver got another choice
    bool levelSeen_ = true;
    RecordNotices notices_;
    std::uint64_t lostShown_ = 0;
    RecordRoom room_;
    int ticksToRoom_ = 0;     ///< until the disks are queried again
    int roomStage_ = 0;       ///< how many limits of free space were passed; see followRoom()
    double roomSeconds_ = -1; ///< until the disk is full; -1 when not yet known
    bool writeProblemShown_ = false;
    std::uint64_t fullSince_ = 0; ///< host time; 0 while the disk is not full
    qint64 fullBytes_ = -1;       ///< free bytes when the disk became full; -1 when not yet known

    /// Counts the starts: a notice of an earlier recording that arrives late is not shown. Any thread.
    std::atomic<int> recordingNumber_{0};

    void onMain(std::function<void()> work);
    void changed();
    void notice(RecordNotice notice);
    void queueNotice(const RecordNotice& message);
    void withdrawNotice(const QString& event);
    void deviceEvent(Platform::InputUnit::Event event, RecordSource& source);
    void showLosses();
    void showWriteProblem();
    void showSilences();
    [[nodiscard]] bool isSilentTooLong(const RecordSource& source) const;
    [[nodiscard]] RecordNotice silenceNotice(const RecordSource& source) const;
    void lookForRoom();
    void followRoom(const RecordRoom::Room& room);
    void continueAfterFullDisk();
    /// The first error of the current files.
    [[nodiscard]] Platform::Error writeError() const;
    [[nodiscard]] bool grows() const;
    void keepAwake();
    void setUses();

    /// Whether the buttons show a recording: it is armed, recording or paused.
    [[nodiscard]] bool isActive() const;
    void changeState(RecordState from, RecordState to);
    void isRecordingFlushTheFace(bool recording);
    void startRecord();
    void stopRecord();
    void leaveWaitRunning();
    void discardHiddenWait();
    void endHiddenRecording();
    void discardWait();
    void pauseRecord();
    void resumeRecord();
    void setPaused(bool paused);
    enum class Cut { ByHand, AtSilence, AtTrack };
    /// @p time is a capture time, soon or just gone; 0 cuts at once.
    void cut(Cut why, std::uint64_t time = 0);
    void beginTracks();
    void endTracks();
    void delayCycles();
    void followTracks(float level, std::uint64_t now);
    [[nodiscard]] bool resumeWithNewTrack();
    [[nodiscard]] bool anyEngineRecords() const;
    [[nodiscard]] double secondsAtHand() const;
    [[nodiscard]] RecordLosses engineLosses() const;
    void followCycle(RecordSource& source);
    static void followSilence(RecordSource& source, float level, std::uint64_t now);

    /// How the file of one source ends.
    struct FileEnding {
        bool tooShort = false; ///< shorter than the filter allows
        bool unheard = false;  ///< it contains no frame, and the recording is made without it
        [[nodiscard]] bool isDeleted() const { return tooShort || unheard; }
    };
    /// The files that a stop or a cut ends.
    struct Ending {
        std::shared_ptr<ExportJob> job;
        std::array<FileEnding, 2> files; ///< in source order
        [[nodiscard]] bool drops() const;
        /// Whether no source had a file.
        [[nodiscard]] bool isEmpty() const;
    };

    [[nodiscard]] QString recordFolder() const;
    void applyPreRoll();
    void readPrograms();
    [[nodiscard]] bool applyPrograms(int patienceMs);
    void keepPrograms();
    void releaseClaim();
    void forgetPreRoll();
    [[nodiscard]] QString whyNoPrograms();
    // With cycles held and the mutex locked.
    [[nodiscard]] static QString rawPath(const RecordSource& source);
    /// The event of the notice about a source that is off.
    [[nodiscard]] static QString offEvent(const RecordSource& source);
    void beginFile(RecordSource& source, bool record);
    [[nodiscard]] Ending describeEnding();
    [[nodiscard]] std::function<void(QString, OSStatus)> whenClosed(const std::shared_ptr<ExportJob>& job, bool remove);
    [[nodiscard]] std::uint64_t commonTime() const;
    void alignCut(std::uint64_t time);
    bool exchangeFiles(Ending& ending);
    void armAnew();
    void endFiles(const Ending& ending, std::unique_lock<std::mutex>& lock);
    void nameNextFile();

    QThreadPool namesWorker; ///< destroyed first: waits for a running search
};

/// Keeps both engines from starting a cycle. Take it before the mutex, never while holding the mutex: the I/O thread
/// that it waits for may need the mutex.
class CycleHold {
public:
    explicit CycleHold(std::array<RecordSource, 2>& sources)
        : one_(sources[0].engine.get()), other_(sources[1].engine.get()) {}

private:
    Platform::HeldCycles<BuildInAudioRecord> one_;
    Platform::HeldCycles<BuildInAudioRecord> other_;
};
