// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "RingtoneMaker/ImageStrip.h"
#include "Source/View/SpokenView.h"

#include <QPointF>
#include <QWidget>

#include <memory>

/// What the views of the ringtone maker ask and tell their owner. Points are on their common scale: ten to a second of
/// sound, 0 at the begin of the file.
class RingtoneMakerViewDelegate {
public:
    virtual ~RingtoneMakerViewDelegate() = default;
    /// The user drew a selection on the outline; the points may lie in any order.
    virtual void trimAudioFromPoint(QPointF /*from*/, QPointF /*to*/) {}
    /// The user wants to hear this place.
    virtual void setAudioPosition(float /*x*/) {}
    /// Where the sound is, in points.
    [[nodiscard]] virtual float audioPosition() const { return 0; }
    /// Length of the sound in seconds.
    [[nodiscard]] virtual float soundDuration() const { return 0; }
};

/// A view whose content is drawn once and then copied. Main thread.
class ImageCacheView : public QWidget, public SpokenView {
    Q_OBJECT
public:
    explicit ImageCacheView(QWidget* parent = nullptr);

    /// Null: it is built when the view is next drawn.
    [[nodiscard]] std::shared_ptr<ImageStrip> viewContentCache() const { return viewContentCache_; }
    void setViewContentCache(std::shared_ptr<ImageStrip> cache);
    /// Not owned.
    [[nodiscard]] RingtoneMakerViewDelegate* delegate() const { return delegate_; }
    void setDelegate(RingtoneMakerViewDelegate* delegate) { delegate_ = delegate; }

    /// Builds the cache. Does nothing here.
    virtual void updateImageCacheViewContent() {}

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;
    /// What is drawn below the cache.
    virtual void drawGround(QPainter& painter, const QRect& dirty);

private:
    std::shared_ptr<ImageStrip> viewContentCache_;
    RingtoneMakerViewDelegate* delegate_ = nullptr;
};
