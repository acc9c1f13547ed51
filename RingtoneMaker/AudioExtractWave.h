// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Media/ExtAudioFile.h"

#include <QList>

#include <functional>
#include <memory>
#include <span>
#include <vector>

/// Reads a whole audio file once and gives a coarse outline of it: ten signed samples a second. Used on one thread,
/// which need not be the main one.
class AudioExtractWave {
public:
    AudioExtractWave();
    ~AudioExtractWave();

    /// False when the file cannot be read.
    [[nodiscard]] bool openFile(const QString& path);
    /// One value for each whole tenth of a second, -1 to 1: the left channel's sample at the begin of the block of 512
    /// frames in which the tenth is full. Needs an open file.
    [[nodiscard]] QList<float> extractSamplePoint();

    /// Held for its owner; nothing is ever sent to it.
    [[nodiscard]] void* delegate() const { return delegate_; }
    void setDelegate(void* delegate) { delegate_ = delegate; }

    /// Told the share done (0 to 1) now and then on the extracting thread; answers false to stop: what is there is
    /// answered.
    void setProgress(std::function<bool(double)> progress) { progress_ = std::move(progress); }
    /// Told the values as they are found, on the extracting thread: those from the number @p first on. What is not
    /// decided by single values is read anew from the begin and told again.
    void setPoints(std::function<void(qsizetype first, std::span<const float> values)> points) {
        points_ = std::move(points);
    }
    /// Why openFile() failed, or what was damaged in the file.
    [[nodiscard]] Platform::MediaError error() const;

private:
    void tell(const QList<float>& points, qsizetype first) const;
    bool extractSparse(const std::vector<std::int64_t>& frames, QList<float>& points);

    std::unique_ptr<Platform::ExtAudioFileReader> infile_;
    AudioStreamBasicDescription actualOutputFormat_;
    void* delegate_ = nullptr;
    Platform::MediaError openError_;
    std::function<bool(double)> progress_;
    std::function<void(qsizetype, std::span<const float>)> points_;
};
