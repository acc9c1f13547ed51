// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The commands of the record state controller: what begins, cuts and ends files.
#include "Platform/Foundation/Clock.h"
#include "Platform/Foundation/FileManager.h"
#include "Platform/Foundation/Services.h"
#include "Source/Record/RecordStateControllerPrivate.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <cmath>

using namespace Qt::StringLiterals;
using Platform::FileManager::removeFile;

namespace {

/// Numbers the raw files; never begins anew in a process. Changed under a controller's mutex.
std::atomic<int> recordNum{0};

/// Nanoseconds that one of two devices may be behind the other at a cut.
constexpr std::uint64_t FurthestBehind = 250'000'000;

/// Seconds of the source's file at hand.
double secondsOf(const RecordSource& source) {
    const double rate = source.engine->sampleRate();
    return rate > 0 ? double(source.engine->framesAccepted() + source.framesBefore) / rate : 0;
}

bool writes(const RecordSource& source) {
    return source.hasFile && source.engine->recordStatus() != 0;
}

/// Seconds in the files at hand: of the shorter one when both sources write.
double secondsAtHand(const RecordSource& builtIn, const RecordSource& computer) {
    if (writes(builtIn) && writes(computer))
        return std::min(secondsOf(builtIn), secondsOf(computer));
    if (writes(builtIn))
        return secondsOf(builtIn);
    return writes(computer) ? secondsOf(computer) : 0;
}

} // namespace

void RecordStateController::startAndStopRecord() {
    if (d->finishing_)
        return;
    d->delegate->stopSoundPlaying();
    d->delegate->setTabViewShowWave(true);
    if (d->active_) {
        if (recordState_() != 0)
            d->stopRecord();
        else
            d->leaveUnheardRecording();
        d->stopShown_ = false;
        d->isRecordingFlushTheFace(false);
    } else {
        d->startRecord();
        d->stopShown_ = true;
        d->isRecordingFlushTheFace(true);
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
    d->cut(false);
}

double RecordStateController::recordedSeconds() const {
    const std::scoped_lock lock(d->mutex); // not in the midst of a cut
    return d->closedSeconds_ + secondsAtHand(d->builtIn, d->computer);
}

std::uint64_t RecordStateController::lostFrames() const {
    const std::scoped_lock lock(d->mutex);
    return d->lostBefore_.frames + d->engineLosses().frames;
}

void RecordStateController::setRecordLimit(double seconds) {
    d->limit_ = seconds;
}

bool RecordStateController::hasFile() const {
    return d->builtIn.hasFile || d->computer.hasFile;
}

QString RecordStateController::writeProblem() const {
    for (const RecordSource* source : {&d->builtIn, &d->computer})
        if (writes(*source))
            if (const auto error = source->engine->writeError())
                return error.text;
    return {};
}

QString RecordStateController::getAudioRecordPath() {
    const std::scoped_lock lock(d->mutex);
    return d->reserveName();
}

QString RecordStateController::nextRingtoneMakerFilePath() {
    return RecordingNames::nextRingtoneMakerFilePath(
        d->preferences->value(PreferenceStore::PreferenceRingtoneSavePathKey, PreferenceStore::defaultMusicFolder())
            .toString());
}

void RecordStateController::finishAll() {
    if (d->anyEngineRecords()) {
        d->stopRecord();
    } else {
        const std::scoped_lock lock(d->mutex);
        if (d->splitter.isWaitting())
            d->names.release(d->audioRecordPath_);
        d->splitter.clear();
    }
    if (d->active_) {
        d->stopShown_ = false;
        d->isRecordingFlushTheFace(false);
    }
    d->showLosses();
    // Hot keys and other processes are still heard while the files are finished. What they begin would be cut off.
    d->setFinishing(true);
    // Not an event loop of its own: that would end at once when the program is quitting already.
    while (d->queue->count() > 0)
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents | QEventLoop::WaitForMoreEvents);
    d->setFinishing(false);
}

void RecordStateController::Private::setFinishing(bool finishing) {
    finishing_ = finishing;
    changed();
}

void RecordStateController::clientRecievedBuiltInAudioData(float level) {
    d->builtInLevelValue_ = level;
    d->keepToLimit(d->builtIn);
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
        if (soundBegan)
            d->computer.engine->startRecordAudio();
        wantsCut = d->splitter.wantsCut(g_SplitTimeMS, d->builtIn.takesPart());
    }
    if (soundBegan)
        d->changed();
    if (wantsCut)
        d->cut(true);
    d->keepToLimit(d->computer);
}

