// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "RingtoneMaker/ImageCacheView.h"

#include <QEvent>
#include <QPaintEvent>
#include <QPainter>

ImageCacheView::ImageCacheView(QWidget* parent) : QWidget(parent) {
}

void ImageCacheView::setViewContentCache(std::shared_ptr<ImageStrip> cache) {
    viewContentCache_ = std::move(cache);
    update();
}

void ImageCacheView::paintEvent(QPaintEvent* event) {
    if (!viewContentCache_)
        updateImageCacheViewContent();
    QPainter painter(this);
    drawGround(painter, event->rect());
    if (viewContentCache_)
        viewContentCache_->paint(painter, event->rect());
}

void ImageCacheView::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (viewContentCache_ && (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange)) {
        viewContentCache_->forget(); // drawn with the old colours and fonts
        update();
    }
}

void ImageCacheView::drawGround(QPainter& /*painter*/, const QRect& /*dirty*/) {
}
