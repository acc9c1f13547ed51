// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/Record/RecordQueue.h"

#include "Platform/Foundation/Clock.h"
#include "Platform/Foundation/FileManager.h"
#include "Platform/Foundation/MainQueue.h"
#include "Platform/Foundation/MovedFiles.h"
#include "Platform/Foundation/Services.h"
#include "Platform/Foundation/Translations.h"
#include "Source/Control/ID3ChangeControl.h"
#include "Source/Control/ToolControl.h"
#include "Source/Model/AudioRecordEntry.h"
#include "Source/Record/CutOffRecordings.h"
#include "Source/Record/ExportNote.h"
#include "Source/Record/PartCover.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QThread>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;
using Platform::Error;

namespace {

/// Bytes of the mix per second: 44100 frames of two 32-bit samples, and some space for the header.
constexpr double MixBytesPerSecond = 353000;
/// Share of a two-source job's work that is the mixing; the rest is encoding.
constexpr double MixShare = 0.3;
/// Share of the work up to the encoded mix, when both tracks are kept and encoded after it.
constexpr double ShareBeforeTracks = 0.4;

/// What was kept.
enum class Kept { Recording, Source, MadeFrom };

/// A sentence that the path of the kept file follows.
QString keptSentence(Kept what, bool waits) {
    switch (what) {
    case Kept::Recording:
        return waits ? QCoreApplication::translate(
                           "Record", "The recording is kept, and moved by the next start when there is room, at",
                           "a path follows")
                     : QCoreApplication::translate("Record", "The recording is kept at", "a path follows");
    case Kept::Source:
        return waits ? QCoreApplication::translate("Record",
                                                   "It is kept, and moved by the next start when there is room, at",
                                                   "the source of a recording; a path follows")
                     : QCoreApplication::translate("Record", "It is kept at",
                                                   "the source of a recording; a path follows");
    case Kept::MadeFrom:
        break;
    }
    return waits ? QCoreApplication::translate(
                       "Record", "What it was made from is kept, and moved by the next start when there is room, at",
                       "a path follows")
                 : QCoreApplication::translate("Record", "What it was made from is kept at", "a path follows");
}

/// A notice that ends with the place where files were kept.
RecordNotice keptNotice(const QString& text, Kept what, const QStringList& kept) {
    RecordNotice notice{.text = text};
    if (kept.isEmpty())
        return notice;
    const QString folder = Platform::FileManager::unfinishedFolder();
    const bool waits = std::ranges::any_of(kept, [&](const QString& path) { return QFileInfo(path).path() != folder; });
    notice.text += u' ' + keptSentence(what, waits);
    notice.path = kept.front();
    notice.kept = kept;
    notice.help = RecordNotice::Help::Show;
    notice.event = u"kept "_s + kept.front();
    return notice;
}

} // namespace

/// The error text of a failed step, for the middle of a sentence.
QString RecordQueue::reason(const Error& error) {
    return error.text.isEmpty() ? QCoreApplication::translate("Record", "the reason is unknown") : error.text;
}

/// Deletes a file whose audio is in another file by now.
void RecordQueue::removeTemporaryFile(const QString& path) {
    CutOffRecordings::remove(path);
    if (const auto removed = Platform::FileManager::removeFile(path); !removed)
        qWarning("%s stays in the temporary folder: %s", qUtf8Printable(path),
                 qUtf8Printable(removed.error().forLog()));
}

RecordQueue::RecordQueue(Owner owner, QObject* parent) : QObject(parent), owner_(std::move(owner)) {
    worker_.setMaxThreadCount(1);
    notes_.setMaxThreadCount(1);
}

RecordQueue::~RecordQueue() {
    cancelled_ = true;
    worker_.waitForDone();
    notes_.waitForDone();
    for (const auto& job : aryForExportDataInfo_) {
        if (job->note) {
            job->note->saveFiles(); // the temporary folder may be removed next
            continue;
        }
        const QString name = QFileInfo(job->path(ExportJob::OutPutPath)).completeBaseName();
        for (const auto& key :
             {ExportJob::BuiltInAudioTempPath, ExportJob::ComputerAudioTempPath, ExportJob::OutPutWAVTempPath}) {
            const QString file = job->path(key);
            if (file.isEmpty() || !QFileInfo::exists(file))
                continue;
            const QString ending = key == ExportJob::OutPutWAVTempPath ? u".wav"_s : u".m4a"_s;
            qWarning("%s was not finished and is kept at %s", qUtf8Printable(name),
                     qUtf8Printable(Platform::MovedFiles::setAside(file, name + ending)));
            CutOffRecordings::remove(file);
        }
    }
}

