// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/Record/ExportNote.h"

#include "Platform/Foundation/MovedFiles.h"
#include "Platform/Foundation/Services.h"
#include "Platform/Foundation/TemporaryFolder.h"
#include "Platform/Foundation/UserDefaults.h"
#include "Source/Model/AudioRecordEntry.h"
#include "Source/Record/ExportJob.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonObject>
#include <QLoggingCategory>

#include <algorithm>
#include <chrono>

using namespace Qt::StringLiterals;
using Stage = ExportJob::Stage;

namespace {

Q_LOGGING_CATEGORY(exportLog, "sonaphex.record")

const QString kFolder = u"Exports"_s;
const QString kEnding = u".export"_s;
/// How long a start waits for another one that moves the files of ended processes.
constexpr std::chrono::seconds LongestWait(30);

/// The names of the stages in a note.
const std::pair<Stage, QString> kStages[] = {
    {Stage::Raw, u"raw"_s},        {Stage::Mixed, u"mixed"_s},          {Stage::Encoded, u"encoded"_s},
    {Stage::Delivered, u"file"_s}, {Stage::TracksWritten, u"tracks"_s}, {Stage::Tagged, u"tagged"_s},
};

QString nameOf(Stage stage) {
    return std::ranges::find(kStages, stage, &std::pair<Stage, QString>::first)->second;
}

Stage stageOf(const QString& name) {
    const auto* const found = std::ranges::find(kStages, name, &std::pair<Stage, QString>::second);
    return found == std::end(kStages) ? Stage::Raw : found->first;
}

/// The values that change while the job is worked on.
QJsonObject progressOf(const ExportJob& job) {
    return {{u"stage"_s, nameOf(job.stage)},
            {u"output"_s, job.path(ExportJob::OutPutPath)},
            {u"encoded"_s, job.encoded},
            {u"keepsTracks"_s, job.keepsTracks},
            {u"trackFiles"_s, QJsonArray::fromStringList(job.trackFiles)},
            {u"inputTrack"_s, job.tracks.input},
            {u"computerTrack"_s, job.tracks.computer},
            {u"entry"_s, QJsonObject::fromVariantMap(job.entry)}};
}

QJsonObject timingOf(const ExportJob::SourceTiming& timing) {
    // As text: a number of JSON has 53 bits.
    return {{u"first"_s, QString::number(timing.span.firstHostTime)},
            {u"measuredRate"_s, timing.span.measuredRate},
            {u"rate"_s, timing.sampleRate}};
}

ExportJob::SourceTiming timingOf(const QJsonObject& values) {
    return {{values[u"first"_s].toString().toULongLong(), values[u"measuredRate"_s].toDouble()},
            values[u"rate"_s].toDouble()};
}

QJsonObject titleOf(const PartTitle& title) {
    QJsonObject values{{u"title"_s, title.title}, {u"artist"_s, title.artist}, {u"album"_s, title.album}};
    if (!title.cover.valid())
        return values;
    values.insert(u"coverPlace"_s, title.coverPlace.toString(QUrl::FullyEncoded));
    if (title.cover.wait_for(std::chrono::seconds(0)) == std::future_status::ready)
        values.insert(u"cover"_s, QString::fromLatin1(title.cover.get().toBase64()));
    return values;
}

PartTitle titleOf(const QJsonObject& values) {
    PartTitle title{values[u"title"_s].toString(), values[u"artist"_s].toString(), values[u"album"_s].toString(), {}};
    if (values.contains(u"coverPlace"_s)) {
        title.coverPlace = QUrl(values[u"coverPlace"_s].toString());
        std::promise<QByteArray> cover;
        cover.set_value(QByteArray::fromBase64(values[u"cover"_s].toString().toLatin1()));
        title.cover = cover.get_future().share();
    }
    return title;
}

/// The files that the job of a note needs to continue.
QStringList filesOf(const QJsonObject& values) {
    QStringList files{values[u"input"_s].toString(), values[u"computer"_s].toString()};
    const Stage stage = stageOf(values[u"stage"_s].toString());
    if (stage == Stage::Mixed)
        files.append(values[u"wave"_s].toString());
    if (stage == Stage::Encoded)
        files.append(values[u"encoded"_s].toString());
    const QJsonArray tracks = values[u"trackFiles"_s].toArray();
    if (stage == Stage::TracksWritten)
        for (const auto& track : tracks)
            files.append(track.toString());
    files.removeAll(QString());
    files.removeDuplicates();
    return files;
}

/// The job of a note, with the paths that its files have in @p folder. Raw files that are not there are left out.
std::shared_ptr<ExportJob> jobOf(const QJsonObject& values, const QString& folder) {
    const auto moved = [&](const QString& key) {
        const QString path = values[key].toString();
        return path.isEmpty() ? QString() : folder + u'/' + QFileInfo(path).fileName();
    };
    auto job = std::make_shared<ExportJob>();
    job->isContinued = true;
    job->stage = stageOf(values[u"stage"_s].toString());
    job->paths.insert(ExportJob::OutPutPath, values[u"output"_s].toString());
    job->paths.insert(ExportJob::OutPutWAVTempPath, moved(u"wave"_s));
    if (const QString raw = moved(u"input"_s); QFileInfo(raw).isFile())
        job->paths.insert(ExportJob::BuiltInAudioTempPath, raw);
    if (const QString raw = moved(u"computer"_s); QFileInfo(raw).isFile())
        job->paths.insert(ExportJob::ComputerAudioTempPath, raw);
    job->encoded = moved(u"encoded"_s);
    const QJsonArray timings = values[u"timings"_s].toArray();
    for (std::size_t i = 0; i < job->timings.size(); ++i)
        job->timings[i] = timingOf(timings[qsizetype(i)].toObject());
    job->isKeptHoweverShort = values[u"keptHoweverShort"_s].toBool();
    job->title = titleOf(values[u"title"_s].toObject());
    job->keepsTracks = values[u"keepsTracks"_s].toBool();
    const QJsonArray trackFiles = values[u"trackFiles"_s].toArray();
    for (const auto& file : trackFiles)
        job->trackFiles.append(folder + u'/' + QFileInfo(file.toString()).fileName());
    job->tracks = {values[u"inputTrack"_s].toString(), values[u"computerTrack"_s].toString()};
    job->entry = values[u"entry"_s].toObject().toVariantMap();
    if (const auto year = job->entry.find(AudioRecordEntry::Year); year != job->entry.end())
        *year = year->toInt(); // JSON has only one number type
    job->date = values[u"date"_s].toString();
    return job;
}

/// Sets the stage at which the job can continue with the files that are there. False when nothing is left to do.
bool takeUp(ExportJob& job) {
    if (job.path(ExportJob::OutPutPath).isEmpty())
        return false; // the note was not written completely
    if (job.stage == Stage::Encoded && ExportNote::isMoved(job.encoded, job.path(ExportJob::OutPutPath)))
        job.stage = Stage::Delivered;
    const bool isStageLost =
        (job.stage == Stage::Mixed && !QFileInfo(job.path(ExportJob::OutPutWAVTempPath)).isFile()) ||
        (job.stage == Stage::Encoded && !QFileInfo(job.encoded).isFile()) ||
        (job.stage > Stage::Encoded && !QFileInfo(job.path(ExportJob::OutPutPath)).isFile());
    if (isStageLost)
        job.stage = Stage::Raw;
    return job.stage != Stage::Raw || !job.rawFiles().isEmpty();
}

/// Whether two files have the same content.
bool areEqual(const QString& one, const QString& other) {
    QFile first(one);
    QFile second(other);
    if (!first.open(QIODevice::ReadOnly) || !second.open(QIODevice::ReadOnly) || first.size() != second.size())
        return false;
    constexpr qint64 blockSize = 1 << 20;
    while (!first.atEnd()) {
        const QByteArray block = first.read(blockSize);
        if (block.isEmpty() || block != second.read(blockSize))
            return false;
    }
    return true;
}

} // namespace