/// No frame is written after the limit, however late the main thread comes to stop.
void RecordStateController::Private::keepToLimit(RecordSource& source) {
    const double limit = limit_;
    if (limit > 0 && writes(source) && closedSeconds_ + secondsOf(source) >= limit)
        source.engine->pauseRecordAudio();
}

void RecordStateController::Private::isRecordingFlushTheFace(bool recording) {
    active_ = recording;
    popUpEnabled_ = !recording;
    changed();
    devices->setRecording(recording);
}

QString RecordStateController::Private::reserveName() {
    const QVariant folder =
        preferences->value(PreferenceStore::PreferenceSavePathKey, PreferenceStore::defaultMusicFolder());
    return names.getAudioRecordPath(folder.toString());
}

QString RecordStateController::Private::rawPath(const RecordSource& source) {
    return g_strTmpPath + source.rawName + QString::number(recordNum) + u".m4a"_s;
}

/// Opens the next raw file of a source and, with @p record, begins to write to it.
void RecordStateController::Private::beginFile(RecordSource& source, bool record) {
    source.hasFile = false;
    if (!source.engine->isRunning()) {
        source.off = true;
        const QString why = source.engine->lastError();
        notice(u"%1 is off: it did not start%2. This recording goes without it."_s.arg(
            source.label, why.isEmpty() ? QString() : u" (%1)"_s.arg(why)));
        return;
    }
    const QString path = rawPath(source);
    (void)removeFile(path);
    source.hasFile = source.engine->setOutPutAudioPath(path, 1);
    if (!source.hasFile)
        notice(u"%1 is not being recorded: %2."_s.arg(source.label, source.engine->lastError()));
    if (record)
        source.engine->startRecordAudio();
}

void RecordStateController::Private::startRecord() {
    // A wait for sound that a stop left behind may have turned into a recording since. It is a recording like others.
    // Its device may have gone meanwhile.
    if (anyEngineRecords()) {
        stopRecord();
        devices->setRecording(false);
    }
    const CycleHold hold(*builtIn.engine, *computer.engine);
    const std::scoped_lock lock(mutex);
    if (splitter.isWaitting())
        names.release(audioRecordPath_);
    splitter.clear();
    fRecordTime_ = 0;
    closedSeconds_ = 0;
    lostBefore_ = {};
    lostShown_ = 0;
    writeProblemShown_ = false;
    audioRecordPath_ = reserveName();
    builtIn.off = false;
    computer.off = false;
    if (builtIn.checked)
        beginFile(builtIn, true);
    if (computer.checked) {
        beginFile(computer, builtIn.takesPart());
        if (!builtIn.takesPart() && computer.takesPart())
            splitter.arm();
    }
    // Two sources are laid over each other later: what one of them loses must not move what follows it.
    const bool both = builtIn.takesPart() && computer.takesPart();
    for (RecordSource* source : {&builtIn, &computer})
        source->engine->setFillLostFrames(both);
    ++recordNum;
    if (!builtIn.takesPart() && !computer.takesPart())
        notice(u"Nothing is being recorded: there is no source."_s);
}

void RecordStateController::Private::pauseRecord() {
    const CycleHold hold(*builtIn.engine, *computer.engine);
    const std::uint64_t time = commonTime();
    for (RecordSource* source : {&builtIn, &computer})
        if (source->checked)
            source->engine->pauseRecordAudioAt(time);
    setPaused(true);
}

void RecordStateController::Private::resumeRecord() {
    const CycleHold hold(*builtIn.engine, *computer.engine);
    const std::uint64_t time = commonTime();
    for (RecordSource* source : {&builtIn, &computer})
        if (source->checked)
            source->engine->resumeRecordAudioAt(time);
    setPaused(false);
}

void RecordStateController::Private::setPaused(bool paused) {
    resumeTip_ = paused;
    q->setIsRecordPause_(paused);
}

bool RecordStateController::Private::anyEngineRecords() const {
    return builtIn.engine->recordStatus() != 0 || computer.engine->recordStatus() != 0;
}

