// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Source/Control/SilenceFinder.h"

#include <QList>
#include <QWidget>

#include <cstdint>
#include <vector>

class SplitHandle;

/// The bar of the split window: a strip with the play position along the top, the outline of the recording with its
/// silences and cuts in the middle, and the handles of the cuts along the bottom. It can be zoomed. One cut is the
/// current one: its handle is a focus stop and a slider for screen readers, like the play position. Times are frames of
/// the recording. Main thread.
///
/// Keys: Left and Right move the cut (or the play position, when that has the focus) by 0.1 s, with Shift by 1 s, with
/// Ctrl by 0.01 s; Page Up and Page Down by 10 s; Up and Down choose another cut; Insert adds one at the play position,
/// Delete removes the current one; + and - zoom.
class SplitEditView : public QWidget {
    Q_OBJECT
public:
    explicit SplitEditView(QWidget* parent = nullptr);

    /// Length and rate of the recording. Shows the whole of it.
    void setRecording(std::int64_t frames, double sampleRate);
    /// The outline to draw; see AudioOutline.
    void setOutline(const QList<float>& values);
    [[nodiscard]] const QList<float>& outline() const { return outline_; }
    void setSilences(std::vector<SilenceFinder::Silence> silences);
    /// The cuts in ascending order. The current one stays where its index still exists.
    void setCuts(const std::vector<std::int64_t>& cuts);
    [[nodiscard]] const std::vector<std::int64_t>& cuts() const { return cuts_; }
    void setPlayFrame(std::int64_t frame);
    [[nodiscard]] std::int64_t playFrame() const { return playFrame_; }

    /// -1: there is none.
    [[nodiscard]] int currentCut() const { return currentCut_; }
    /// Makes a cut the current one and scrolls to it.
    void setCurrentCut(int index);

    // ---- zoom
    /// 1 shows the whole recording.
    [[nodiscard]] double zoom() const { return zoom_; }
    /// Limited so that the view shows a second at least. The frame at @p x, in points, stays in its place.
    void setZoom(double zoom, double x);
    /// Around the current cut, else the middle.
    void zoomBy(double factor);
    [[nodiscard]] std::int64_t firstVisible() const { return firstVisible_; }
    [[nodiscard]] std::int64_t visibleFrames() const;
    void scrollTo(std::int64_t firstFrame);
    [[nodiscard]] std::int64_t frames() const { return frames_; }
    [[nodiscard]] double sampleRate() const { return sampleRate_; }

    // ---- geometry in points
    [[nodiscard]] QRectF seekStripRect() const;
    [[nodiscard]] QRectF waveRect() const;
    [[nodiscard]] double xOf(std::int64_t frame) const;
    /// Limited to the recording.
    [[nodiscard]] std::int64_t frameAt(double x) const;
    [[nodiscard]] QRectF handleRect(int cut) const;
    [[nodiscard]] QRectF playButtonRect() const;

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

Q_SIGNALS:
    void seekAsked(std::int64_t frame);
    void moveAsked(int cut, std::int64_t frame);
    void addAsked(std::int64_t frame);
    void removeAsked(int cut);
    void currentCutChanged(int cut);
    /// Zoom or scroll position.
    void visibleRangeChanged();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    friend class SplitHandle;
    enum class Drag { None, Play, Cut };

    [[nodiscard]] bool isMovingCut() const;
    void moveBy(double seconds);
    void moveTo(std::int64_t frame);
    void showHandles();
    void makeVisible(std::int64_t frame);
    [[nodiscard]] int cutAt(const QPointF& place) const;
    void choose(int cut);
    void drawCuts(QPainter& painter) const;
    void drawTime(QPainter& painter) const;

    QSizeF handleSize_;
    std::int64_t frames_ = 0;
    double sampleRate_ = 44100;
    QList<float> outline_;
    std::vector<SilenceFinder::Silence> silences_;
    std::vector<std::int64_t> cuts_;
    std::int64_t playFrame_ = 0;
    int currentCut_ = -1;
    double zoom_ = 1;
    std::int64_t firstVisible_ = 0;
    Drag drag_ = Drag::None;
    double grabbedAt_ = 0; ///< points from the cut to the pointer
    SplitHandle* playHandle_;
    SplitHandle* cutHandle_;
};
