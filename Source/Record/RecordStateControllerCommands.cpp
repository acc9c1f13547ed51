// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The commands of the record state controller, and its work in each cycle of the engines.
#include "Platform/Foundation/Clock.h"
#include "Platform/Foundation/FileManager.h"
#include "Platform/Foundation/Services.h"
#include "Source/Record/CutOffRecordings.h"
#include "Source/Record/RecordStateControllerPrivate.h"

#include <QCoreApplication>

#include <algorithm>
#include <chrono>
#include <optional>

using namespace Qt::StringLiterals;

void RecordStateController::startAndStopRecord() {
    if (d->state == RecordState::Finishing)
        return;
    d->delegate->stopSoundPlaying();
    d->delegate->setTabViewShowWave(true);
    if (d->isActive()) {
        if (recordState_() != 0) {
            d->stopRecord();
            d->endTracks();
        } else {
            d->leaveWaitRunning();
        }
        d->isRecordingFlushTheFace(false);
    } else {
        d->startRecord();
        if (d->isActive())
            d->beginTracks();
        d->isRecordingFlushTheFace(d->isActive());
    }
    d->delegate->updateRecordStateAction();
}

void RecordStateController::pauseAndResumeRecord() {
    if (isRecordPause_())
        d->resumeRecord();
    else
        d->pauseRecord();
}

void RecordStateController::splitTheRecord() {
    d->cut(Private::Cut::ByHand);
}

double RecordStateController::recordedSeconds() const {
    const std::scoped_lock lock(d->mutex); // a cut moves seconds from the files to closedSeconds_
    return d->closedSeconds_ + d->secondsAtHand();
}

std::uint64_t RecordStateController::lostFrames() const {
    const std::scoped_lock lock(d->mutex);
    return d->lostBefore_.frames + d->engineLosses().frames;
}

double RecordStateController::lostSeconds() const {
    const std::scoped_lock lock(d->mutex);
    return d->lostBefore_.seconds + d->engineLosses().seconds;
}

void RecordStateController::setRecordLimit(double seconds) {
    d->limit_ = seconds;
}

bool RecordStateController::hasFile() const {
    return d->builtIn.hasFile || d->computer.hasFile;
}

QString RecordStateController::getAudioRecordPath() {
    return d->names.getAudioRecordPath(d->recordFolder());
}

QString RecordStateController::nextRingtoneMakerFilePath() {
    return RecordingNames::nextRingtoneMakerFilePath(d->preferences->value(Settings::ringtoneSavePath).toString());
}

void RecordStateController::finishAll() {
    d->endHiddenRecording();
    if (d->isActive())
        d->isRecordingFlushTheFace(false);
    d->showLosses();
    // Hot keys and requests of other processes still arrive while the files are finished. They must not start a
    // recording: it would be cut off.
    d->state = RecordState::Finishing;
    d->changed();
    // A QEventLoop would return at once when the program is already quitting.
    while (d->queue->count() > 0)
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents | QEventLoop::WaitForMoreEvents);
    d->state = RecordState::Idle;
    d->changed();
}

void RecordStateController::clientRecievedBuiltInAudioData(float level) {
    d->builtInLevelValue_ = level;
    Private::followSilence(d->builtIn, level, Platform::services().clock->hostTime());
    d->followCycle(d->builtIn);
}

void RecordStateController::clientRecievedComputerAudioData(float level) {
    const std::uint64_t now = Platform::services().clock->hostTime();
    d->computerLevelValue_ = level;
    bool soundBegan = false;
    bool wantsCut = false;
    {
        const std::scoped_lock lock(d->mutex);
        if (d->computer.engine->cycleStartsAnew())
            d->splitter.restartClock();
        d->splitter.measure(level, now, recordState_() == 1);
        soundBegan = d->splitter.soundBegins(level);
        if (soundBegan) {
            d->computer.engine->startRecordAudio();
            d->changeState(RecordState::Armed, RecordState::Recording);
        }
        wantsCut = d->splitter.wantsCut(g_SplitTimeMS, d->builtIn.takesPart());
    }
    if (soundBegan)
        d->changed();
    if (wantsCut)
        d->cut(Private::Cut::AtSilence);
    d->followTracks(level, now);
    Private::followSilence(d->computer, level, now);
    d->followCycle(d->computer);
}

