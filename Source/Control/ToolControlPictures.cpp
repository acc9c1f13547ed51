// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
// A file of its own because it draws: the recorder on the command line is linked without Qt Gui.
#include "Source/Control/ToolControl.h"

#include <QPainter>

#include <cmath>

namespace ToolControl {

QImage creatorImageFromStr(const Drawable& string) {
    const QSizeF size = string.size();
    QImage image(static_cast<int>(std::ceil(size.width())), static_cast<int>(std::ceil(size.height())),
                 QImage::Format_ARGB32_Premultiplied);
    if (image.isNull())
        return image;
    image.fill(Qt::transparent);
    QPainter painter(&image);
    string.drawInRect(painter, QRectF(QPointF(0, 0), size));
    return image;
}

} // namespace ToolControl
