// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "RingtoneMaker/AudioWaveTrimView.h"

#include "Platform/Foundation/Translations.h"
#include "RingtoneMaker/ValueTransformers.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

namespace {

constexpr double kHandle = 10; ///< points

bool holds(const QRectF& rect, QPointF point) {
    return point.x() >= rect.left() && point.x() < rect.right() && point.y() >= rect.top() && point.y() < rect.bottom();
}

} // namespace

AudioWaveTrimView::AudioWaveTrimView(QWidget* parent)
    : QWidget(parent), scroll_(*this, [this](QPoint global) { drag(global); }) {
    setLayoutDirection(Qt::LeftToRight); // time runs from left to right in every language
    setAccessibleName(tr("Selection"));
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setToolTip(
        tr("Drag the edges or the middle. Left and Right move the selection, with Control its begin, with Alt its "
           "end; with Shift by a second."));
}

void AudioWaveTrimView::setAudioFrom(float x) {
    setFrame(QRectF(double(x), frame_.y(), frame_.width(), frame_.height()));
}

void AudioWaveTrimView::setAudioLength(float width) {
    setFrame(QRectF(frame_.x(), frame_.y(), double(width), frame_.height()));
}

void AudioWaveTrimView::setFrame(const QRectF& frame) {
    frame_ = frame;
    setGeometry(frame.toAlignedRect());
    update(); // a change of less than a pixel only repaints the edge
    if (flushQueued_)
        return;
    flushQueued_ = true;
    QMetaObject::invokeMethod(this, &AudioWaveTrimView::flushAudioTrimTime, Qt::QueuedConnection);
}

void AudioWaveTrimView::flushAudioTrimTime() {
    flushQueued_ = false;
    Q_EMIT audioFromTimeChanged();
    Q_EMIT audioToTimeChanged();
    announceValue(*this);
}

float AudioWaveTrimView::soundDuration() const {
    return delegate_ ? delegate_->soundDuration() : 0;
}

void AudioWaveTrimView::setAudioFromTime(float seconds) {
    const float limit = soundDuration() * 10;
    const float start = std::max(std::min(seconds * 10, limit - kShortest), 0.0F);
    float length = (audioFrom() + audioLength()) - start;
    if (length > kLongest || length < kShortest)
        length = audioLength();
    length = std::min(length, limit - start);
    setAudioFrom(start);
    setAudioLength(length);
}

void AudioWaveTrimView::setAudioToTime(float seconds) {
    const float limit = soundDuration() * 10;
    float end = std::max(std::min(seconds * 10, limit), kShortest);
    end =
        std::min(end, std::max(limit, 0.0F)); // a file of less than five seconds is shorter than the shortest selection
    float length = end - audioFrom();
    if (length > kLongest || length < kShortest)
        length = audioLength();
    length = std::min(length, end);
    setAudioFrom(end - length);
    setAudioLength(length);
}

QRectF AudioWaveTrimView::calcuateDragRect(DragType type) const {
    const QRectF whole = bounds();
    switch (type) {
    case LeftHandle:
        return {whole.x(), whole.y(), kHandle, whole.height()};
    case RightHandle:
        return {whole.right() - kHandle, whole.y(), kHandle, whole.height()};
    case Move:
        break;
    }
    return whole;
}

AudioWaveTrimView::DragType AudioWaveTrimView::judgeDragType(QPointF point) const {
    for (const DragType type : {LeftHandle, RightHandle})
        if (holds(calcuateDragRect(type), point))
            return type;
    return Move;
}

void AudioWaveTrimView::doDragAction(DragType type, QPointF from, QPointF to) {
    const auto dx = float(to.x() - from.x());
    const float start = audioFrom();
    const float length = audioLength();
    const float end = start + length;
    const float limit = soundDuration() * 10;
    switch (type) {
    case Move:
        setAudioFrom(std::max(std::min(start + dx, limit - length), 0.0F));
        break;
    case LeftHandle: {
        float moved = std::max(start + dx, end - kLongest);
        moved = std::max(std::min(moved, end - kShortest), 0.0F);
        setAudioLength(length + (start - moved));
        setAudioFrom(moved);
        break;
    }
    case RightHandle: {
        float moved = std::min(end + dx, start + kLongest);
        moved = std::min(std::max(moved, start + kShortest), limit);
        setAudioLength(moved - start);
        break;
    }
    }
}

void AudioWaveTrimView::dragStep(DragType type, QPointF from, QPointF to) {
    doDragAction(type, from, to);
    QRectF changed = bounds();
    if (type == RightHandle)
        changed.setLeft(changed.right() - kHandle);
    else if (type == LeftHandle)
        changed.setWidth(kHandle);
    ScrollTo::makeVisible(*this, changed);
}

void AudioWaveTrimView::drag(QPoint global) {
    const QPointF now = parentWidget()->mapFromGlobal(global);
    dragStep(dragType_, dragged_, now);
    dragged_ = now;
}

void AudioWaveTrimView::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton)
        return;
    dragging_ = true;
    dragType_ = judgeDragType(event->position());
    // Mapped explicitly, because the box moves below the pointer.
    dragged_ = parentWidget()->mapFromGlobal(event->globalPosition());
    if (dragType_ == Move)
        setCursor(Qt::ClosedHandCursor);
}

void AudioWaveTrimView::mouseMoveEvent(QMouseEvent* event) {
    if (!dragging_ || !(event->buttons() & Qt::LeftButton)) {
        setCursor(judgeDragType(event->position()) == Move ? Qt::OpenHandCursor : Qt::SizeHorCursor);
        return;
    }
    const QPoint global = event->globalPosition().toPoint();
    drag(global);
    scroll_.follow(global);
}

void AudioWaveTrimView::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton)
        return;
    dragging_ = false;
    scroll_.end();
    setCursor(judgeDragType(event->position()) == Move ? Qt::OpenHandCursor : Qt::SizeHorCursor);
}

bool AudioWaveTrimView::moveByKey(const QKeyEvent& event) {
    if (event.key() != Qt::Key_Left && event.key() != Qt::Key_Right)
        return false;
    const double step = event.modifiers() & Qt::ShiftModifier ? 10 : 1;
    const DragType type = event.modifiers() & Qt::ControlModifier ? LeftHandle
                          : event.modifiers() & Qt::AltModifier   ? RightHandle
                                                                  : Move;
    dragStep(type, {}, {event.key() == Qt::Key_Left ? -step : step, 0});
    return true;
}

void AudioWaveTrimView::keyPressEvent(QKeyEvent* event) {
    if (!moveByKey(*event))
        QWidget::keyPressEvent(event);
}

void AudioWaveTrimView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor::fromRgbF(0.4F, 0.4F, 1.0F, 0.5F));
    painter.drawRoundedRect(bounds(), 5, 5);
    if (!hasFocus())
        return;
    painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(bounds().adjusted(1, 1, -1, -1), 4, 4);
}

QString AudioWaveTrimView::spokenValue() const {
    const AudioWaveTime2TimeStringTransformer time;
    return tr("from %1 to %2, %3 seconds")
        .arg(time.transformedValue(audioFromTime()).toString(), time.transformedValue(audioToTime()).toString(),
             Platform::Translations::decimal(double(audioLength()) / 10, 'f', 1));
}

QVariant AudioWaveTrimView::spokenMaximum() const {
    return double(std::max(0.0F, soundDuration() - audioLength() / 10));
}

void AudioWaveTrimView::setSpokenNumber(const QVariant& number) {
    dragStep(Move, {double(audioFrom()), 0}, {number.toDouble() * 10, 0});
}
