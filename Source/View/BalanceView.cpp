// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/View/BalanceView.h"

#include "Source/Control/ToolControl.h"
#include "Source/View/OutlineDrawing.h"
#include "Source/View/Theme.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

namespace {

constexpr int kLaneHeight = 56;
constexpr int kNameMargin = 6;
constexpr double kSeekStep = 5; ///< seconds that an arrow key moves the position, as on the bar of the playback
constexpr double kSmallSeekStep = 1;
constexpr double kSeekPage = 30;

} // namespace

BalanceView::BalanceView(QWidget* parent) : QWidget(parent) {
    setLayoutDirection(Qt::LeftToRight); // time runs from left to right in every language
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName(tr("Play position"));
}

QSize BalanceView::sizeHint() const {
    return {600, 2 * kLaneHeight};
}

QSize BalanceView::minimumSizeHint() const {
    return {240, kLaneHeight + fontMetrics().height() * 2};
}

QString BalanceView::spokenValue() const {
    return ToolControl::getTimeString(qint64(position_));
}

void BalanceView::setOutline(Lane lane, const QList<float>& values) {
    outlines_[lane] = values;
    update();
}

void BalanceView::setDuration(double seconds) {
    duration_ = seconds;
    update();
}

void BalanceView::setPosition(double seconds) {
    const bool isNews = qint64(seconds) != qint64(position_);
    position_ = seconds;
    if (isNews && hasFocus())
        announceValue(*this);
    update();
}

void BalanceView::setBalance(const BalanceSettings& balance) {
    balance_ = balance;
    update();
}

QRectF BalanceView::laneRect(Lane lane) const {
    const double half = height() / 2.0;
    return {1, lane == Input ? 1 : half, width() - 2.0, half - 1};
}

void BalanceView::drawLane(QPainter& painter, Lane lane) const {
    const QRectF rect = laneRect(lane);
    const auto factor = float(BalanceSettings::factor(lane == Input ? balance_.inputGain : balance_.computerGain));
    QList<float> values = outlines_[lane];
    for (float& value : values)
        value *= factor;
    // The outline covers the time of its values; the last ones of a long file are still being read.
    QRectF place = rect.adjusted(0, 3, 0, -3);
    if (duration_ > 0 && !values.isEmpty()) {
        place.setWidth(std::max(1.0, rect.width() * std::min(1.0, double(values.size()) / 10 / duration_)));
        if (lane == Computer)
            place.translate(balance_.delayMs / 1000 / duration_ * rect.width(), 0);
    }
    painter.save();
    painter.setClipRect(rect);
    OutlineDrawing::draw(painter, place, values, palette().color(QPalette::Highlight));
    const QString name = lane == Input ? tr("Input") : tr("Computer audio");
    const QFontMetrics metrics = fontMetrics();
    const QRectF label(rect.x() + kNameMargin, rect.y() + 2, metrics.horizontalAdvance(name) + 2.0 * kNameMargin,
                       metrics.height() + 2.0);
    painter.fillRect(label, palette().color(QPalette::Base));
    painter.setPen(palette().color(QPalette::Text));
    painter.drawText(label, Qt::AlignCenter, name);
    painter.restore();
}

void BalanceView::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.fillRect(rect(), palette().color(QPalette::Base));
    drawLane(painter, Input);
    drawLane(painter, Computer);
    const QColor frame = Theme::outline(palette(), true);
    painter.fillRect(QRectF(0, height() / 2.0, width(), 1), frame);
    if (duration_ > 0) {
        const double x = std::clamp(position_ / duration_, 0.0, 1.0) * (width() - 2);
        painter.fillRect(QRectF(x, 0, 2, height()), palette().color(QPalette::Text));
    }
    const int line = hasFocus() ? 2 : 1;
    painter.setPen(QPen(hasFocus() ? palette().color(QPalette::Highlight) : frame, line));
    painter.setBrush(Qt::NoBrush);
    const double inset = line / 2.0;
    painter.drawRect(QRectF(rect()).adjusted(inset, inset, -inset, -inset));
}

void BalanceView::seek(double seconds) {
    if (duration_ <= 0)
        return;
    const double chosen = std::clamp(seconds, 0.0, duration_);
    setPosition(chosen);
    Q_EMIT positionChosen(chosen);
}

void BalanceView::seekTo(double x) {
    seek(x / std::max(1, width() - 2) * duration_);
}

void BalanceView::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton)
        seekTo(event->position().x());
}

void BalanceView::mouseMoveEvent(QMouseEvent* event) {
    if (event->buttons() & Qt::LeftButton)
        seekTo(event->position().x());
}

void BalanceView::keyPressEvent(QKeyEvent* event) {
    const double step = event->modifiers() & Qt::ShiftModifier ? kSmallSeekStep : kSeekStep;
    switch (event->key()) {
    case Qt::Key_Left:
        return seek(position_ - step);
    case Qt::Key_Right:
        return seek(position_ + step);
    case Qt::Key_PageDown:
        return seek(position_ - kSeekPage);
    case Qt::Key_PageUp:
        return seek(position_ + kSeekPage);
    case Qt::Key_Home:
        return seek(0);
    case Qt::Key_End:
        return seek(duration_);
    default:
        QWidget::keyPressEvent(event);
    }
}

void BalanceView::focusInEvent(QFocusEvent* event) {
    QWidget::focusInEvent(event);
    update();
}

void BalanceView::focusOutEvent(QFocusEvent* event) {
    QWidget::focusOutEvent(event);
    update();
}