RecordLosses RecordStateController::Private::engineLosses() const {
    RecordLosses losses;
    for (const RecordSource* source : {&builtIn, &computer}) {
        const double rate = source->engine->sampleRate();
        if (source->engine->recordStatus() == 0 || rate <= 0)
            continue;
        const std::uint64_t lost = source->engine->lostFrames();
        losses.frames += lost;
        losses.seconds += double(lost) / rate;
    }
    return losses;
}

/// The files at hand as a job, and which of them the filter finds too short.
RecordStateController::Private::Ending RecordStateController::Private::describeEnding() {
    const RecordFilter filter = RecordFilter::read(*preferences);
    Ending ending;
    ending.job = std::make_shared<ExportJob>();
    ending.job->paths.insert(ExportJob::OutPutPath, audioRecordPath_);
    for (RecordSource* source : {&builtIn, &computer}) {
        if (!writes(*source))
            continue;
        const BuildInAudioRecord& engine = *source->engine;
        const QString raw = engine.outPutFilePath();
        ending.job->paths.insert(source->jobKey, raw);
        ending.job->paths.insert(ExportJob::OutPutWAVTempPath, raw + u"temp"_s);
        (source == &builtIn ? ending.job->builtInSpan : ending.job->computerSpan) = engine.captureSpan();
        (source == &builtIn ? ending.job->sampleRateBuiltIn : ending.job->sampleRateComputer) = engine.sampleRate();
        ending.job->brokenOff |= bool(engine.writeError());
        if (filter.drops(static_cast<float>(secondsOf(*source))))
            (source == &builtIn ? ending.builtInTooShort : ending.computerTooShort) = true;
    }
    if (ending.job->brokenOff)
        ending.builtInTooShort = ending.computerTooShort = false;
    return ending;
}

/// What happens when the file's own thread has closed it.
std::function<void(QString, OSStatus)> RecordStateController::Private::whenClosed(const std::shared_ptr<ExportJob>& job,
                                                                                  bool remove) {
    ++job->openFiles;
    return [guard = queue->guard(), job, remove](const QString& path, OSStatus status) {
        if (remove)
            if (const auto problem = removeFile(path); !problem.isEmpty())
                qWarning("%s stays in the temporary folder: %s", qUtf8Printable(path), qUtf8Printable(problem));
        RecordQueue::rawFileClosed(guard, job, path, status);
    };
}

void RecordStateController::Private::stopRecord() {
    const CycleHold hold(*builtIn.engine, *computer.engine);
    std::unique_lock lock(mutex);
    splitter.clear();
    const Ending ending = describeEnding();
    closedSeconds_ = closedSeconds_ + secondsAtHand(builtIn, computer);
    const RecordLosses losses = engineLosses();
    lostBefore_.frames += losses.frames;
    lostBefore_.seconds += losses.seconds;
    for (RecordSource* source : {&builtIn, &computer}) {
        const bool tooShort = source == &builtIn ? ending.builtInTooShort : ending.computerTooShort;
        if (!writes(*source))
            source->engine->stopRecordAudio();
        else if (!source->engine->stopRecordAudioLater(whenClosed(ending.job, tooShort)))
            --ending.job->openFiles;
        source->hasFile = false;
    }
    endFiles(ending, lock);
}

/// A stop before the first sound: the wait stays, and with it the name and the open file. A recording that never had a
/// source gives its name back.
void RecordStateController::Private::leaveUnheardRecording() {
    {
        const std::scoped_lock lock(mutex);
        // The first sound may come at this very moment.
        if (!splitter.isWaitting() && !anyEngineRecords())
            names.release(audioRecordPath_);
    }
    setPaused(false);
}

/// A wait that a stop has left ends with its device: the engine's file went with that.
void RecordStateController::Private::forgetLeftWait() {
    const std::scoped_lock lock(mutex);
    if (active_ || !splitter.isWaitting() || anyEngineRecords())
        return;
    splitter.clear();
    names.release(audioRecordPath_);
    computer.hasFile = false;
}

/// Hands the job on, or forgets it when the filter drops it. The mutex is let go: the queue tells others.
void RecordStateController::Private::endFiles(const Ending& ending, std::unique_lock<std::mutex>& lock) {
    const QString path = ending.job->path(ExportJob::OutPutPath);
    const bool empty = !ending.job->paths.contains(ExportJob::OutPutWAVTempPath);
    if (empty || ending.drops())
        names.release(path);
    lock.unlock();
    setPaused(false);
    if (empty)
        return;
    if (ending.drops()) {
        ++dropped_;
        onMain([this, path] { Q_EMIT q->recordingFinished(path, {}); });
        return;
    }
    queue->append(ending.job);
}

