// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Source/View/SpokenView.h"

#include <QWidget>

/// The play pointer: a line with a triangle on top. Its position is the middle of its frame, in points of its
/// superview. Presses go to the view below it. Main thread.
class AudioPointerLineView : public QWidget, public SpokenView {
    Q_OBJECT
public:
    static constexpr int kWidth = 20;

    explicit AudioPointerLineView(QWidget* parent = nullptr);

    [[nodiscard]] float position() const { return float(x_ + kWidth / 2.0); }
    /// Moves the frame horizontally so that its middle is at @p x.
    void setPosition(float x);

    [[nodiscard]] QAccessible::Role spokenRole() const override { return QAccessible::Graphic; }
    [[nodiscard]] QString spokenValue() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    double x_ = 0; ///< of the frame
};

/// The backdrop of the ringtone maker's window. Main thread.
class RingtoneMakerBackgroundView : public QWidget, public SpokenView {
    Q_OBJECT
public:
    explicit RingtoneMakerBackgroundView(QWidget* parent = nullptr);

    [[nodiscard]] QAccessible::Role spokenRole() const override { return QAccessible::Pane; }
    [[nodiscard]] QString spokenValue() const override { return {}; }

protected:
    void paintEvent(QPaintEvent* event) override;
};