QString ExportNote::folder() const {
    return note_.path().chopped(kEnding.size());
}

Platform::Result<ExportNote> ExportNote::begin(const ExportJob& job) {
    auto note = NoteFile::create(kFolder, kEnding);
    if (!note)
        return note.error();
    QJsonObject values = progressOf(job);
    values.insert(u"began"_s, QDateTime::currentMSecsSinceEpoch());
    values.insert(u"date"_s, QDateTime::currentDateTime().toString(u"yyyy/MM/dd"_s));
    values.insert(u"input"_s, job.path(ExportJob::BuiltInAudioTempPath));
    values.insert(u"computer"_s, job.path(ExportJob::ComputerAudioTempPath));
    values.insert(u"wave"_s, job.path(ExportJob::OutPutWAVTempPath));
    values.insert(u"timings"_s, QJsonArray{timingOf(job.timings[0]), timingOf(job.timings[1])});
    values.insert(u"keptHoweverShort"_s, job.isKeptHoweverShort);
    values.insert(u"title"_s, titleOf(job.title));
    if (const auto written = note->append(values); !written) {
        note->remove();
        return written.error();
    }
    return ExportNote(*std::move(note));
}

void ExportNote::saveFilesOfEndedProcesses() {
    QDir all(NoteFile::folderPath(kFolder));
    if (!all.exists())
        return;
    // Two starts must not move the same files, nor empty a folder from which another one still moves them.
    Platform::FileLock moving;
    (void)moving.take(all.filePath(u".moving"_s), LongestWait);
    for (NoteFile& note : NoteFile::ofEndedProcesses(kFolder, kEnding))
        ExportNote(std::move(note)).saveFiles();
    // A file for which there was no room may have stayed in its folder when the note was removed.
    for (const QString& name : all.entryList(QDir::Dirs | QDir::NoDotAndDotDot | QDir::NoSymLinks))
        if (!all.exists(name + kEnding))
            Platform::TemporaryFolder::removeWhole(all.filePath(name));
}