/// Ends the files at hand and goes on in new ones. No cycle is under way meanwhile, but for the caller's own when a
/// silence cuts.
void RecordStateController::Private::cut(bool automatic) {
    const CycleHold hold(*builtIn.engine, *computer.engine);
    std::unique_lock lock(mutex);
    if (automatic && !splitter.wantsCut(g_SplitTimeMS, builtIn.takesPart()))
        return;
    if (!writes(builtIn) && !writes(computer)) {
        if (!splitter.isWaitting() || !active_)
            return;
        armAnew();
        lock.unlock();
        setPaused(false);
        return;
    }
    alignCut();
    const double seconds = secondsAtHand(builtIn, computer);
    Ending ending = describeEnding();
    const bool exchanged = exchangeFiles(ending);
    builtIn.framesBefore = 0;
    computer.framesBefore = 0;
    if (!exchanged) {
        // Without this a silence would try again with every cycle.
        if (automatic) {
            splitter.clear();
            splitter.arm();
        }
        return;
    }
    ++recordNum;
    closedSeconds_ = closedSeconds_ + seconds;
    fRecordTime_ = 0;
    splitter.clear();
    // The new part is already being written; the next sound makes its silences count again.
    if (!builtIn.takesPart())
        splitter.arm();
    for (RecordSource* source : {&builtIn, &computer})
        source->engine->resumeRecordAudio();
    if (ending.drops())
        names.release(audioRecordPath_);
    audioRecordPath_ = reserveName();
    endFiles(ending, lock);
}

/// The capture time to which the device has come that is ahead of the other. 0 when not both write, or when one stands
/// still: what it will give is not of this time.
std::uint64_t RecordStateController::Private::commonTime() const {
    if (!writes(builtIn) || !writes(computer))
        return 0;
    const std::uint64_t builtInNext = builtIn.engine->nextHostTime();
    const std::uint64_t computerNext = computer.engine->nextHostTime();
    const std::uint64_t ahead = std::max(builtInNext, computerNext);
    const std::uint64_t behind = std::min(builtInNext, computerNext);
    return behind != 0 && ahead - behind < FurthestBehind ? ahead : 0;
}

/// Cycles of two devices do not end together: the one that is behind still has some frames to give to the old files.
void RecordStateController::Private::alignCut() {
    const std::uint64_t cutTime = commonTime();
    for (RecordSource* source : {&builtIn, &computer}) {
        source->framesBefore = 0;
        if (cutTime != 0 && source->engine->recordStatus() == 1)
            source->framesBefore =
                std::llround(double(cutTime - source->engine->nextHostTime()) * 1e-9 * source->engine->sampleRate());
    }
}

/// Gives every writing engine its next raw file. A source that cannot have one goes on in its old file, which then
/// belongs to the next job; when that is so for the first one, nothing is cut at all.
bool RecordStateController::Private::exchangeFiles(Ending& ending) {
    bool exchanged = false;
    for (RecordSource* source : {&builtIn, &computer}) {
        if (!writes(*source))
            continue;
        const bool tooShort = source == &builtIn ? ending.builtInTooShort : ending.computerTooShort;
        const QString path = rawPath(*source);
        (void)removeFile(path);
        if (source->engine->exchangeM4aFile(path, whenClosed(ending.job, tooShort), source->framesBefore)) {
            exchanged = true;
            continue;
        }
        --ending.job->openFiles;
        notice(
            u"The recording could not be split (%1). It goes on in the same file."_s.arg(source->engine->lastError()));
        if (!exchanged)
            return false;
        ending.job->paths.remove(source->jobKey);
    }
    return true;
}

/// A cut before the first sound: the wait goes on with a new file and name.
void RecordStateController::Private::armAnew() {
    const QString unused = computer.engine->outPutFilePath();
    names.release(audioRecordPath_);
    fRecordTime_ = 0;
    audioRecordPath_ = reserveName();
    beginFile(computer, false);
    ++recordNum;
    if (computer.hasFile && unused != computer.engine->outPutFilePath())
        (void)removeFile(unused);
}
