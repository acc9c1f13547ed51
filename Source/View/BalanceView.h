// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Source/Control/BalanceReader.h"
#include "Source/View/SpokenView.h"

#include <QList>
#include <QWidget>

#include <array>

/// The outlines of two tracks on one time axis, the input above computer audio, as loud and as late as the balance
/// makes them, and the play position as a line. A click, a drag and the arrow keys move the position. Main thread.
class BalanceView : public QWidget, public SpokenView {
    Q_OBJECT
public:
    enum Lane { Input, Computer };

    explicit BalanceView(QWidget* parent = nullptr);

    /// Ten values per second, -1 to 1.
    void setOutline(Lane lane, const QList<float>& values);
    [[nodiscard]] const QList<float>& outline(Lane lane) const { return outlines_[lane]; }
    void setDuration(double seconds);
    void setPosition(double seconds);
    [[nodiscard]] double position() const { return position_; }
    void setBalance(const BalanceSettings& balance);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;
    [[nodiscard]] QAccessible::Role spokenRole() const override { return QAccessible::Slider; }
    [[nodiscard]] QString spokenValue() const override;
    [[nodiscard]] QVariant spokenNumber() const override { return position_; }
    [[nodiscard]] QVariant spokenMaximum() const override { return duration_; }
    void setSpokenNumber(const QVariant& number) override { seek(number.toDouble()); }

Q_SIGNALS:
    /// The user moved the play position, in seconds.
    void positionChosen(double seconds);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void seek(double seconds);
    void seekTo(double x);
    [[nodiscard]] QRectF laneRect(Lane lane) const;
    void drawLane(QPainter& painter, Lane lane) const;

    std::array<QList<float>, 2> outlines_;
    double duration_ = 0;
    double position_ = 0;
    BalanceSettings balance_;
};
