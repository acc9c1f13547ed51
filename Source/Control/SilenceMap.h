// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Source/Control/SilenceFinder.h"

#include <array>
#include <cstdint>
#include <functional>
#include <vector>

#include <QString>

/// The silences of one recording at every whole level, found by reading the file once: a window can then try levels and
/// lengths without reading it again. The answers equal those of SilenceFinder::find(). Immutable once read, so any
/// thread may ask it.
class SilenceMap {
public:
    static constexpr int kLowestLevel = -90;  ///< decibels of full scale
    static constexpr int kHighestLevel = -20; ///< decibels of full scale
    static constexpr double kShortest = 0.1;  ///< seconds: shorter silences are not kept

    /// Reads the whole file on two threads. Any thread; blocks. @p progress is called on the calling thread with a
    /// value from 0 to 1 and returns false to stop, which is an error of kind Cancelled.
    static Platform::Result<SilenceMap> read(const QString& path, const std::function<bool(double)>& progress = {});

    /// The silences of a rule. Its level is rounded to whole decibels and limited to the levels above; a length below
    /// kShortest counts as kShortest. `longest` is 0 when no silence reaches kShortest.
    [[nodiscard]] SilenceFinder::Found find(const SilenceFinder::Rule& rule) const;

    [[nodiscard]] std::int64_t frames() const { return frames_; }
    [[nodiscard]] double sampleRate() const { return sampleRate_; }

private:
    static constexpr int kLevels = kHighestLevel - kLowestLevel + 1;

    std::array<std::vector<SilenceFinder::Silence>, kLevels> silences_; ///< of kShortest or more, in order
    std::int64_t frames_ = 0;
    double sampleRate_ = 0;
};
