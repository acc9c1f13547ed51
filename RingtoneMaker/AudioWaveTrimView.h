// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "RingtoneMaker/DragScroll.h"
#include "RingtoneMaker/ImageCacheView.h"

/// The selection: a translucent box over the outline, moved by its middle and resized by its edges. Its frame is the
/// selection, in points, ten per second. Main thread.
///
/// Handles and time fields keep it between 5 and 40 seconds and inside the file. setAudioFrom() and setAudioLength()
/// accept any value.
class AudioWaveTrimView : public QWidget, public SpokenView {
    Q_OBJECT
    Q_PROPERTY(float audioFromTime READ audioFromTime WRITE setAudioFromTime NOTIFY audioFromTimeChanged)
    Q_PROPERTY(float audioToTime READ audioToTime WRITE setAudioToTime NOTIFY audioToTimeChanged)
public:
    enum DragType { LeftHandle, RightHandle, Move };
    static constexpr float kShortest = 50; ///< points
    static constexpr float kLongest = 400; ///< points

    explicit AudioWaveTrimView(QWidget* parent = nullptr);

    [[nodiscard]] RingtoneMakerViewDelegate* delegate() const { return delegate_; }
    void setDelegate(RingtoneMakerViewDelegate* delegate) { delegate_ = delegate; }

    [[nodiscard]] float audioFrom() const { return float(frame_.x()); }
    void setAudioFrom(float x);
    [[nodiscard]] float audioLength() const { return float(frame_.width()); }
    void setAudioLength(float width);
    /// The exact frame; the widget covers every pixel that the frame touches.
    [[nodiscard]] QRectF frame() const { return frame_; }
    void setFrame(const QRectF& frame);

    /// Reports both times to the delegate. setFrame() queues this call: the fields are updated after the current event.
    void flushAudioTrimTime();
    /// Seconds.
    [[nodiscard]] float audioFromTime() const { return audioFrom() / 10; }
    [[nodiscard]] float audioToTime() const { return (audioFrom() + audioLength()) / 10; }
    /// For a time typed by the user: keeps the end where the limits allow it.
    void setAudioFromTime(float seconds);
    /// For a time typed by the user: moves the end there; when the length must be kept, the begin moves.
    void setAudioToTime(float seconds);
    /// The delegate's value, or 0.
    [[nodiscard]] float soundDuration() const;

    /// The area, in the box's own points, in which a drag of that type begins.
    [[nodiscard]] QRectF calcuateDragRect(DragType type) const;
    [[nodiscard]] DragType judgeDragType(QPointF point) const;
    /// One step of a drag.
    void doDragAction(DragType type, QPointF from, QPointF to);
    /// One step, and the scrolling that keeps the changed edge visible; for a drag or a key.
    void dragStep(DragType type, QPointF from, QPointF to);
    /// Handles Left and Right for the whole window: with Control they move the begin, with Alt the end, else the box;
    /// by 0.1 s, with Shift by 1 s. @return whether the key was one of them
    bool moveByKey(const QKeyEvent& event);

    [[nodiscard]] QAccessible::Role spokenRole() const override { return QAccessible::Slider; }
    [[nodiscard]] QString spokenValue() const override;
    [[nodiscard]] QVariant spokenNumber() const override { return double(audioFromTime()); }
    [[nodiscard]] QVariant spokenMaximum() const override;
    void setSpokenNumber(const QVariant& number) override;

Q_SIGNALS:
    void audioFromTimeChanged();
    void audioToTimeChanged();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    [[nodiscard]] QRectF bounds() const { return {frame_.topLeft() - QPointF(pos()), frame_.size()}; }
    void drag(QPoint global);

    QRectF frame_;
    RingtoneMakerViewDelegate* delegate_ = nullptr;
    DragScroll scroll_;
    DragType dragType_ = Move;
    QPointF dragged_; ///< the last point of the drag, in the superview's points
    bool dragging_ = false;
    bool flushQueued_ = false;
};
