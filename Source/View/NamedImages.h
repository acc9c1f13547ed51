// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QIcon>
#include <QPixmap>
#include <QStringList>

#include <functional>

class QPainter;
class QPointF;

/// The program's pictures by the names that the code asks for ("RecorderStart.png", "all-record-node-icon", "trim").
/// All of them are drawings: they stay crisp at every scale and take the palette's text colour where they name none of
/// their own. Main thread.
namespace NamedImages {

/// Every name there is.
[[nodiscard]] QStringList names();
[[nodiscard]] bool exists(const QString& name);

/// An icon that follows the palette of the moment, also when the theme changes later. Null for an unknown name.
[[nodiscard]] QIcon icon(const QString& name);

/// The colour of an icon that stands on a ground of its own. It is asked at each drawing, so that it may follow the
/// theme.
using ColorOf = std::function<QColor(QIcon::Mode)>;
[[nodiscard]] QIcon icon(const QString& name, ColorOf colorOf);

/// The size that a picture was drawn for, in points.
[[nodiscard]] QSize naturalSize(const QString& name);

/// A picture of @p size points for a screen with @p ratio pixels a point, in @p color (invalid: the palette's text).
[[nodiscard]] QPixmap pixmap(const QString& name, QSize size, qreal ratio, const QColor& color = {});

/// Stretches a picture over @p rect.
void draw(QPainter& painter, const QRectF& rect, const QString& name, const QColor& color = {});

/// The place nearest to @p place that lies on whole pixels of the painter's device. A picture that is drawn between
/// two pixels is blurred, which happens at 1.5 pixels a point.
[[nodiscard]] QPointF onWholePixels(const QPainter& painter, QPointF place);

} // namespace NamedImages
