// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Foundation/Result.h"

#include <cstdint>
#include <functional>
#include <vector>

#include <QString>

/// Finds the silences of a recording and the places to cut it at. Any thread; blocks while the file is decoded.
namespace SilenceFinder {

/// What counts as a silence.
struct Rule {
    double seconds = 1; ///< shortest length
    double level = -60; ///< decibels of full scale: each sample of each channel lies below
};

/// Frames at the file's own rate; the end is not included.
struct Silence {
    std::int64_t first = 0;
    std::int64_t end = 0;
    friend bool operator==(const Silence&, const Silence&) = default;
};

struct Found {
    std::vector<Silence> silences; ///< those of the rule, in order
    std::int64_t longest = 0;      ///< frames of the longest silence, also when it is shorter than the rule's
    std::int64_t frames = 0;       ///< of the file
    double sampleRate = 0;         ///< in Hz
};

/// @p progress receives a value from 0 to 1 and returns false to stop, which is an error of kind Cancelled.
Platform::Result<Found> find(const QString& path, const Rule& rule, const std::function<bool(double)>& progress = {});

/// The middle of each silence, in frames. A silence at the begin or the end of the file gives no cut: a part would
/// contain nothing else.
[[nodiscard]] std::vector<std::int64_t> cuts(const Found& found);

} // namespace SilenceFinder
