// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Source/Record/RecordDisplay.h"
#include "Source/Record/RecordQueue.h"
#include "Source/Record/RecordSources.h"
#include "Source/Record/RecordStateController.h"
#include "Source/Record/RecordingNames.h"
#include "Source/Record/SilenceSplitter.h"

#include <QTimer>

#include <mutex>

/// One of the two things that can be recorded, with its engine.
struct RecordSource {
    std::unique_ptr<BuildInAudioRecord> engine;
    QString label;                    ///< for people
    QString rawName;                  ///< of the raw files; the number and the ending follow
    QString jobKey;                   ///< under which a job carries the raw file
    std::atomic<bool> checked{false}; ///< the check box
    std::atomic<bool> off{false};     ///< its engine did not start: this recording goes without it
    std::atomic<bool> hasFile{false}; ///< the engine writes to a raw file
    std::int64_t framesBefore = 0;    ///< frames to come that still belong to the file of before a cut

    [[nodiscard]] bool takesPart() const { return checked && !off; }
};

/// Keeps both engines from beginning a cycle. Taken before the mutex, never while it is held: an I/O thread that is
/// waited for may want the mutex.
class CycleHold {
public:
    CycleHold(BuildInAudioRecord& one, BuildInAudioRecord& other) : one_(one), other_(other) {
        one_.holdCycles();
        other_.holdCycles();
    }
    ~CycleHold() {
        other_.releaseCycles();
        one_.releaseCycles();
    }
    CycleHold(const CycleHold&) = delete;
    CycleHold& operator=(const CycleHold&) = delete;

private:
    BuildInAudioRecord& one_;
    BuildInAudioRecord& other_;
};

/// What a recording lacks.
struct RecordLosses {
    std::uint64_t frames = 0;
    double seconds = 0;
};

struct RecordStateController::Private {
    explicit Private(RecordStateController* controller) : q(controller) {}

    RecordStateController* q;
    RecordStateControllerDelegate defaultDelegate;
    RecordStateControllerDelegate* delegate = &defaultDelegate;
    RecordPreferences storedPreferences;
    RecordPreferences* preferences = &storedPreferences;

    std::unique_ptr<RecordQueue> queue; ///< outlives the engines: their files report to it
    RecordSource builtIn;
    RecordSource computer;
    std::unique_ptr<RecordSources> devices;
    QTimer recordTimerForTime_;
    std::shared_ptr<int> alive = std::make_shared<int>(0);

    std::atomic<float> builtInLevelValue_{0};
    std::atomic<float> computerLevelValue_{0};
    std::atomic<float> fRecordTime_{0};
    std::atomic<bool> isRecordPause_{false};
    std::atomic<bool> resumeTip_{false}; ///< the pause button's tool tip offers to resume
    std::atomic<bool> active_{false};    ///< the pause button's enabled state
    std::atomic<int> dropped_{0};
    std::atomic<double> closedSeconds_{0}; ///< of the files that splits have closed
    std::atomic<double> limit_{0};         ///< seconds of a recording, 0 without end

    std::mutex mutex; ///< guards the next four; never held while an I/O thread is waited for
    SilenceSplitter splitter;
    RecordLosses lostBefore_; ///< of the recording that ended last
    QString audioRecordPath_;
    RecordingNames names;

    // Main thread only.
    bool startEnabled_ = false;
    bool popUpEnabled_ = true;
    bool finishing_ = false; ///< the program is ending: what would begin now would be cut off
    bool stopShown_ = false; ///< the start button shows "Stop Record"
    RecordDisplay display_;
    QString convertTip_;
    QStringList notices_;
    std::uint64_t lostShown_ = 0;
    QString lossNotice_; ///< of the recording at hand: a growing loss is one notice, not one each time
    bool writeProblemShown_ = false;

    void onMain(std::function<void()> work);
    void changed();
    /// @param replaces the notice that this one brings up to date, if any
    void notice(const QString& text, const QString& replaces = {});
    void deviceEvent(Platform::InputUnit::Event event, const RecordSource& source);
    void showLosses();

    void setFinishing(bool finishing);
    void isRecordingFlushTheFace(bool recording);
    void startRecord();
    void stopRecord();
    void leaveUnheardRecording();
    void forgetLeftWait();
    void pauseRecord();
    void resumeRecord();
    void setPaused(bool paused);
    void cut(bool automatic);
    [[nodiscard]] bool anyEngineRecords() const;
    [[nodiscard]] RecordLosses engineLosses() const;
    void keepToLimit(RecordSource& source);

    /// What a stop or a cut leaves behind.
    struct Ending {
        std::shared_ptr<ExportJob> job;
        bool builtInTooShort = false;
        bool computerTooShort = false;
        [[nodiscard]] bool drops() const { return builtInTooShort || computerTooShort; }
    };

    // With cycles held and the mutex locked.
    [[nodiscard]] QString reserveName();
    [[nodiscard]] static QString rawPath(const RecordSource& source);
    void beginFile(RecordSource& source, bool record);
    [[nodiscard]] Ending describeEnding();
    [[nodiscard]] std::function<void(QString, OSStatus)> whenClosed(const std::shared_ptr<ExportJob>& job, bool remove);
    [[nodiscard]] std::uint64_t commonTime() const;
    void alignCut();
    bool exchangeFiles(Ending& ending);
    void armAnew();
    void endFiles(const Ending& ending, std::unique_lock<std::mutex>& lock);
};
