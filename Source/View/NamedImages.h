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

/// The program's images by name ("RecorderStart.png", "all-record-node-icon", "trim"). All are vector drawings: they
/// are sharp at every scale and use the palette's text colour unless they define their own. Main thread.
namespace NamedImages {

/// All names.
[[nodiscard]] QStringList names();
[[nodiscard]] bool exists(const QString& name);

/// An icon that follows the current palette, also when the theme changes later. Null for an unknown name.
[[nodiscard]] QIcon icon(const QString& name);

/// The colour of an icon on a background of its own. Called for each drawing, so that it can follow the theme.
using ColorOf = std::function<QColor(QIcon::Mode)>;
[[nodiscard]] QIcon icon(const QString& name, ColorOf colorOf);

/// The image's design size in points.
[[nodiscard]] QSize naturalSize(const QString& name);

/// An image of @p size points for a screen with @p ratio pixels per point, in @p color (invalid: the palette's text).
[[nodiscard]] QPixmap pixmap(const QString& name, QSize size, qreal ratio, const QColor& color = {});

/// Draws an image scaled to @p rect.
void draw(QPainter& painter, const QRectF& rect, const QString& name, const QColor& color = {});

/// The point nearest to @p place on whole pixels of the painter's device. An image that is drawn between two pixels is
/// blurred, for example at 1.5 pixels per point.
[[nodiscard]] QPointF onWholePixels(const QPainter& painter, QPointF place);

} // namespace NamedImages
