// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The kept tracks of a recording of both sources: written from the raw files when the mix is at its place, so that a
// full disk costs the tracks and never the mix.
#include "Platform/Foundation/FileManager.h"
#include "Platform/Foundation/MovedFiles.h"
#include "Platform/Foundation/Services.h"
#include "Platform/Media/ExtAudioFile.h"
#include "Source/BuiltInAudioRecord/ExportFormat.h"
#include "Source/Control/ID3ChangeControl.h"
#include "Source/Model/AudioRecordEntry.h"
#include "Source/Record/CutOffRecordings.h"
#include "Source/Record/RecordQueue.h"

#include <QCoreApplication>
#include <QFileInfo>

using namespace Qt::StringLiterals;
using Platform::Error;

namespace {

/// Progress at which the tracks begin; see ShareBeforeTracks in RecordQueue.cpp.
constexpr double TracksBegin = 0.4;
/// Bytes per second of one encoded track.
constexpr double TrackBytesPerSecond = 18000;

} // namespace

/// The raw files that the job still has: of the input device, then of computer audio.
QStringList RecordQueue::rawFiles(const ExportJob& job) {
    QStringList raws{job.path(ExportJob::BuiltInAudioTempPath), job.path(ExportJob::ComputerAudioTempPath)};
    raws.removeAll(QString());
    return raws;
}

void RecordQueue::keepTracks(const std::shared_ptr<ExportJob>& job) {
    const QStringList raws = rawFiles(*job);
    const QStringList files{raws.at(0) + u".track.m4a"_s, raws.at(1) + u".track.m4a"_s};
    const auto written = writeTracks(*job, files);
    if (cancelled_)
        return; // the destructor sets the raw files aside
    if (!written) {
        const QString name = QFileInfo(job->path(ExportJob::OutPutPath)).fileName();
        const QStringList kept = keepFiles(*job, raws);
        tellKept(QCoreApplication::translate("Record", "%1 is complete, but its tracks could not be kept: %2.")
                     .arg(name, reason(written.error())),
                 kept, false);
        for (const auto& key : {ExportJob::BuiltInAudioTempPath, ExportJob::ComputerAudioTempPath})
            job->paths.remove(key);
        return;
    }
    for (const QString& file : files)
        CutOffRecordings::add(file);
    for (const QString& raw : raws)
        removeTemporaryFile(raw);
    job->tracks.input = deliverTrack(*job, files.at(0), RecordingTracks::Source::Input);
    job->tracks.computer = deliverTrack(*job, files.at(1), RecordingTracks::Source::Computer);
}

/// Writes both tracks into the temporary folder. A part that cannot be read was reported by the mix.
Platform::Result<> RecordQueue::writeTracks(const ExportJob& job, const QStringList& files) {
    auto* media = Platform::services().mediaFiles;
    const QStringList raws = rawFiles(job);
    auto first = media->openMovie(raws.at(0));
    if (!first)
        return first.error();
    auto second = media->openMovie(raws.at(1));
    if (!second)
        return second.error();
    const auto movie = composed(job, *std::move(first), *std::move(second));
    const qint64 available = Platform::FileManager::availableBytes(QFileInfo(files.front()).path());
    if (available >= 0 && double(available) < 2 * movie->duration() * TrackBytesPerSecond)
        return Error{Error::Kind::DiskFull, QCoreApplication::translate("Record", "the disk is nearly full")};
    return movie->writeTracks(files, aacExportFormat(), [this](double share) {
        setProgress(TracksBegin + share * (1 - TracksBegin));
        return !cancelled_;
    });
}

/// Tags a track and moves it beside the mix, under the next free name when its own is taken. @return its path; where it
/// was kept when it cannot be moved; empty when it waits for room
QString RecordQueue::deliverTrack(const ExportJob& job, const QString& file, RecordingTracks::Source source) {
    const QString mix = job.path(ExportJob::OutPutPath);
    const QString wished = RecordingTracks::pathBeside(mix, source);
    Dictionary tags = initID3BasicInfoDic();
    tags.insert(AudioRecordEntry::Title, QFileInfo(wished).completeBaseName());
    (void)ID3ChangeControl::changeID3BasicInfo(file, tags);
    int number = 1;
    const auto landed = Platform::FileManager::moveToFreeName(
        file, wished, [&](const QString&) { return RecordingTracks::pathBeside(mix, source, ++number); });
    if (landed) {
        CutOffRecordings::remove(file);
        return *landed;
    }
    const QString kept = Platform::MovedFiles::setAside(file, QFileInfo(wished).fileName());
    CutOffRecordings::remove(file);
    tellKept(QCoreApplication::translate("Record", "%1 could not be saved beside its recording: %2.")
                 .arg(QFileInfo(wished).fileName(), landed.error().text),
             {kept}, true);
    // In the temporary folder it waits for room, and gets another path.
    return QFileInfo(kept).path() == Platform::FileManager::unfinishedFolder() ? kept : QString();
}
