// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/View/OutlineDrawing.h"

#include <QColor>
#include <QPainter>
#include <QRectF>

#include <algorithm>
#include <cmath>

namespace OutlineDrawing {

void draw(QPainter& painter, const QRectF& rect, const QList<float>& values, const QColor& color) {
    const int columns = int(std::floor(rect.width()));
    if (values.isEmpty() || columns <= 0)
        return;
    const double middle = rect.center().y();
    for (int column = 0; column < columns; ++column) {
        const auto first = values.size() * column / columns;
        const auto last = std::max(first + 1, values.size() * (column + 1) / columns);
        float most = 0;
        for (auto i = first; i < std::min(last, values.size()); ++i)
            if (std::isfinite(values[i]))
                most = std::max(most, std::min(1.0F, std::fabs(values[i])));
        const double half = std::max(0.5, double(most) * rect.height() / 2);
        painter.fillRect(QRectF(rect.x() + column, middle - half, 1, 2 * half), color);
    }
}

} // namespace OutlineDrawing
