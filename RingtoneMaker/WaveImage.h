// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QList>

class QPainter;

namespace WaveImage {

inline constexpr int kHeight = 200;         ///< points
inline constexpr int kPointsPerSecond = 10; ///< one value of the outline per point
inline constexpr int kFewestValues = 11;    ///< with fewer values there is no image

/// The outline as red lines on a transparent background, one point wide for each value, centred vertically. Null for
/// ten values or fewer. Any thread.
[[nodiscard]] QImage draw(const QList<float>& values);

/// Like draw(), on the grey of the waveform strip.
[[nodiscard]] QImage drawOnStrip(const QList<float>& values);

/// Draws the values from number @p begin up to @p end, each at its own number from the painter's left. Transparent
/// background.
void paint(QPainter& painter, const QList<float>& values, qsizetype begin, qsizetype end);

} // namespace WaveImage
