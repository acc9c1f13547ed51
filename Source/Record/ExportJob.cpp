// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/Record/ExportJob.h"

#include <cmath>

namespace {

/// Clocks of real devices differ by some hundred parts per million. A larger value is a failed measurement.
constexpr double LargestDrift = 2e-3;

} // namespace

QStringList ExportJob::rawFiles() const {
    QStringList raws{path(BuiltInAudioTempPath), path(ComputerAudioTempPath)};
    raws.removeAll(QString());
    return raws;
}

ExportJob::Timing ExportJob::timing() const {
    Timing timing;
    const auto& [builtIn, computer] = timings;
    if (builtIn.span.firstHostTime == 0 || computer.span.firstHostTime == 0)
        return timing;
    const double later = (double(computer.span.firstHostTime) - double(builtIn.span.firstHostTime)) / 1e9;
    (later > 0 ? timing.computerOffset : timing.builtInOffset) = std::abs(later);
    if (builtIn.span.measuredRate > 0 && computer.span.measuredRate > 0 && builtIn.sampleRate > 0 &&
        computer.sampleRate > 0) {
        const double speed =
            (computer.span.measuredRate / computer.sampleRate) / (builtIn.span.measuredRate / builtIn.sampleRate);
        if (std::abs(speed - 1) < LargestDrift)
            timing.computerSpeed = speed;
    }
    return timing;
}
