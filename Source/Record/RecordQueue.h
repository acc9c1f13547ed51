// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Foundation/MainQueue.h"
#include "Platform/Media/ExtAudioFile.h"
#include "Source/Control/ConverterAudioControl.h"
#include "Source/Preferences/RecordPreferences.h"
#include "Source/Record/ExportJob.h"
#include "Source/Record/RecordNotice.h"

#include <QObject>
#include <QThreadPool>

#include <atomic>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>

/// Turns finished recordings into tagged files, one at a time in order: one source is moved, two are mixed and encoded.
/// All file operations run on a worker: mixing, encoding, moving, measuring, tagging and deleting. The files of a
/// failed job are set aside, and a notice says where.
///
/// Main thread only, except for append() and rawFileClosed().
class RecordQueue : public QObject {
    Q_OBJECT
public:
    /// What the queue needs from its owner. addRecordFile and hasRecordFile are called on the main thread, releaseName
    /// on both, the others on a worker.
    struct Owner {
        /// Reserves the next free name for a recording whose own name was taken by another file.
        std::function<QString()> nextFreeName;
        std::function<void(const QString& path)> releaseName;
        std::function<void(const QString& path, const Dictionary& tags)> addRecordFile;
        std::function<bool(const QString& path)> hasRecordFile; ///< whether the library has an entry of the file
        std::function<RecordFilter()> filter;
    };

    /// The event of notices about a recording that could not be written completely.
    static inline const QString UnwrittenEvent = QStringLiteral("write");

    explicit RecordQueue(Owner owner, QObject* parent = nullptr);
    /// Stops the current job. The next start continues all jobs; the files of a job without a note are set aside.
    ~RecordQueue() override;

    /// Any thread. A worker writes the job's note first.
    void append(std::shared_ptr<ExportJob> job);
    /// Reports that one raw file of the job is closed, and its first write error. Any thread. A writer may call this
    /// after the queue is destroyed: the guard, obtained while the queue lives, then makes it do nothing.
    struct Guard {
        Platform::MainQueue::WhileAlive::Handle alive;
        RecordQueue* queue; ///< use it only in work that is posted through @p alive
    };
    [[nodiscard]] Guard guard() { return {alive_.handle(), this}; }
    static void rawFileClosed(const Guard& guard, const std::shared_ptr<ExportJob>& job, OSStatus status);

    /// Jobs that wait or are running.
    [[nodiscard]] int count() const;
    /// Progress of the current job, 0 to 1; negative when there is none.
    [[nodiscard]] double progress() const;
    /// The initial tags of a new recording.
    [[nodiscard]] static Dictionary initID3BasicInfoDic();

    // The steps of a job.
    void converterTherecordAudio();
    /// Mixes @p audio into @p movie; a missing movie is replaced by the audio. False when there is no audio.
    static bool addAudioIntoMove(std::unique_ptr<Platform::Movie>& movie, std::unique_ptr<Platform::Movie> audio);

Q_SIGNALS:
    void queueChanged();
    /// A job is done. @p entry is empty when the filter kept the recording out of the library.
    void recordingFinished(const QString& path, const Dictionary& entry);
    /// A job failed; its files are now at @p kept.
    void recordingSetAside(const QString& path, const QStringList& kept);
    void noticed(const RecordNotice& notice);

private:
    void onMain(std::function<void()> work);
    void onWorker(std::function<void()> work);
    static void writeNote(ExportJob& job);
    static void reach(ExportJob& job, ExportJob::Stage stage);
    void continueJob(const std::shared_ptr<ExportJob>& job);
    void completeRecording(const std::shared_ptr<ExportJob>& job);
    void tellContinued(const QString& path);
    void moveRawFile(const std::shared_ptr<ExportJob>& job, const QString& rawPath);
    void openMovies(const std::shared_ptr<ExportJob>& job);
    /// Mixes the second movie into the first, by the job's timing.
    [[nodiscard]] static std::unique_ptr<Platform::Movie>
    composed(const ExportJob& job, std::unique_ptr<Platform::Movie> first, std::unique_ptr<Platform::Movie> second);
    void keepTracks(ExportJob& job);
    [[nodiscard]] Platform::Result<> writeTracks(const ExportJob& job);
    void deliverTrack(ExportJob& job, const QString& file, RecordingTracks::Source source);
    void converterMovie(const std::shared_ptr<ExportJob>& job);
    void startConverterAudio(const std::shared_ptr<ExportJob>& job);
    void converterAudio(const std::shared_ptr<ExportJob>& job);
    bool deliver(const std::shared_ptr<ExportJob>& job, const QString& file);
    void setAside(const std::shared_ptr<ExportJob>& job, const QStringList& files, const QString& why);
    QStringList keepFiles(const ExportJob& job, const QStringList& files);
    void keepDamaged(ExportJob& job, const QStringList& keys, const Platform::Error& damage);
    void tagFile(const std::shared_ptr<ExportJob>& job);
    /// Adds the result of a job to the library and continues with the next job.
    void finishConverter(const std::shared_ptr<ExportJob>& job);
    void endJob(const QString& reservedPath);
    void setProgress(double share);
    /// A notice about files that were kept. @p isWhole: they are what the text is about, not what it was made from.
    void tellKept(const QString& text, const QStringList& kept, bool isWhole);
    [[nodiscard]] static QString reason(const Platform::Error& error);
    static void removeTemporaryFile(const QString& path);
    /// exit() keeps the file of a job without a note.
    static void keepAtExit(const ExportJob& job, const QString& path);

    Owner owner_;
    Platform::MainQueue::WhileAlive alive_;
    mutable std::mutex mutex_; ///< guards the list
    std::deque<std::shared_ptr<ExportJob>> aryForExportDataInfo_;
    bool isConverterTherecordAudio_ = false;
    bool working_ = false; ///< the first job's raw files are closed and one of its steps is running
    std::atomic<double> progress_{-1};
    std::atomic<bool> cancelled_{false};
    std::unique_ptr<Platform::Movie> qtMovieForRecord_;
    ConverterAudioControl converterAudioControl_;
    QThreadPool notes_;  ///< writes and removes notes, so that a waiting job has one while another is mixed
    QThreadPool worker_; ///< destroyed first: waits for the running step
};
