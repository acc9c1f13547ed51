// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QWidget>

#include <array>
#include <optional>

class TrimHandle;

/// Called when the user drags the handles of an AudioTrimEditView. Rates are fractions 0 to 1 of the file's duration.
class AudioTrimEditViewDelegate {
public:
    virtual ~AudioTrimEditViewDelegate() = default;
    virtual void seekPlay(float /*rate*/) {}
    virtual void setLeftTrim(float /*rate*/) {}
    virtual void setRightTrim(float /*rate*/) {}
};

/// The bar of the trim window: a seek strip with the play button along the top, the outline of the file with the range
/// in its middle, and the two handles along the bottom. Left and Right move the handle that was used last, or that has
/// the focus: the play button and both handles are focus stops of their own, and sliders for screen readers. Main
/// thread.
class AudioTrimEditView : public QWidget {
    Q_OBJECT
public:
    enum DragType { NoDrag = -1, Seek = 0, LeftHandle = 1, RightHandle = 2 };

    explicit AudioTrimEditView(QWidget* parent = nullptr);

    void setDelegate(AudioTrimEditViewDelegate* delegate) { delegate_ = delegate; }
    [[nodiscard]] AudioTrimEditViewDelegate* delegate() const { return delegate_; }

    [[nodiscard]] float leftTrimRate() const { return leftTrimRate_; }
    [[nodiscard]] float rightTrimRate() const { return rightTrimRate_; }
    [[nodiscard]] float playRate() const { return playRate_; }
    /// Stores the rate, limited to the right rate.
    void setLeftTrimRate(float rate);
    /// Stores the rate, limited to the left rate.
    void setRightTrimRate(float rate);
    void setPlayRate(float rate);
    [[nodiscard]] int dragType() const { return dragType_; }

    /// Length of the file in seconds: for the time at the pointer and the key steps.
    void setDuration(double seconds);
    /// The outline to draw; see AudioOutline.
    void setOutline(const QList<float>& values);
    [[nodiscard]] const QList<float>& outline() const { return outline_; }
    /// Sets which handle the keys move.
    void setLastHandle(DragType handle);
    [[nodiscard]] DragType lastHandle() const { return lastHandle_; }
    /// The rate that @p handle stands at, and its place.
    [[nodiscard]] float rateOf(DragType handle) const;
    [[nodiscard]] QRectF rectOf(DragType handle) const;
    /// Moves @p handle as a drag does, within its limits.
    void moveHandle(DragType handle, float rate);
    [[nodiscard]] double duration() const { return duration_; }

    // ---- geometry, in points with the origin at the upper left corner
    [[nodiscard]] QRectF seekStripRect() const;
    [[nodiscard]] QRectF leftHandleRect() const;
    [[nodiscard]] QRectF rightHandleRect() const;
    [[nodiscard]] QRectF playButtonRect() const;
    [[nodiscard]] QRectF backStripRect() const;
    [[nodiscard]] QRectF rangeRect() const;
    /// The rate at a point of the view, limited to 0 to 1.
    [[nodiscard]] float mousePointRate(const QPointF& place) const;
    /// A press on the bar never drags the window.
    [[nodiscard]] static bool mouseDownCanMoveWindow() { return false; }

    // Forwarded to the delegate.
    void seekPlay(float rate);
    void setLeftTrim(float rate);
    void setRightTrim(float rate);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    [[nodiscard]] double usableLength() const;
    void showHandles();
    [[nodiscard]] std::optional<DragType> focusedHandle() const;
    void nudge(double seconds);
    void drawTime(QPainter& painter) const;

    float leftTrimRate_ = 0;
    float rightTrimRate_ = 1;
    float playRate_ = 0;
    int trimBtnHeight_;
    int trimBackHeight_;
    int trimAreaHeight_;
    QSizeF btnSize_;
    int dragType_ = NoDrag;
    AudioTrimEditViewDelegate* delegate_ = nullptr;
    double duration_ = 0;
    QList<float> outline_;
    DragType lastHandle_ = LeftHandle;
    std::array<TrimHandle*, 3> handles_{}; ///< by DragType; children
    std::optional<double> dragX_;          ///< the pointer's position during a drag
};
