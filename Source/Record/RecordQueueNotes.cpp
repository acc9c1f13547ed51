// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The notes of the jobs, and jobs that an earlier process did not finish.
#include "Source/Record/CutOffRecordings.h"
#include "Source/Record/ExportNote.h"
#include "Source/Record/RecordQueue.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

/// Writes the note of a new job. exit() then leaves its files to the next start.
void RecordQueue::writeNote(ExportJob& job) {
    if (job.note)
        return;
    auto note = ExportNote::begin(job);
    if (!note) {
        qWarning("a recording is finished without a note: %s", qUtf8Printable(note.error().forLog()));
        return;
    }
    job.note = std::make_shared<ExportNote>(*std::move(note));
    for (const QString& raw : job.rawFiles())
        CutOffRecordings::remove(raw);
}

/// The job has reached a stage; the note says so before the next step removes what the earlier stage needs.
void RecordQueue::reach(ExportJob& job, ExportJob::Stage stage) {
    job.stage = stage;
    if (job.note)
        job.note->update(job);
}

void RecordQueue::keepAtExit(const ExportJob& job, const QString& path) {
    if (!job.note)
        CutOffRecordings::add(path);
}

/// Continues a job that is not at its beginning. On the worker.
void RecordQueue::continueJob(const std::shared_ptr<ExportJob>& job) {
    switch (job->stage) {
    case ExportJob::Stage::Raw:
        break;
    case ExportJob::Stage::Mixed:
        converterAudio(job);
        break;
    case ExportJob::Stage::Encoded:
    case ExportJob::Stage::Delivered:
    case ExportJob::Stage::TracksWritten:
        completeRecording(job);
        break;
    case ExportJob::Stage::Tagged:
        onMain([this, job] { finishConverter(job); });
        break;
    }
}

void RecordQueue::tellContinued(const QString& path) {
    RecordNotice notice{
        .text = QCoreApplication::translate("Record", "An interrupted recording is complete now:", "a path follows")};
    notice.path = path;
    notice.help = RecordNotice::Help::Show;
    notice.event = u"continued "_s + path;
    notice.outlivesRecording = true;
    Q_EMIT noticed(notice);
}
