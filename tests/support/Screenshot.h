// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QString>

class QWidget;

namespace Screenshot {

/// A picture of a widget at @p ratio pixels per point, drawn without a screen. When SONAPHEX_SCREENSHOTS names a
/// folder, it is also written there as <name>.png.
QImage take(QWidget& widget, const QString& name, qreal ratio = 1);

/// The share of pixels that differ from @p background, 0 to 1: an empty picture gives 0.
[[nodiscard]] double coverage(const QImage& image, QRgb background = 0);

} // namespace Screenshot
