// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>

class QColor;
class QPainter;
class QRectF;

/// The outline of a recording as a view shows it.
namespace OutlineDrawing {

/// Draws values, -1 to 1, over the whole of @p rect, centred vertically: one line per point, as long as the loudest of
/// its values.
void draw(QPainter& painter, const QRectF& rect, const QList<float>& values, const QColor& color);

} // namespace OutlineDrawing
