// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "RingtoneMaker/ImageStrip.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

void ImageStrip::setSize(QSizeF size) {
    if (size == size_)
        return;
    const double unchanged = size.height() == size_.height() ? std::min(size.width(), size_.width()) : 0;
    size_ = size;
    forget(unchanged);
}

void ImageStrip::forget(double from) {
    const int first = int(std::floor(from / kTileWidth));
    for (auto each = tiles_.lower_bound(first); each != tiles_.end(); each = tiles_.erase(each))
        bytes_ -= each->second.image.sizeInBytes();
}

void ImageStrip::paint(QPainter& painter, const QRectF& area) {
    const QRectF seen = area & QRectF(QPointF(), size_);
    if (seen.isEmpty())
        return;
    const double scale = painter.device() ? painter.device()->devicePixelRatioF() : 1;
    if (scale != scale_) {
        forget();
        scale_ = scale;
    }
    const int last = int(std::ceil(seen.right() / kTileWidth)) - 1;
    for (int index = int(seen.left() / kTileWidth); index <= last; ++index)
        painter.drawImage(QPointF(double(index) * kTileWidth, 0), tile(index, scale));
}

const QImage& ImageStrip::tile(int index, double scale) {
    Tile& tile = tiles_[index];
    tile.lastUse = ++uses_;
    if (!tile.image.isNull())
        return tile.image;
    const double left = double(index) * kTileWidth;
    const double width = std::min<double>(kTileWidth, size_.width() - left);
    tile.image = QImage(int(std::ceil(width * scale)), int(std::ceil(size_.height() * scale)),
                        QImage::Format_ARGB32_Premultiplied);
    tile.image.setDevicePixelRatio(scale);
    tile.image.fill(Qt::transparent);
    bytes_ += tile.image.sizeInBytes();
    {
        QPainter painter(&tile.image);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.translate(-left, 0);
        draw_(painter, QRectF(left, 0, width, size_.height()));
    }
    while (bytes_ > kMostBytes && tiles_.size() > 1) {
        const auto oldest = std::ranges::min_element(tiles_, {}, [](const auto& each) { return each.second.lastUse; });
        bytes_ -= oldest->second.image.sizeInBytes();
        tiles_.erase(oldest);
    }
    return tile.image;
}
