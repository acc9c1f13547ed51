// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The raw files of a recording: how they begin, are cut and end. Decides which recordings the filter drops.
#include "Platform/Foundation/FileManager.h"
#include "Source/Record/CutOffRecordings.h"
#include "Source/Record/RecordStateControllerPrivate.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;
using Platform::FileManager::removeFile;

namespace {

/// The most nanoseconds by which one of two devices may lag at a cut.
constexpr std::uint64_t FurthestBehind = 250'000'000;

} // namespace

double RecordSource::seconds() const {
    const double rate = engine->sampleRate();
    return rate > 0 ? double(engine->framesAccepted() + framesBefore) / rate : 0;
}

bool RecordStateController::Private::Ending::drops() const {
    return std::ranges::any_of(files, &FileEnding::tooShort);
}

bool RecordStateController::Private::Ending::isEmpty() const {
    return !job->paths.contains(ExportJob::OutPutWAVTempPath);
}

QString RecordStateController::Private::recordFolder() const {
    return preferences->value(Settings::savePath).toString();
}

QString RecordStateController::Private::rawPath(const RecordSource& source) {
    return g_strTmpPath + source.rawName + QString::number(recordNum) + u".m4a"_s;
}

QString RecordStateController::Private::offEvent(const RecordSource& source) {
    return u"off "_s + source.label;
}

/// Opens the next raw file of a source and, with @p record, starts to write to it.
void RecordStateController::Private::beginFile(RecordSource& source, bool record) {
    source.hasFile = false;
    source.heard = false;
    if (!source.engine->isRunning()) {
        source.off = true;
        const QString why = source.engine->lastError();
        notice(
            {.text = (why.isEmpty() ? QCoreApplication::translate(
                                          "Record", "%1 is off: it did not start. This recording goes without it.")
                                          .arg(source.label)
                                    : QCoreApplication::translate(
                                          "Record", "%1 is off: it did not start (%2). This recording goes without it.")
                                          .arg(source.label, why)),
             .event = offEvent(source)});
        return;
    }
    const QString path = rawPath(source);
    (void)removeFile(path);
    source.hasFile = source.engine->setOutPutAudioPath(path, 1);
    if (!source.hasFile)
        notice({.text = QCoreApplication::translate("Record", "%1 is not being recorded: %2.")
                            .arg(source.label, source.engine->lastError()),
                .event = offEvent(source)});
    if (record)
        source.engine->startRecordAudio();
}

/// The current files as a job, and how each of them ends. The filter does not measure a source whose device was lost
/// during the recording, or that never delivered a frame: the audio of the other source becomes the recording.
RecordStateController::Private::Ending RecordStateController::Private::describeEnding() {
    const RecordFilter filter = RecordFilter::read(*preferences);
    const bool anyHeard = std::ranges::any_of(
        sources, [](const RecordSource& source) { return source.writes() && source.seconds() > 0; });
    Ending ending;
    ending.job = std::make_shared<ExportJob>();
    ending.job->paths.insert(ExportJob::OutPutPath, audioRecordPath_);
    ending.job->title = tracks.title();
    ending.job->keepsTracks = Platform::boolValue(preferences->value(Settings::keepTracks));
    bool brokenOff = false;
    bool anyMeasured = false;
    for (std::size_t i = 0; i < sources.size(); ++i) {
        const RecordSource& source = sources[i];
        if (!source.writes())
            continue;
        const double seconds = source.seconds();
        ending.files[i].unheard = anyHeard && seconds <= 0;
        if (ending.files[i].unheard)
            continue;
        const BuildInAudioRecord& engine = *source.engine;
        const QString raw = engine.outPutFilePath();
        ending.job->paths.insert(source.jobKey, raw);
        ending.job->paths.insert(ExportJob::OutPutWAVTempPath, raw + u"temp"_s);
        ending.job->timings[i] = {engine.captureSpan(), engine.sampleRate()};
        brokenOff |= bool(engine.writeError());
        if (anyHeard && source.wasAway)
            continue;
        anyMeasured = true;
        ending.files[i].tooShort = filter.drops(static_cast<float>(seconds));
    }
    if (brokenOff)
        for (FileEnding& file : ending.files)
            file.tooShort = false;
    ending.job->isKeptHoweverShort = brokenOff || !anyMeasured;
    return ending;
}

