// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Disc/linux/ImageWriter.h"

#include "Platform/Disc/CueSheet.h"
#include "Platform/Foundation/FileManager.h"
#include "Platform/Foundation/ReplacementFile.h"
#include "Platform/Foundation/Translations.h"
#include "Platform/Foundation/linux/Descriptor.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <condition_variable>
#include <fcntl.h>
#include <thread>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace Platform {

namespace {

constexpr std::int64_t kStretchSectors = std::int64_t(120) * CDFormat::kSectorsPerSecond;
constexpr std::int64_t kImageBlockSectors = 75;
constexpr unsigned kMostThreads = 8;
constexpr auto kBetweenReports = std::chrono::milliseconds(100);

QString megabytes(std::int64_t bytes) {
    return QCoreApplication::translate("Disc", "%1 MB").arg(Translations::number((bytes + 999'999) / 1'000'000));
}

} // namespace

ImageWriter::ImageWriter(DRLayout layout, QString cue, QString bin, const std::atomic<bool>& aborted)
    : layout_(std::move(layout)), cue_(std::move(cue)), bin_(std::move(bin)), aborted_(aborted) {
    divide();
}

/// Divides long tracks where their format allows it, so that one long file uses all processors.
void ImageWriter::divide() {
    for (std::size_t i = 0; i < layout_.size(); ++i) {
        total_ += layout_[i]->properties().preGapLength;
        const auto track = std::dynamic_pointer_cast<AudioTrack>(layout_[i]);
        const std::int64_t sectors = layout_[i]->sectors();
        const std::int64_t most = track && track->canBeDivided() ? kStretchSectors : sectors;
        for (std::int64_t first = 0; first < sectors; first += most)
            stretches_.push_back({i, first, std::min(most, sectors - first), total_ + first});
        total_ += sectors;
        audio_ += sectors;
    }
}

double ImageWriter::share() const {
    return audio_ > 0 ? double(done_) / double(audio_) : 0;
}

void ImageWriter::stop(const QString& problem) {
    const std::lock_guard lock(mutex_);
    if (problem_.isEmpty())
        problem_ = problem;
    stopped_ = true;
}

QString ImageWriter::inWords(int error) const {
    if (error == ENOSPC || error == EDQUOT)
        return QCoreApplication::translate("Disc", "%1: the disk is full: the image needs %2, %3 are free")
            .arg(bin_, megabytes(total_ * CDFormat::kBytesPerSector), megabytes(FileManager::availableBytes(bin_)));
    if (error == EEXIST)
        return QCoreApplication::translate("Disc",
                                           "%1: exists already, and an image replaces no file; choose another name")
            .arg(bin_);
    return QCoreApplication::translate("Disc", "%1: cannot be written: %2").arg(bin_, qt_error_string(error));
}

QString ImageWriter::render(const Stretch& stretch, std::unique_ptr<SectorRenderer>& renderer,
                            std::vector<std::byte>& memory) {
    const QString& path = layout_[stretch.track]->path();
    if (!renderer->seek(stretch.first))
        return QCoreApplication::translate("Disc", "%1: cannot be read").arg(path);
    for (std::int64_t done = 0; done < stretch.sectors;) {
        if (aborted_ || stopped_)
            return {};
        const auto sectors = std::min(kImageBlockSectors, stretch.sectors - done);
        const auto block = std::span(memory).first(std::size_t(sectors * CDFormat::kBytesPerSector));
        if (const auto rendered = renderer->render(block); !rendered)
            return rendered.error().text.isEmpty() ? QCoreApplication::translate("Disc", "%1: cannot be read").arg(path)
                                                   : rendered.error().text;
        const std::int64_t at = (stretch.place + done) * CDFormat::kBytesPerSector;
        if (!writeAllAt(file_, QByteArrayView(block.data(), qsizetype(block.size())), at))
            return inWords(errno);
        // Starts the write-back at once, so that little is left to wait for at the end.
        (void)::sync_file_range(file_, at, off_t(block.size()), SYNC_FILE_RANGE_WRITE);
        done += sectors;
        done_ += sectors;
    }
    return {};
}

void ImageWriter::work() {
    std::vector<std::byte> memory(std::size_t(kImageBlockSectors * CDFormat::kBytesPerSector));
    std::unique_ptr<SectorRenderer> renderer;
    std::size_t track = layout_.size();
    for (std::size_t i = next_++; i < stretches_.size() && !stopped_ && !aborted_; i = next_++) {
        const Stretch& stretch = stretches_[i];
        if (stretch.track != track) {
            track = stretch.track;
            const auto audio = std::dynamic_pointer_cast<AudioTrack>(layout_[track]);
            if (!audio)
                return stop(
                    QCoreApplication::translate("Disc", "%1: is not an audio file").arg(layout_[track]->path()));
            auto opened = audio->renderer();
            if (!opened)
                return stop(opened.error().text);
            renderer = *std::move(opened);
        }
        if (const QString problem = render(stretch, renderer, memory); !problem.isEmpty())
            return stop(problem);
    }
}

QString ImageWriter::write(const Progress& progress) {
    const std::int64_t bytes = total_ * CDFormat::kBytesPerSector;
    ReplacementFile data(bin_, ReplacementFile::Existing::Kept);
    ReplacementFile sheet(cue_, ReplacementFile::Existing::Kept);
    if (const int error = data.open(); error != 0)
        return inWords(error);
    file_ = data.descriptor();
    // Reserves the space first where the file system can: a full disk is then reported before the work.
    if (::fallocate(file_, 0, 0, bytes) != 0) {
        if (errno == ENOSPC || errno == EDQUOT)
            return inWords(errno);
        if (::ftruncate(file_, bytes) != 0)
            return inWords(errno);
    }
    if (const int error = sheet.open(); error != 0)
        return inWords(error);
    if (!writeAll(sheet.descriptor(), cueSheet(layout_, QFileInfo(bin_).fileName())))
        return inWords(errno);

    std::condition_variable ended;
    std::mutex endedMutex;
    const unsigned count = std::clamp(std::thread::hardware_concurrency(), 1U, kMostThreads);
    unsigned running = count;
    std::vector<std::thread> threads;
    for (unsigned i = 0; i < count; ++i)
        threads.emplace_back([&] {
            work();
            const std::lock_guard lock(endedMutex);
            --running;
            ended.notify_one();
        });
    {
        std::unique_lock lock(endedMutex);
        while (!ended.wait_for(lock, kBetweenReports, [&] { return running == 0; }))
            progress(share(), false);
    }
    for (std::thread& thread : threads)
        thread.join();

    if (!problem_.isEmpty())
        return problem_;
    if (!aborted_)
        progress(share(), true);
    // The sync may take long; an abort is still possible before it.
    if (!aborted_ && ::fdatasync(file_) != 0)
        return inWords(errno);
    if (aborted_)
        return QCoreApplication::translate("Disc", "it was stopped before the end: nothing was written");
    const int error = ReplacementFile::commitTogether(data, sheet);
    return error == 0 ? QString() : inWords(error);
}

} // namespace Platform
