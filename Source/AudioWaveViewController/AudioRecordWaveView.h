// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Source/View/SpokenView.h"

#include <QList>
#include <QPixmap>
#include <QWidget>

/// The level history: one column of one point for each level, the newest at the left, moving right. Main thread.
///
/// Between two levels only one column changes; the rest is a picture that moves by one point. A full redraw ten times
/// a second costs three times as much. The newest columns are drawn beside the picture: to change a picture costs more.
class AudioRecordWaveView : public QWidget, public SpokenView {
    Q_OBJECT
public:
    explicit AudioRecordWaveView(QWidget* parent = nullptr);

    [[nodiscard]] bool isLeftToRight() const { return true; }
    /// Newest first; at most as many as the view is wide in points.
    [[nodiscard]] const QList<float>& audioLevelArray() const { return audioLevelArray_; }
    /// Whether a widget is on the screen: false in a hidden or iconified window.
    [[nodiscard]] static bool isSeen(const QWidget& widget);
    /// Levels range from 0 to 1; greater ones are clipped at the view's edge. @p clipped: the sound was clipped since
    /// the last level; its column is red and has a mark above and below.
    void addCurrentLevel(float level, bool clipped = false);

    /// The newest level in percent. Screen readers read it on request: it changes ten times a second, so changes are
    /// not announced.
    [[nodiscard]] QAccessible::Role spokenRole() const override { return QAccessible::ProgressBar; }
    [[nodiscard]] QString spokenValue() const override;
    [[nodiscard]] QVariant spokenNumber() const override;
    [[nodiscard]] QVariant spokenMaximum() const override { return 100.0; }

    [[nodiscard]] QSize sizeHint() const override { return {240, 64}; }
    [[nodiscard]] QSize minimumSizeHint() const override { return {80, 32}; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void drawColumn(QPainter& painter, int index) const;
    void drawColumnsBeside(QPainter& painter) const;
    void redrawAll();
    /// Makes room for one more column beside the picture; false when the picture must be redrawn.
    bool scrollPicture();

    QList<float> audioLevelArray_;
    QList<bool> clipped_; ///< for each level
    QPixmap picture_;
    int columnsBeside_ = 0; ///< the newest, which the picture does not contain
    bool pictureIsOld_ = true;
};
