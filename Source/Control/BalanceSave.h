// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Source/Control/AudioTrimSave.h"
#include "Source/Control/BalanceReader.h"

#include <functional>

/// Mixes the kept tracks of a recording anew, in place of the mix or into a new file. Like a trim, the result is
/// written completely beside its target before it takes the name. On a worker, one at a time per process; @p progress
/// receives a value from 0 to 1 on that thread and returns false to stop; then nothing is saved.
namespace BalanceSave {

struct Task {
    RecordingTracks::Tracks tracks;
    BalanceSettings settings;
    AudioTrimSave::Task file; ///< source: the present mix. The range is not used
    bool lowersToFit = false; ///< false: nothing is saved when the sum would be clipped
};

struct Result {
    AudioTrimSave::Result file;
    double seconds = 0;       ///< of the new mix
    double tooLoud = 0;       ///< dB by which the sum exceeds the largest sample; 0 when it fits
    BalanceSettings settings; ///< those that were used; lower than the task's when the sum did not fit
};

/// Why the tracks cannot be mixed now, in one sentence; empty when they can. Quick.
[[nodiscard]] QString refusal(const RecordingTracks::Tracks& tracks, const QString& mix);

/// The largest absolute sample of the sum; 1 is the loudest that a file can hold.
[[nodiscard]] Platform::Result<double> peak(const RecordingTracks::Tracks& tracks, const BalanceSettings& settings,
                                            const std::function<bool(double)>& progress = {});
/// A sample in dB relative to the loudest that a file can hold; -200 for silence.
[[nodiscard]] double decibels(double sample);

[[nodiscard]] Result run(const Task& task, const std::function<bool(double)>& progress);

} // namespace BalanceSave
