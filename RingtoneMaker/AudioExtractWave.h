// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Media/ExtAudioFile.h"

#include <QList>

#include <functional>
#include <memory>
#include <span>
#include <vector>

/// Reads a whole audio file once and computes a coarse outline of it: ten signed samples per second. Used on one
/// thread, which need not be the main one.
class AudioExtractWave {
public:
    AudioExtractWave();
    ~AudioExtractWave();

    /// False when the file cannot be read.
    [[nodiscard]] bool openFile(const QString& path);
    /// One value for each whole tenth of a second, -1 to 1: the left channel's first sample of the block of 512 frames
    /// in which the tenth is completed. Needs an open file.
    [[nodiscard]] QList<float> extractSamplePoint();

    /// Stored for its owner; never called.
    [[nodiscard]] void* delegate() const { return delegate_; }
    void setDelegate(void* delegate) { delegate_ = delegate; }

    /// Called now and then on the extracting thread with the progress from 0 to 1. When it returns false, extraction
    /// stops and returns the values so far.
    void setProgress(std::function<bool(double)> progress) { progress_ = std::move(progress); }
    /// Called on the extracting thread with new values, starting at the number @p first. When fetching single values
    /// fails, the file is read from the beginning and all values are reported again.
    void setPoints(std::function<void(qsizetype first, std::span<const float> values)> points) {
        points_ = std::move(points);
    }
    /// Why openFile() failed, or the first damage found in the file.
    [[nodiscard]] Platform::Error error() const;

private:
    void tell(const QList<float>& points, qsizetype first) const;
    bool extractSparse(const std::vector<std::int64_t>& frames, QList<float>& points);

    std::unique_ptr<Platform::ExtAudioFileReader> infile_;
    AudioStreamBasicDescription actualOutputFormat_;
    void* delegate_ = nullptr;
    Platform::Error openError_;
    std::function<bool(double)> progress_;
    std::function<void(qsizetype, std::span<const float>)> points_;
};
