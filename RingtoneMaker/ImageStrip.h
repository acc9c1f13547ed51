// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QSizeF>

#include <functional>
#include <map>

class QPainter;
class QRectF;

/// A picture of any width that is drawn in tiles when they are first seen. Only some megabytes of tiles are kept, so
/// that hours of sound cost no more than minutes. Main thread.
class ImageStrip {
public:
    /// Draws what belongs into @p area, in the strip's own points. The painter is clipped to a tile that covers it.
    using Draw = std::function<void(QPainter& painter, const QRectF& area)>;

    ImageStrip(QSizeF size, Draw draw) : size_(size), draw_(std::move(draw)) {}

    [[nodiscard]] QSizeF size() const { return size_; }
    void setSize(QSizeF size);
    /// Draws the strip's part in @p area at the same place of the painter, for its device's scale.
    void paint(QPainter& painter, const QRectF& area);
    /// What lies from @p from on, in points, is drawn anew.
    void forget(double from = 0);
    /// Bytes of the tiles that are kept.
    [[nodiscard]] qint64 bytes() const { return bytes_; }

    static constexpr int kTileWidth = 512;           ///< points
    static constexpr qint64 kMostBytes = 12LL << 20; ///< the tiles of a window 2500 points wide at two pixels a point

private:
    struct Tile {
        QImage image;
        qint64 lastUse = 0;
    };
    const QImage& tile(int index, double scale);

    QSizeF size_;
    Draw draw_;
    double scale_ = 0; ///< of the tiles, pixels a point
    std::map<int, Tile> tiles_;
    qint64 uses_ = 0;
    qint64 bytes_ = 0;
};