/// Called once per cycle on the source's I/O thread.
void RecordStateController::Private::followSilence(RecordSource& source, float level, std::uint64_t now) {
    const bool isSilent = level < SilenceSplitter::AudibleLevel;
    if (source.engine->recordStatus() != 1 || !isSilent)
        source.silentSince = 0;
    else if (source.silentSince == 0)
        source.silentSince = now;
    if (source.engine->recordStatus() == 1 && !isSilent)
        source.sounded = true;
}

/// Called once per cycle on the source's I/O thread. No frame is written after the limit, however late the main thread
/// stops the recording.
void RecordStateController::Private::followCycle(RecordSource& source) {
    if (!source.writes())
        return;
    if (!source.heard && source.engine->framesAccepted() > 0) {
        source.heard = true;
        CutOffRecordings::add(source.engine->outPutFilePath());
    }
    const double limit = limit_;
    if (limit > 0 && closedSeconds_ + source.seconds() >= limit)
        source.engine->pauseRecordAudio();
}

bool RecordStateController::Private::isActive() const {
    const RecordState now = state;
    return now == RecordState::Armed || now == RecordState::Recording || now == RecordState::Paused;
}

/// Does nothing in any state other than @p from.
void RecordStateController::Private::changeState(RecordState from, RecordState to) {
    state.compare_exchange_strong(from, to);
}

void RecordStateController::Private::isRecordingFlushTheFace(bool recording) {
    if (!recording)
        state = RecordState::Idle;
    popUpEnabled_ = !recording;
    changed();
    devices->setRecording(recording);
}

void RecordStateController::Private::startRecord() {
    endHiddenRecording();
    applyPreRoll();
    devices->setRecording(false); // handles devices that left while an armed wait was still recording
    ++recordingNumber_;
    notices_.beginRecording();
    // Before cycles are held: the search may take long on a slow share.
    const QString path = names.getAudioRecordPath(recordFolder());
    claim_.release();
    const QString whyNoComputer = computer.checked ? whyNoPrograms() : QString();
    const CycleHold hold(sources);
    const std::scoped_lock lock(mutex);
    audioRecordPath_ = path;
    fRecordTime_ = 0;
    closedSeconds_ = 0;
    lostBefore_ = {};
    lostShown_ = 0;
    writeProblemShown_ = false;
    fullSince_ = 0;
    ticksToRoom_ = 0;
    roomStage_ = 0;
    roomSeconds_ = -1;
    for (RecordSource& source : sources) {
        source.off = false;
        source.away = source.wasAway = false;
        source.awaySince = 0;
        source.awaySeconds = 0;
        source.silentSince = 0;
        source.sounded = false;
        source.silenceShown = false;
    }
    if (builtIn.checked)
        beginFile(builtIn, true);
    if (!whyNoComputer.isEmpty()) {
        computer.off = true;
        notice({.text = QCoreApplication::translate("RecordStateController", "%1 is off: %2.")
                            .arg(computer.label, whyNoComputer),
                .event = offEvent(computer)});
    } else if (computer.checked) {
        beginFile(computer, builtIn.takesPart());
        if (!builtIn.takesPart() && computer.takesPart())
            splitter.arm();
    }
    // Two sources are mixed later. Silence in place of lost frames keeps them aligned.
    const bool both = builtIn.takesPart() && computer.takesPart();
    for (RecordSource& source : sources)
        source.engine->setFillLostFrames(both);
    ++recordNum;
    if (builtIn.takesPart() || computer.takesPart()) {
        state = splitter.isWaitting() ? RecordState::Armed : RecordState::Recording;
        return;
    }
    // The window must not show a recording.
    names.giveBack(audioRecordPath_);
    if (!whyNoComputer.isEmpty() && !builtIn.checked) {
        claim_.release();
        return;
    }
    for (const RecordSource& source : sources)
        withdrawNotice(offEvent(source));
    const bool canChoose = builtIn.checked && !devices->deviceNames().isEmpty();
    const QString why = builtIn.engine->lastError();
    QString text = QCoreApplication::translate("Record", "The input device does not deliver. Nothing is recorded.");
    if (!builtIn.checked)
        text = QCoreApplication::translate("Record", "Computer audio does not deliver. Nothing is recorded.");
    else if (devices->deviceNames().isEmpty())
        text = QCoreApplication::translate("Record", "There is no input device. Nothing is recorded.");
    else if (!why.isEmpty())
        text = QCoreApplication::translate("Record", "The input device does not deliver (%1). Nothing is recorded.")
                   .arg(why);
    notice({.text = text,
            .help = canChoose ? RecordNotice::Help::ChooseDevice : RecordNotice::Help::None,
            .event = u"source"_s});
}