void RecordQueue::onMain(std::function<void()> work) {
    alive_.post(std::move(work));
}

void RecordQueue::onWorker(std::function<void()> work) {
    worker_.start(std::move(work));
}

void RecordQueue::append(std::shared_ptr<ExportJob> job) {
    // The job waits for its note, which needs the disk: this may be an I/O thread.
    ++job->openFiles;
    {
        const std::scoped_lock lock(mutex_);
        aryForExportDataInfo_.push_back(job);
    }
    notes_.start([guard = guard(), job = std::move(job)] {
        writeNote(*job);
        rawFileClosed(guard, job, noErr);
    });
    const auto begin = [this] {
        Q_EMIT queueChanged();
        if (!isConverterTherecordAudio_)
            converterTherecordAudio();
    };
    if (QThread::currentThread() == thread())
        begin();
    else
        onMain(begin);
}

void RecordQueue::rawFileClosed(const Guard& guard, const std::shared_ptr<ExportJob>& job, OSStatus status) {
    --job->openFiles;
    guard.alive.post([&queue = *guard.queue, status] {
        if (status != noErr)
            Q_EMIT queue.noticed(
                {.text =
                     QCoreApplication::translate(
                         "Record", "A part of the recording could not be written (error %1). What was written is kept.")
                         .arg(status),
                 .event = UnwrittenEvent});
        if (queue.isConverterTherecordAudio_ && !queue.working_)
            queue.converterTherecordAudio();
    });
}

int RecordQueue::count() const {
    const std::scoped_lock lock(mutex_);
    return int(aryForExportDataInfo_.size());
}

double RecordQueue::progress() const {
    return progress_.load(std::memory_order_relaxed);
}

void RecordQueue::setProgress(double share) {
    progress_.store(share, std::memory_order_relaxed);
}

void RecordQueue::converterTherecordAudio() {
    isConverterTherecordAudio_ = true;
    std::shared_ptr<ExportJob> job;
    {
        const std::scoped_lock lock(mutex_);
        if (aryForExportDataInfo_.empty()) {
            isConverterTherecordAudio_ = false;
            return;
        }
        job = aryForExportDataInfo_.front();
    }
    if (working_ || job->openFiles > 0)
        return;
    working_ = true;
    setProgress(0);
    if (job->stage != ExportJob::Stage::Raw) {
        onWorker([this, job] { continueJob(job); });
        return;
    }
    const QString builtIn = job->path(ExportJob::BuiltInAudioTempPath);
    const QString computer = job->path(ExportJob::ComputerAudioTempPath);
    if (!builtIn.isEmpty() && !computer.isEmpty())
        onWorker([this, job] { openMovies(job); });
    else
        onWorker([this, job, raw = computer.isEmpty() ? builtIn : computer] { moveRawFile(job, raw); });
}

void RecordQueue::moveRawFile(const std::shared_ptr<ExportJob>& job, const QString& rawPath) {
    job->keepsTracks = false;
    job->encoded = rawPath;
    completeRecording(job);
}

/// Moves the finished file to its final name, or to the next free one when another file has that name by now.
bool RecordQueue::deliver(const std::shared_ptr<ExportJob>& job, const QString& file) {
    const QString wished = job->path(ExportJob::OutPutPath);
    if (job->stage < ExportJob::Stage::Encoded)
        reach(*job, ExportJob::Stage::Encoded);
    const auto landed = Platform::FileManager::moveToFreeName(file, wished, [&](const QString&) {
        // The note says where the file goes before it is there.
        job->paths.insert(ExportJob::OutPutPath, owner_.nextFreeName());
        reach(*job, ExportJob::Stage::Encoded);
        return job->path(ExportJob::OutPutPath);
    });
    if (!landed) {
        job->paths.insert(ExportJob::OutPutPath, wished);
        // The raw files for the tracks are kept with a mix that cannot be delivered.
        const bool isMix = job->keepsTracks && job->rawFiles().size() == 2;
        setAside(job, QStringList{file} + (isMix ? job->rawFiles() : QStringList()),
                 QCoreApplication::translate("Record", "%1: %2 could not be saved in “%3”.")
                     .arg(landed.error().text, QFileInfo(wished).fileName(), QDir(QFileInfo(wished).path()).dirName()));
        return false;
    }
    CutOffRecordings::remove(file);
    if (*landed != wished)
        owner_.releaseName(wished);
    job->stage = ExportJob::Stage::Delivered;
    return true;
}

