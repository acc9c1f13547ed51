// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <condition_variable>
#include <cstdint>
#include <deque>
#include <memory>
#include <mutex>
#include <vector>

namespace Platform {

/// Samples of several channels, one row per channel, all of one length.
class Planes {
public:
    explicit Planes(std::size_t channels = 0) : rows_(channels) {}
    [[nodiscard]] std::size_t channels() const { return rows_.size(); }
    [[nodiscard]] std::size_t frames() const { return rows_.empty() ? 0 : rows_.front().size(); }
    [[nodiscard]] float* row(std::size_t channel) { return rows_[channel].data(); }
    [[nodiscard]] const float* row(std::size_t channel) const { return rows_[channel].data(); }
    void resize(std::size_t frames) {
        for (auto& row : rows_)
            row.resize(frames);
    }
    void clear() { resize(0); }
    void append(const Planes& other, std::size_t from, std::size_t to) {
        for (std::size_t c = 0; c < rows_.size(); ++c)
            rows_[c].insert(rows_[c].end(), other.rows_[c].begin() + std::ptrdiff_t(from),
                            other.rows_[c].begin() + std::ptrdiff_t(to));
    }
    void erase(std::size_t from, std::size_t frames) {
        for (auto& row : rows_)
            row.erase(row.begin() + std::ptrdiff_t(from), row.begin() + std::ptrdiff_t(from + frames));
    }

private:
    std::vector<std::vector<float>> rows_;
};

/// Changes the rate of a stream of samples; output frame k lies at input frame k * in / out. Equal rates pass the
/// samples through.
class RateConverter {
public:
    RateConverter(std::size_t channels, int inRate, int outRate);
    ~RateConverter();
    /// False when no converter could be made for these rates.
    [[nodiscard]] bool valid() const;
    [[nodiscard]] bool passesThrough() const { return inRate_ == outRate_; }
    /// Appends the converted frames to @p out; the last ones are held back until more input follows.
    void feed(const float* const* rows, std::size_t frames, Planes& out);
    /// Appends the frames that were held back, as if silence followed.
    void flush(Planes& out);
    /// Resets all state.
    void reset();
    /// After this many input frames (and a whole number of output frames) the pattern of positions repeats.
    [[nodiscard]] std::int64_t period() const { return period_; }
    /// The number of output frames for @p inputFrames input frames, rounded to the nearest.
    [[nodiscard]] std::int64_t outputFrames(std::int64_t inputFrames) const;

private:
    void run(const std::uint8_t** in, std::size_t frames, Planes& out);

    struct Engine;
    std::unique_ptr<Engine> engine_;
    std::size_t channels_;
    int inRate_;
    int outRate_;
    std::int64_t period_ = 1;
};

/// The last frames of a file that was cut: the converter outputs them only after frames from behind the cut were fed.
struct CutTail {
    std::mutex mutex;
    std::condition_variable changed;
    Planes frames; // guarded by mutex
    bool complete = false;
};

/// One stream of samples through a converter, written to one file after the other without losing or repeating a frame.
/// The writer of the current file feeds it; output that still belongs to an earlier file goes to that file's tail.
class ConversionStream {
public:
    ConversionStream(std::size_t channels, int inRate, int outRate);
    [[nodiscard]] bool valid() const { return converter_.valid(); }

    /// @p out receives the frames of the feeding writer's own file.
    void feed(const float* const* rows, std::size_t frames, Planes& out);
    /// Whether the rates are equal. Then the writer stores the frames itself, and they are only counted here.
    [[nodiscard]] bool passesThrough() const { return converter_.passesThrough(); }
    void pass(std::size_t frames);
    /// The file of @p tail ends after the frames fed so far.
    void cut(std::shared_ptr<CutTail> tail);
    /// Ends the stream: @p out receives the rest, so that all files together hold outputFrames(fed).
    void finish(Planes& out);
    /// Completes all tails now, although nothing was fed behind the cut. Frames that are fed later start after silence,
    /// at the right position.
    void completeTails();

private:
    void distribute(Planes& out);
    void flushToEnd();
    void skipFrom(std::size_t at);

    struct Segment {
        std::int64_t end;
        std::shared_ptr<CutTail> tail;
    };
    std::mutex mutex_;
    RateConverter converter_;
    std::size_t channels_;
    Planes fresh_;
    std::deque<Segment> segments_;
    std::int64_t fed_ = 0;
    std::int64_t produced_ = 0; // frames returned so far, to tails and to the current file
    std::int64_t skip_ = 0;     // frames before the wanted position that a restarted converter gives
};

} // namespace Platform