/// The callback for when the file's own thread has closed it.
std::function<void(QString, OSStatus)> RecordStateController::Private::whenClosed(const std::shared_ptr<ExportJob>& job,
                                                                                  bool remove) {
    ++job->openFiles;
    return [guard = queue->guard(), job, remove](const QString& path, OSStatus status) {
        if (remove)
            if (const auto removed = removeFile(path); !removed)
                qWarning("%s stays in the temporary folder: %s", qUtf8Printable(path),
                         qUtf8Printable(removed.error().forLog()));
        RecordQueue::rawFileClosed(guard, job, status);
    };
}

void RecordStateController::Private::stopRecord() {
    const CycleHold hold(sources);
    std::unique_lock lock(mutex);
    splitter.clear();
    const Ending ending = describeEnding();
    if (ending.isEmpty() || ending.drops())
        names.giveBack(audioRecordPath_);
    audioRecordPath_.clear();
    closedSeconds_ = closedSeconds_ + secondsAtHand();
    lostBefore_ += engineLosses();
    for (std::size_t i = 0; i < sources.size(); ++i) {
        RecordSource& source = sources[i];
        if (!source.writes())
            source.engine->stopRecordAudio();
        else if (!source.engine->stopRecordAudioLater(whenClosed(ending.job, ending.files[i].isDeleted())))
            --ending.job->openFiles;
        source.hasFile = false;
    }
    endFiles(ending, lock);
}

/// Passes the job to the queue, or drops it when the filter says so. The mutex is released first: the queue emits
/// signals.
void RecordStateController::Private::endFiles(const Ending& ending, std::unique_lock<std::mutex>& lock) {
    lock.unlock();
    setPaused(false);
    if (ending.isEmpty())
        return;
    if (ending.drops()) {
        for (const RecordSource& source : sources)
            CutOffRecordings::remove(ending.job->path(source.jobKey));
        ++dropped_;
        onMain([this, path = ending.job->path(ExportJob::OutPutPath)] { Q_EMIT q->recordingFinished(path, {}); });
        return;
    }
    queue->append(ending.job);
}

/// Ends the current files and continues in new ones. No cycle runs meanwhile, except the caller's own when a silence
/// cuts.
void RecordStateController::Private::cut(Cut why, std::uint64_t time) {
    const CycleHold hold(sources);
    std::unique_lock lock(mutex);
    if (why == Cut::AtSilence && !splitter.wantsCut(g_SplitTimeMS, builtIn.takesPart()))
        return;
    if (why == Cut::AtTrack && (!computer.writes() || computer.engine->recordStatus() != 1))
        return;
    if (!builtIn.writes() && !computer.writes()) {
        if (state != RecordState::Armed)
            return;
        armAnew();
        lock.unlock();
        setPaused(false);
        return;
    }
    alignCut(time);
    const double seconds = secondsAtHand();
    Ending ending = describeEnding();
    const bool exchanged = exchangeFiles(ending);
    for (RecordSource& source : sources)
        source.framesBefore = 0;
    if (!exchanged) {
        // Otherwise every cycle of this silence would try again.
        if (why == Cut::AtSilence) {
            splitter.clear();
            splitter.arm();
        }
        return;
    }
    ++recordNum;
    closedSeconds_ = closedSeconds_ + seconds;
    fRecordTime_ = 0;
    tracks.history().beginPart();
    splitter.clear();
    // The new part is already being written; the next sound makes its silences count again.
    if (!builtIn.takesPart())
        splitter.arm();
    for (RecordSource& source : sources) {
        source.wasAway = source.away;
        source.engine->resumeRecordAudio();
    }
    if (ending.drops())
        names.giveBack(audioRecordPath_);
    nameNextFile();
    endFiles(ending, lock);
}