bool RecordQueue::addAudioIntoMove(std::unique_ptr<Platform::Movie>& movie, std::unique_ptr<Platform::Movie> audio) {
    if (!movie && !audio)
        return false;
    if (!movie) {
        movie = std::move(audio);
        return true;
    }
    return audio && movie->insertSoundTrackOf(*audio);
}

void RecordQueue::openMovies(const std::shared_ptr<ExportJob>& job) {
    const QStringList raws{job->path(ExportJob::BuiltInAudioTempPath), job->path(ExportJob::ComputerAudioTempPath)};
    auto* media = Platform::services().mediaFiles;
    auto first = media->openMovie(raws.at(0));
    auto second = media->openMovie(raws.at(1));
    const QString name = QFileInfo(job->path(ExportJob::OutPutPath)).fileName();
    if (!first && !second) {
        setAside(
            job, raws,
            QCoreApplication::translate("Record", "%1 could not be finished: %2.").arg(name, reason(first.error())));
        return;
    }
    if (!first || !second) {
        // One raw file cannot be read: the other one becomes the recording, and the unreadable one is kept.
        const QString bad = first ? raws.at(1) : raws.at(0);
        const QString good = first ? raws.at(0) : raws.at(1);
        if (QFileInfo(bad).size() > 0) {
            const QString kept = Platform::MovedFiles::setAside(bad, QFileInfo(bad).fileName());
            CutOffRecordings::remove(bad);
            onMain([this, name, kept, why = reason(first ? second.error() : first.error())] {
                Q_EMIT noticed(keptNotice(QCoreApplication::translate(
                                              "Record", "One source of %1 could not be read (%2) and is missing in it.")
                                              .arg(name, why),
                                          Kept::Source, {kept}));
            });
        }
        moveRawFile(job, good);
        return;
    }
    qtMovieForRecord_ = composed(*job, *std::move(first), *std::move(second));
    converterMovie(job);
}

std::unique_ptr<Platform::Movie> RecordQueue::composed(const ExportJob& job, std::unique_ptr<Platform::Movie> first,
                                                       std::unique_ptr<Platform::Movie> second) {
    if (addAudioIntoMove(first, std::move(second))) {
        const ExportJob::Timing timing = job.timing();
        first->setTiming(0, {timing.builtInOffset, 1});
        first->setTiming(1, {timing.computerOffset, timing.computerSpeed});
    }
    return first;
}

void RecordQueue::converterMovie(const std::shared_ptr<ExportJob>& job) {
    const QString wave = job->path(ExportJob::OutPutWAVTempPath);
    const QStringList raws{job->path(ExportJob::BuiltInAudioTempPath), job->path(ExportJob::ComputerAudioTempPath)};
    const QString name = QFileInfo(job->path(ExportJob::OutPutPath)).fileName();
    if (const auto removed = Platform::FileManager::removeFile(wave); !removed) {
        setAside(job, raws,
                 QCoreApplication::translate("Record", "%1 could not be mixed: %2.").arg(name, removed.error().text));
        return;
    }
    const double needed = qtMovieForRecord_->duration() * MixBytesPerSecond;
    const qint64 available = Platform::FileManager::availableBytes(QFileInfo(wave).path());
    if (available >= 0 && double(available) < needed) {
        qtMovieForRecord_.reset();
        setAside(job, raws,
                 QCoreApplication::translate(
                     "Record", "The disk is nearly full: %1 could not be mixed, which needs %2 MB; %3 MB are left.")
                     .arg(name, Platform::Translations::number(std::llround(needed / 1e6)),
                          Platform::Translations::number(available / 1000000)));
        return;
    }
    const double mixShare = job->keepsTracks ? MixShare * ShareBeforeTracks : MixShare;
    const auto mixed = qtMovieForRecord_->writeWave(wave, [this, mixShare](double share) {
        setProgress(share * mixShare);
        return !cancelled_;
    });
    const Error damage = qtMovieForRecord_->readError();
    qtMovieForRecord_.reset();
    if (cancelled_)
        return;
    if (!mixed) {
        setAside(job, raws,
                 QCoreApplication::translate("Record", "%1 could not be mixed: %2.").arg(name, reason(mixed.error())));
        return;
    }
    keepAtExit(*job, wave);
    reach(*job, ExportJob::Stage::Mixed);
    if (damage)
        keepDamaged(*job, {ExportJob::BuiltInAudioTempPath, ExportJob::ComputerAudioTempPath}, damage);
    onMain([this, job] { startConverterAudio(job); });
}

