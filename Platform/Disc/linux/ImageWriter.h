// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Disc/AudioTrack.h"

#include <atomic>
#include <functional>
#include <mutex>

namespace Platform {

/// Writes the two files of one disc image, on as many threads as there are processors. For one use.
class ImageWriter {
public:
    using Progress = std::function<void(double share, bool closing)>;

    /// @p aborted may become true at any time.
    ImageWriter(DRLayout layout, QString cue, QString bin, const std::atomic<bool>& aborted);

    /// Blocks until both files exist complete under their names. @p progress is called on this thread ten times a
    /// second. @return why there is no image, for the user; empty on success. On failure no file is left
    [[nodiscard]] QString write(const Progress& progress);
    /// Progress from 0 to 1. Any thread.
    [[nodiscard]] double share() const;

private:
    /// A part of one track and its position in the file.
    struct Stretch {
        std::size_t track;
        std::int64_t first; ///< first sector in the track
        std::int64_t sectors;
        std::int64_t place; ///< first sector in the file
    };
    void divide();
    void work();
    [[nodiscard]] QString render(const Stretch& stretch, std::unique_ptr<SectorRenderer>& renderer,
                                 std::vector<std::byte>& memory);
    void stop(const QString& problem);
    [[nodiscard]] QString inWords(int error) const;

    DRLayout layout_;
    QString cue_;
    QString bin_;
    const std::atomic<bool>& aborted_;
    int file_ = -1;
    std::vector<Stretch> stretches_;
    std::int64_t audio_ = 0; ///< sectors that hold audio
    std::int64_t total_ = 0; ///< all sectors of the file

    std::atomic<std::size_t> next_{0};
    std::atomic<std::int64_t> done_{0};
    std::atomic<bool> stopped_{false};
    std::mutex mutex_;
    QString problem_; ///< guarded by mutex_: the first error
};

} // namespace Platform