/// Only computer audio waits for a first sound. Its engine keeps the pre-roll from the program's start on, so that a
/// recording that is armed and begins at once has one too.
void RecordStateController::Private::applyPreRoll() {
    const int length = Platform::intValue(preferences->value(Settings::preRollMS));
    computer.engine->setPreRoll(std::chrono::milliseconds(std::clamp(length, 0, Settings::LongestPreRollMS)));
}

/// A stop before the first sound: the wait continues and keeps its name and its open file. A recording that never had a
/// source gives its name back.
void RecordStateController::Private::leaveWaitRunning() {
    {
        const std::scoped_lock lock(mutex);
        // Without the lock the first sound could start the recording between the two checks.
        if (!splitter.isWaitting() && !anyEngineRecords())
            names.giveBack(audioRecordPath_);
    }
    setPaused(false);
}

/// A wait that Stop left running ends when its device leaves: closing the engine also closes its file.
void RecordStateController::Private::discardHiddenWait() {
    {
        const std::scoped_lock lock(mutex);
        if (isActive() || anyEngineRecords())
            return;
        discardWait();
    }
    endTracks();
}

/// Gives the name of a wait back and deletes its raw file, which contains no frame. With the mutex locked, while no
/// engine records.
void RecordStateController::Private::discardWait() {
    if (splitter.isWaitting()) {
        names.giveBack(audioRecordPath_);
        computer.hasFile = false;
        (void)Platform::FileManager::removeFile(computer.engine->outPutFilePath());
    }
    splitter.clear();
}

/// Ends every recording, including one that the window does not show: an armed wait that Stop left running may have
/// started to record. A wait without sound is discarded. The first sound may come at any moment; recording starts under
/// the mutex, so after this no wait is left that could start to record.
void RecordStateController::Private::endHiddenRecording() {
    bool records = true;
    {
        const std::scoped_lock lock(mutex);
        records = anyEngineRecords();
        if (!records)
            discardWait();
    }
    if (records)
        stopRecord();
    endTracks();
}

void RecordStateController::Private::pauseRecord() {
    const CycleHold hold(sources);
    const std::uint64_t time = commonTime();
    for (RecordSource& source : sources)
        if (source.checked)
            source.engine->pauseRecordAudioAt(time);
    setPaused(true);
}

void RecordStateController::Private::resumeRecord() {
    const CycleHold hold(sources);
    if (resumeWithNewTrack())
        return;
    const std::uint64_t time = commonTime();
    for (RecordSource& source : sources)
        if (source.checked)
            source.engine->resumeRecordAudioAt(time);
    setPaused(false);
}

/// Pausing an armed recording pauses nothing, but the buttons show it.
void RecordStateController::Private::setPaused(bool paused) {
    if (paused)
        changeState(RecordState::Recording, RecordState::Paused);
    else
        changeState(RecordState::Paused, RecordState::Recording);
    q->setIsRecordPause_(paused);
}

bool RecordStateController::Private::anyEngineRecords() const {
    return builtIn.engine->recordStatus() != 0 || computer.engine->recordStatus() != 0;
}

/// Seconds in the current files: of the shorter one when both sources write. A source whose device is lost, or that has
/// no frame yet, does not count beside one that delivers: it may never deliver again. With the mutex locked.
double RecordStateController::Private::secondsAtHand() const {
    std::optional<double> delivered;
    double standing = 0;
    for (const RecordSource& source : sources) {
        if (!source.writes())
            continue;
        const double seconds = source.seconds();
        if (source.away || seconds <= 0)
            standing = std::max(standing, seconds);
        else
            delivered = std::min(delivered.value_or(seconds), seconds);
    }
    return delivered.value_or(standing);
}

RecordLosses RecordStateController::Private::engineLosses() const {
    RecordLosses losses;
    for (const RecordSource& source : sources) {
        const double rate = source.engine->sampleRate();
        if (source.engine->recordStatus() == 0 || rate <= 0)
            continue;
        const std::uint64_t lost = source.engine->lostFrames();
        const std::uint64_t busy = lost - std::min(lost, source.engine->awayFrames());
        losses +=
            {.frames = lost, .seconds = double(lost) / rate, .busyFrames = busy, .busySeconds = double(busy) / rate};
    }
    return losses;
}