void RecordQueue::startConverterAudio(const std::shared_ptr<ExportJob>& job) {
    onWorker([this, job] { converterAudio(job); });
}

void RecordQueue::converterAudio(const std::shared_ptr<ExportJob>& job) {
    // The WAVE is complete. The raw files are still needed for the kept tracks only; keepDamaged() may have removed
    // them from the job.
    const QStringList raws = job->rawFiles();
    job->keepsTracks = job->keepsTracks && raws.size() == 2;
    if (!job->keepsTracks)
        for (const QString& raw : raws)
            removeTemporaryFile(raw);
    const double mixShare = job->keepsTracks ? MixShare * ShareBeforeTracks : MixShare;
    const double encodedShare = job->keepsTracks ? ShareBeforeTracks : 1;
    const QString wave = job->path(ExportJob::OutPutWAVTempPath);
    const QString name = QFileInfo(job->path(ExportJob::OutPutPath)).fileName();
    // Encode beside the WAVE and move the result: another file may have taken the final name meanwhile.
    const QString encoded = wave + u".m4a"_s;
    converterAudioControl_.setProgress([this, mixShare, encodedShare](double share) {
        setProgress(mixShare + share * (encodedShare - mixShare));
        return !cancelled_;
    });
    bool whole =
        converterAudioControl_.createOutPutFile(encoded, 1) && converterAudioControl_.startConverterSource(wave, 0, 0);
    converterAudioControl_.closeExportFile();
    if (cancelled_)
        return;
    const Error error = converterAudioControl_.exportError();
    const Error damage = converterAudioControl_.sourceError();
    whole = whole && !error;
    if (!whole) {
        (void)Platform::FileManager::removeFile(encoded);
        setAside(job, QStringList{wave} + (job->keepsTracks ? raws : QStringList()),
                 QCoreApplication::translate("Record", "%1 could not be encoded: %2.")
                     .arg(name, reason(error ? error : damage)));
        return;
    }
    keepAtExit(*job, encoded);
    job->encoded = encoded;
    reach(*job, ExportJob::Stage::Encoded);
    if (damage)
        keepDamaged(*job, {ExportJob::OutPutWAVTempPath}, damage);
    else
        removeTemporaryFile(wave);
    completeRecording(job);
}

/// From the encoded file to the finished recording.
void RecordQueue::completeRecording(const std::shared_ptr<ExportJob>& job) {
    if (job->stage < ExportJob::Stage::Delivered && !deliver(job, job->encoded))
        return;
    if (job->keepsTracks)
        keepTracks(*job);
    if (!cancelled_)
        tagFile(job);
}

/// Moves the files of a job to a safe place. @return where each one is now
QStringList RecordQueue::keepFiles(const ExportJob& job, const QStringList& files) {
    const QString wished = job.path(ExportJob::OutPutPath);
    QStringList kept;
    for (const QString& file : files) {
        const QFileInfo info(file);
        if (!info.exists())
            continue;
        QString name = QFileInfo(wished).completeBaseName();
        if (file == job.path(ExportJob::OutPutWAVTempPath))
            name += u".wav"_s;
        else if (files.size() > 1 && file == job.path(ExportJob::BuiltInAudioTempPath))
            name += u" input.m4a"_s;
        else if (files.size() > 1 && file == job.path(ExportJob::ComputerAudioTempPath))
            name += u" computer.m4a"_s;
        else
            name += u".m4a"_s;
        kept.append(Platform::MovedFiles::setAside(file, name));
        CutOffRecordings::remove(file);
    }
    return kept;
}

/// Keeps the files under these keys, which could not be read completely. The job continues with the readable parts.
void RecordQueue::keepDamaged(ExportJob& job, const QStringList& keys, const Error& damage) {
    QStringList files;
    for (const QString& key : keys)
        files.append(job.path(key));
    const QStringList kept = keepFiles(job, files);
    for (const QString& key : keys)
        job.paths.remove(key); // so that the job does not delete it
    const QString name = QFileInfo(job.path(ExportJob::OutPutPath)).fileName();
    const RecordNotice notice =
        keptNotice(QCoreApplication::translate("Record", "A part of %1 could not be read (%2) and is missing in it.")
                       .arg(name, reason(damage)),
                   Kept::MadeFrom, kept);
    onMain([this, notice] { Q_EMIT noticed(notice); });
}

