// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "RingtoneMaker/ImageStrip.h"
#include "Source/View/SpokenView.h"

#include <QPointF>
#include <QWidget>

#include <memory>

/// What the views of the ringtone maker call on their owner. Points are on their common scale: ten per second of audio,
/// 0 at the beginning of the file.
class RingtoneMakerViewDelegate {
public:
    virtual ~RingtoneMakerViewDelegate() = default;
    /// The user drew a selection on the outline; the points may be in either order.
    virtual void trimAudioFromPoint(QPointF /*from*/, QPointF /*to*/) {}
    /// The user wants to play from this position.
    virtual void setAudioPosition(float /*x*/) {}
    /// The current play position, in points.
    [[nodiscard]] virtual float audioPosition() const { return 0; }
    /// Length of the audio in seconds.
    [[nodiscard]] virtual float soundDuration() const { return 0; }
};

/// A view whose content is drawn once and then copied. Main thread.
class ImageCacheView : public QWidget, public SpokenView {
    Q_OBJECT
public:
    explicit ImageCacheView(QWidget* parent = nullptr);

    /// Null: it is built when the view is next painted.
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
    /// Draws the part below the cache.
    virtual void drawGround(QPainter& painter, const QRect& dirty);

private:
    std::shared_ptr<ImageStrip> viewContentCache_;
    RingtoneMakerViewDelegate* delegate_ = nullptr;
};
