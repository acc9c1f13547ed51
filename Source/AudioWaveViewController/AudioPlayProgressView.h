// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Source/View/SpokenView.h"

#include <QWidget>

/// What the progress bar calls on its owner.
class AudioPlayProgressViewDelegate {
public:
    virtual ~AudioPlayProgressViewDelegate() = default;
    /// The user seeks to this second; it may lie slightly beyond the end.
    virtual void setAudioPosition(float /*seconds*/) {}
};

/// The bar of a playing file; a click or a drag on it seeks. Left and Right seek by 5 seconds, with Shift by 1 second,
/// Page Up and Page Down by 30 seconds, Home and End to the ends. Main thread.
class AudioPlayProgressView : public QWidget, public SpokenView {
    Q_OBJECT
public:
    explicit AudioPlayProgressView(QWidget* parent = nullptr);

    [[nodiscard]] AudioPlayProgressViewDelegate* delegate() const { return delegate_; }
    void setDelegate(AudioPlayProgressViewDelegate* delegate) { delegate_ = delegate; }
    [[nodiscard]] double duration() const { return duration_; }
    void setDuration(double seconds) { duration_ = seconds; }
    [[nodiscard]] double currentTime() const { return currentTime_; }
    void setCurrentTime(double seconds) { currentTime_ = seconds; }

    /// The view's rectangle without 5 points at the left and the right.
    [[nodiscard]] QRectF validProgressRect() const;
    /// The filled width in points. Without a sound, or with a very short one, the bar is full.
    [[nodiscard]] double progressWidth() const;
    /// @p x in points from the view's left edge, not from the bar's.
    void setAudioPosition(double x);

    /// A drag on the bar seeks; it never moves the window.
    [[nodiscard]] bool mouseDownCanMoveWindow() const { return false; }

    [[nodiscard]] QAccessible::Role spokenRole() const override { return QAccessible::Slider; }
    [[nodiscard]] QString spokenValue() const override;
    [[nodiscard]] QVariant spokenNumber() const override { return currentTime_; }
    [[nodiscard]] QVariant spokenMaximum() const override { return duration_; }
    void setSpokenNumber(const QVariant& number) override { askFor(number.toDouble()); }

    [[nodiscard]] QSize sizeHint() const override { return {240, 20}; }
    [[nodiscard]] QSize minimumSizeHint() const override { return {80, 20}; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void askFor(double seconds);

    double duration_ = 0;
    double currentTime_ = 0;
    AudioPlayProgressViewDelegate* delegate_ = nullptr;
    bool dragging_ = false;
};