void RecordQueue::tellKept(const QString& text, const QStringList& kept, bool isWhole) {
    onMain(
        [this, notice = keptNotice(text, isWhole ? Kept::Source : Kept::MadeFrom, kept)] { Q_EMIT noticed(notice); });
}

void RecordQueue::setAside(const std::shared_ptr<ExportJob>& job, const QStringList& files, const QString& why) {
    const QString wished = job->path(ExportJob::OutPutPath);
    const QStringList kept = keepFiles(*job, files);
    const RecordNotice notice = keptNotice(why, Kept::Recording, kept);
    onMain([this, wished, kept, notice, isContinued = job->isContinued] {
        Q_EMIT noticed(notice);
        if (!isContinued)
            Q_EMIT recordingSetAside(wished, kept);
        endJob(wished);
    });
}

/// Measures the file at its final name and tags it, unless it is too short for the library; then passes the result to
/// the main thread.
void RecordQueue::tagFile(const std::shared_ptr<ExportJob>& job) {
    const QString finalPath = job->path(ExportJob::OutPutPath);
    const float length = ToolControl::getAudioLength(finalPath);
    Dictionary tags;
    bool tagged = true;
    if (job->isKeptHoweverShort || !owner_.filter().drops(length)) {
        tags = initID3BasicInfoDic();
        if (!job->date.isEmpty())
            tags.insert(AudioRecordEntry::AddDate, job->date);
        tags.insert(AudioRecordEntry::Length, double(length));
        tags.insert(AudioRecordEntry::Title, QFileInfo(finalPath).completeBaseName());
        tags.insert(AudioRecordEntry::SavePath, finalPath);
        const auto name = [&tags](const QString& key, const QString& text) {
            if (!text.isEmpty())
                tags.insert(key, text);
        };
        name(AudioRecordEntry::Title, job->title.title);
        name(AudioRecordEntry::Artist, job->title.artist);
        name(AudioRecordEntry::Album, job->title.album);
        RecordingTracks::insertInto(tags, job->tracks);
        tagged = ID3ChangeControl::changeID3BasicInfo(finalPath, tags);
        PartCover::write(finalPath, job->title);
        tags.insert(AudioRecordEntry::IsNew, true);
    }
    job->entry = tags;
    reach(*job, ExportJob::Stage::Tagged);
    onMain([this, job, finalPath, tagged] {
        if (!tagged)
            Q_EMIT noticed(
                {.text = QCoreApplication::translate("Record", "%1 could not be tagged. Its audio is complete.")
                             .arg(QFileInfo(finalPath).fileName()),
                 .path = {},
                 .help = RecordNotice::Help::Show,
                 .target = finalPath});
        finishConverter(job);
    });
}

void RecordQueue::finishConverter(const std::shared_ptr<ExportJob>& job) {
    const QString finalPath = job->path(ExportJob::OutPutPath);
    const bool isListed = job->isContinued && owner_.hasRecordFile && owner_.hasRecordFile(finalPath);
    if (!job->entry.isEmpty() && !isListed)
        owner_.addRecordFile(finalPath, job->entry);
    if (!job->isContinued)
        Q_EMIT recordingFinished(finalPath, job->entry);
    else if (!isListed)
        tellContinued(finalPath);
    endJob(finalPath);
}

void RecordQueue::endJob(const QString& reservedPath) {
    owner_.releaseName(reservedPath);
    bool more = false;
    {
        const std::scoped_lock lock(mutex_);
        notes_.start([job = aryForExportDataInfo_.front()] {
            if (job->note)
                job->note->end();
        });
        aryForExportDataInfo_.pop_front();
        more = !aryForExportDataInfo_.empty();
    }
    working_ = false;
    setProgress(-1);
    isConverterTherecordAudio_ = more;
    if (more)
        converterTherecordAudio();
    Q_EMIT queueChanged();
}

Dictionary RecordQueue::initID3BasicInfoDic() {
    const auto* clock = Platform::services().clock;
    const QDateTime now = clock ? clock->now() : QDateTime::currentDateTime();
    return {{AudioRecordEntry::Title, u"NO Title"_s},   {AudioRecordEntry::Artist, u"NO Artist"_s},
            {AudioRecordEntry::Album, u"NO Album"_s},   {AudioRecordEntry::Year, 2012},
            {AudioRecordEntry::Genre, u"NO General"_s}, {AudioRecordEntry::AddDate, now.toString(u"yyyy/MM/dd"_s)}};
}