/// Names the new part. A cut also runs on an I/O thread, which must not wait for a folder on a slow share: it takes the
/// next number, and a worker then looks for the first free one.
void RecordStateController::Private::nameNextFile() {
    const QString folder = recordFolder();
    const QString atOnce = names.nextAudioRecordPath(folder);
    audioRecordPath_ = atOnce;
    namesWorker.start([this, folder, atOnce] {
        const QString firstFree = names.getAudioRecordPath(folder, atOnce);
        if (firstFree == atOnce)
            return;
        const std::scoped_lock lock(mutex);
        // When the part has ended by now, its job delivers it under the next free name.
        const bool ended = audioRecordPath_ != atOnce;
        if (!ended)
            audioRecordPath_ = firstFree;
        names.giveBack(ended ? firstFree : atOnce);
    });
}

/// The capture time that the faster device has reached. 0 when not both write, or when one device delivers nothing: its
/// next frames will be from a later time.
std::uint64_t RecordStateController::Private::commonTime() const {
    if (!builtIn.writes() || !computer.writes())
        return 0;
    const std::uint64_t builtInNext = builtIn.engine->nextHostTime();
    const std::uint64_t computerNext = computer.engine->nextHostTime();
    const std::uint64_t ahead = std::max(builtInNext, computerNext);
    const std::uint64_t behind = std::min(builtInNext, computerNext);
    return behind != 0 && ahead - behind < FurthestBehind ? ahead : 0;
}

/// The cycles of two devices do not end together: the first frames of the slower device after the cut still belong to
/// its old file. With a @p time, so do the frames of both until then.
void RecordStateController::Private::alignCut(std::uint64_t time) {
    const std::uint64_t cutTime = std::max(commonTime(), time);
    for (RecordSource& source : sources) {
        source.framesBefore = 0;
        const std::uint64_t next = source.engine->nextHostTime();
        if (next != 0 && cutTime > next && cutTime - next < FurthestBehind && source.engine->recordStatus() == 1)
            source.framesBefore = std::llround(double(cutTime - next) * 1e-9 * source.engine->sampleRate());
    }
}

/// Gives every writing engine its next raw file. When a file cannot be created, that source continues in its old file,
/// which then belongs to the next job. When the first one cannot be created, nothing is cut and the result is false.
bool RecordStateController::Private::exchangeFiles(Ending& ending) {
    bool exchanged = false;
    for (std::size_t i = 0; i < sources.size(); ++i) {
        RecordSource& source = sources[i];
        if (!source.writes())
            continue;
        const QString path = rawPath(source);
        (void)removeFile(path);
        if (source.engine->exchangeM4aFile(path, whenClosed(ending.job, ending.files[i].isDeleted()),
                                           source.framesBefore)) {
            source.heard = false;
            exchanged = true;
            continue;
        }
        --ending.job->openFiles;
        notice({.text = QCoreApplication::translate(
                            "Record", "The recording could not be split (%1). It continues in the same file.")
                            .arg(source.engine->lastError()),
                .event = u"split"_s});
        if (!exchanged)
            return false;
        ending.job->paths.remove(source.jobKey);
    }
    return true;
}

/// A cut before the first sound: the wait continues with a new file and name.
void RecordStateController::Private::armAnew() {
    const QString unused = computer.engine->outPutFilePath();
    names.giveBack(audioRecordPath_);
    fRecordTime_ = 0;
    nameNextFile();
    beginFile(computer, false);
    ++recordNum;
    if (computer.hasFile && unused != computer.engine->outPutFilePath())
        (void)removeFile(unused);
}
