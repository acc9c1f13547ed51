// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QString>

class QWidget;

namespace Screenshot {

/// What a widget looks like at @p ratio pixels a point, drawn without a screen. With SONAPHEX_SCREENSHOTS set to a
/// folder, also written there as <name>.png for people to look at.
QImage take(QWidget& widget, const QString& name, qreal ratio = 1);

/// Share of pixels that differ from @p background, 0 to 1: an empty picture gives 0.
[[nodiscard]] double coverage(const QImage& image, QRgb background = 0);

} // namespace Screenshot
