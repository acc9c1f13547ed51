// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/Control/Fades.h"

#include <algorithm>

namespace {
constexpr double kShortestFade = 0.99;
}

double Fades::gainAt(double source, double written) const {
    const double time = source - rangeBegin;
    const double outStart = (rangeEnd - rangeBegin) - fadeOut;
    double gain = 1;
    if (fadeIn >= kShortestFade && time <= fadeIn)
        gain = time / fadeIn;
    if (fadeOut >= kShortestFade && time >= outStart)
        gain = 1 - (time - outStart) / fadeOut;
    if (gain >= 0.99 && fadeOut >= kShortestFade && written >= length - fadeOut)
        gain = (length - written) / fadeOut;
    return std::clamp(gain, 0.0, 1.0);
}