std::vector<std::shared_ptr<ExportJob>> ExportNote::interrupted() {
    struct Found {
        double began;
        std::shared_ptr<ExportJob> job;
    };
    std::vector<Found> found;
    for (NoteFile& file : NoteFile::ofEndedProcesses(kFolder, kEnding)) {
        const auto values = file.values();
        if (!values)
            continue; // it may be readable later
        ExportNote note(std::move(file));
        auto job = jobOf(*values, note.folder());
        if (!takeUp(*job)) {
            note.giveUp();
            continue;
        }
        qCInfo(exportLog, "%s was interrupted and is continued", qUtf8Printable(job->path(ExportJob::OutPutPath)));
        job->note = std::make_shared<ExportNote>(std::move(note));
        found.push_back({(*values)[u"began"_s].toDouble(), std::move(job)});
    }
    std::ranges::sort(found, {}, &Found::began);
    std::vector<std::shared_ptr<ExportJob>> jobs;
    jobs.reserve(found.size());
    for (Found& each : found)
        jobs.push_back(std::move(each.job));
    return jobs;
}

bool ExportNote::isMoved(const QString& file, const QString& place) {
    if (place.isEmpty() || !QFileInfo(place).isFile())
        return false;
    if (!QFileInfo::exists(file))
        return true;
    if (!areEqual(file, place))
        return false;
    (void)Platform::FileManager::removeFile(file);
    return true;
}

void ExportNote::update(const ExportJob& job) {
    if (const auto written = note_.append(progressOf(job)); !written)
        qCWarning(exportLog, "%s", qUtf8Printable(written.error().forLog()));
}

void ExportNote::saveFiles() const {
    const auto values = note_.values();
    if (!values)
        return;
    for (const QString& file : filesOf(*values)) {
        const QString safe = folder() + u'/' + QFileInfo(file).fileName();
        if (!QFileInfo(file).isFile() || QFileInfo::exists(safe))
            continue;
        (void)QDir().mkpath(folder());
        if (Platform::FileManager::move(file, safe))
            continue;
        const QString name = QFileInfo((*values)[u"output"_s].toString()).completeBaseName();
        qCWarning(exportLog, "%s was not finished and is kept at %s", qUtf8Printable(name),
                  qUtf8Printable(Platform::MovedFiles::setAside(file, name + u' ' + QFileInfo(file).fileName())));
    }
}

/// Removes the note of a job that cannot be continued. Files that it left are kept.
void ExportNote::giveUp() {
    const QFileInfoList files = QDir(folder()).entryInfoList(QDir::Files | QDir::Hidden | QDir::NoSymLinks);
    for (const QFileInfo& file : files)
        qCWarning(exportLog, "a recording was not finished; a file of it is kept at %s",
                  qUtf8Printable(Platform::MovedFiles::setAside(file.filePath(), file.fileName())));
    end();
}

void ExportNote::end() {
    auto* const defaults = Platform::services().userDefaults;
    if (defaults && !defaults->flush())
        return;
    Platform::TemporaryFolder::removeWhole(folder());
    note_.remove();
}
