// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QList>

class QPainter;

namespace WaveImage {

inline constexpr int kHeight = 200;         ///< points
inline constexpr int kPointsPerSecond = 10; ///< one value of the outline a point
inline constexpr int kFewestValues = 11;    ///< below that there is no picture

/// The outline as red lines on a clear ground, one point wide for each value, centred on the middle of the height.
/// Null for ten values or fewer. Any thread.
[[nodiscard]] QImage draw(const QList<float>& values);

/// The same on the grey of the waveform strip.
[[nodiscard]] QImage drawOnStrip(const QList<float>& values);

/// Draws the values from the number @p begin up to @p end, each at its own number from the painter's left. Clear
/// ground.
void paint(QPainter& painter, const QList<float>& values, qsizetype begin, qsizetype end);

} // namespace WaveImage
