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
#include "Source/Record/ExportNote.h"
#include "Source/Record/RecordQueue.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <utility>

using namespace Qt::StringLiterals;
using Platform::Error;

namespace {

/// Progress at which the tracks begin; see ShareBeforeTracks in RecordQueue.cpp.
constexpr double TracksBegin = 0.4;
/// Bytes per second of one encoded track.
constexpr double TrackBytesPerSecond = 18000;

} // namespace

void RecordQueue::keepTracks(ExportJob& job) {
    const QStringList raws = job.rawFiles();
    if (job.stage < ExportJob::Stage::TracksWritten) {
        Platform::Result<> written;
        if (raws.size() == 2) {
            job.trackFiles = {raws.at(0) + u".track.m4a"_s, raws.at(1) + u".track.m4a"_s};
            written = writeTracks(job);
            if (cancelled_)
                return; // the next start continues, or the destructor sets the raw files aside
        } else {
            written = Error{Error::Kind::NotFound,
                            QCoreApplication::translate("Record", "the recorded sound of a source is missing")};
        }
        if (!written) {
            const QString name = QFileInfo(job.path(ExportJob::OutPutPath)).fileName();
            const QStringList kept = keepFiles(job, raws);
            tellKept(QCoreApplication::translate("Record", "%1 is complete, but its tracks could not be kept: %2.")
                         .arg(name, reason(written.error())),
                     kept, false);
            for (const auto& key : {ExportJob::BuiltInAudioTempPath, ExportJob::ComputerAudioTempPath})
                job.paths.remove(key);
            return;
        }
        for (const QString& file : std::as_const(job.trackFiles))
            keepAtExit(job, file);
        reach(job, ExportJob::Stage::TracksWritten);
    }
    for (const QString& raw : raws)
        removeTemporaryFile(raw);
    deliverTrack(job, job.trackFiles.at(0), RecordingTracks::Source::Input);
    deliverTrack(job, job.trackFiles.at(1), RecordingTracks::Source::Computer);
}

/// Writes both tracks into the temporary folder. A part that cannot be read was reported by the mix.
Platform::Result<> RecordQueue::writeTracks(const ExportJob& job) {
    auto* media = Platform::services().mediaFiles;
    const QStringList raws = job.rawFiles();
    const QStringList& files = job.trackFiles;
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

/// Tags a track and moves it beside the mix, under the next free name when its own is taken. Its path in the job is
/// then where it was kept when it cannot be moved; empty when it waits for room.
void RecordQueue::deliverTrack(ExportJob& job, const QString& file, RecordingTracks::Source source) {
    const QString mix = job.path(ExportJob::OutPutPath);
    QString& place = source == RecordingTracks::Source::Input ? job.tracks.input : job.tracks.computer;
    if (job.isContinued && ExportNote::isMoved(file, place))
        return;
    // The note says where the track goes before it is there.
    const auto aim = [&](int number) {
        place = RecordingTracks::pathBeside(mix, source, number);
        reach(job, ExportJob::Stage::TracksWritten);
        return place;
    };
    const QString wished = aim(1);
    Dictionary tags = initID3BasicInfoDic();
    if (!job.date.isEmpty())
        tags.insert(AudioRecordEntry::AddDate, job.date);
    tags.insert(AudioRecordEntry::Title, QFileInfo(wished).completeBaseName());
    (void)ID3ChangeControl::changeID3BasicInfo(file, tags);
    int number = 1;
    const auto landed =
        Platform::FileManager::moveToFreeName(file, wished, [&](const QString&) { return aim(++number); });
    if (landed) {
        CutOffRecordings::remove(file);
        return;
    }
    const QString kept = Platform::MovedFiles::setAside(file, QFileInfo(wished).fileName());
    CutOffRecordings::remove(file);
    tellKept(QCoreApplication::translate("Record", "%1 could not be saved beside its recording: %2.")
                 .arg(QFileInfo(wished).fileName(), landed.error().text),
             {kept}, true);
    // In the temporary folder it waits for room, and gets another path.
    place = QFileInfo(kept).path() == Platform::FileManager::unfinishedFolder() ? kept : QString();
}
