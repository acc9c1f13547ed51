// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "RingtoneMaker/WaveImage.h"

#include <QColor>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace WaveImage {

namespace {

/// The painter's coordinates end at 32767, less than an hour of audio: longer images are painted tile by tile.
constexpr int kTile = 8192;

QImage drawOn(const QList<float>& values, const QColor& ground) {
    if (values.size() < kFewestValues)
        return {};
    QImage picture(int(values.size()), kHeight, QImage::Format_ARGB32_Premultiplied);
    if (picture.isNull())
        return {};
    picture.fill(ground);
    for (int begin = 0; begin < picture.width(); begin += kTile) {
        const int width = std::min(kTile, picture.width() - begin);
        QImage tile(picture.bits() + qsizetype(begin) * 4, width, kHeight, picture.bytesPerLine(), picture.format());
        QPainter painter(&tile);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.translate(-begin, 0);
        paint(painter, values, begin, begin + width);
    }
    return picture;
}

} // namespace

void paint(QPainter& painter, const QList<float>& values, qsizetype begin, qsizetype end) {
    constexpr double middle = kHeight / 2.0;
    for (qsizetype i = begin; i < std::min(end, values.size()); ++i) {
        const auto value = values[i];
        const double half = std::isfinite(value) ? std::min(1.0, std::fabs(double(value))) * middle : 0;
        painter.fillRect(QRectF(double(i), middle - half, 1, 2 * half), QColor(255, 0, 0));
    }
}

QImage draw(const QList<float>& values) {
    return drawOn(values, Qt::transparent);
}

QImage drawOnStrip(const QList<float>& values) {
    return drawOn(values, QColor::fromRgbF(0.745098F, 0.745098F, 0.745098F, 0.7F));
}

} // namespace WaveImage
