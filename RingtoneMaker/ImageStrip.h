// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QSizeF>

#include <functional>
#include <map>

class QPainter;
class QRectF;

/// A picture of any width, drawn in tiles when they first become visible. Only some megabytes of tiles are kept, so
/// that hours of audio cost no more than minutes. Main thread.
class ImageStrip {
public:
    /// Draws the content of @p area, in the strip's own points. The painter is clipped to a tile that covers it.
    using Draw = std::function<void(QPainter& painter, const QRectF& area)>;

    ImageStrip(QSizeF size, Draw draw) : size_(size), draw_(std::move(draw)) {}

    [[nodiscard]] QSizeF size() const { return size_; }
    void setSize(QSizeF size);
    /// Draws the strip's part in @p area at the same position of the painter, at its device's scale.
    void paint(QPainter& painter, const QRectF& area);
    /// Invalidates everything from @p from on, in points.
    void forget(double from = 0);
    /// Memory of the kept tiles in bytes.
    [[nodiscard]] qint64 bytes() const { return bytes_; }

    static constexpr int kTileWidth = 512;           ///< points
    static constexpr qint64 kMostBytes = 12LL << 20; ///< enough for a window 2500 points wide at two pixels per point

private:
    struct Tile {
        QImage image;
        qint64 lastUse = 0;
    };
    const QImage& tile(int index, double scale);

    QSizeF size_;
    Draw draw_;
    double scale_ = 0; ///< of the tiles, pixels per point
    std::map<int, Tile> tiles_;
    qint64 uses_ = 0;
    qint64 bytes_ = 0;
};
