// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "RingtoneMaker/DragScroll.h"
#include "RingtoneMaker/ImageCacheView.h"

/// The time ruler: a press or a drag on it moves the play position, and so do the arrow keys. Main thread.
class AudioEditTimeView : public ImageCacheView {
    Q_OBJECT
public:
    explicit AudioEditTimeView(QWidget* parent = nullptr);

    void updateImageCacheViewContent() override;
    /// A line from (x, 0) up to (x, height), measured from the lower edge.
    void drawLineAt(QPainter& painter, double x, double height) const;
    /// The time as "hh:mm:ss", to the right of @p x.
    void drawSecondAt(QPainter& painter, double x, int second) const;
    /// Forwarded to the delegate.
    void setAudioPosition(float x);

    /// The ruler's lines between two points: x, height and, for a long one, its second.
    struct Tick {
        double x;
        double height;
        int labelledSecond; ///< -1 means no label
    };
    [[nodiscard]] QList<Tick> ticks(double from, double to) const;

    [[nodiscard]] QAccessible::Role spokenRole() const override { return QAccessible::Slider; }
    [[nodiscard]] QString spokenValue() const override;
    [[nodiscard]] QVariant spokenNumber() const override;
    [[nodiscard]] QVariant spokenMaximum() const override;
    void setSpokenNumber(const QVariant& number) override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void drawGround(QPainter& painter, const QRect& dirty) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    DragScroll scroll_;
    bool dragging_ = false;
};
