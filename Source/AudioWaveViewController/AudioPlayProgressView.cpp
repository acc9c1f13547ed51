// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/AudioWaveViewController/AudioPlayProgressView.h"

#include "Source/Control/ToolControl.h"
#include "Source/View/NamedImages.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

using namespace Qt::StringLiterals;

AudioPlayProgressView::AudioPlayProgressView(QWidget* parent) : QWidget(parent) {
    setFocusPolicy(Qt::StrongFocus);
    setLayoutDirection(Qt::LeftToRight); // time runs from left to right in every language
    setAccessibleName(tr("Playback position"));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QRectF AudioPlayProgressView::validProgressRect() const {
    return QRectF(rect()).adjusted(5, 0, -5, 0);
}

double AudioPlayProgressView::progressWidth() const {
    const double whole = validProgressRect().width();
    return duration_ > 0.1 ? whole * (currentTime_ / duration_) : whole;
}

void AudioPlayProgressView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QRectF valid = validProgressRect();
    const double filled = progressWidth();
    NamedImages::draw(painter, valid, u"progress-bar-background"_s);
    painter.save();
    painter.setClipRect(QRectF(valid.topLeft(), QSizeF(filled, valid.height())));
    NamedImages::draw(painter, valid, u"progress-bar-progress"_s);
    painter.restore();
    QRectF point(QPointF(), QSizeF(NamedImages::naturalSize(u"progress-bar-point"_s)));
    point.moveCenter({valid.x() + filled, valid.center().y()});
    NamedImages::draw(painter, point, u"progress-bar-point"_s);
    if (hasFocus()) {
        painter.setRenderHint(QPainter::Antialiasing);
        // Drawn inside the view's border: at the ends of the bar there is no space outside.
        painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
        painter.drawEllipse(point.adjusted(1, 1, -1, -1));
    }
}

void AudioPlayProgressView::setAudioPosition(double x) {
    const double whole = validProgressRect().width();
    askFor(whole > 0 ? duration_ * (x / whole) : 0);
}

void AudioPlayProgressView::askFor(double seconds) {
    if (delegate_)
        delegate_->setAudioPosition(static_cast<float>(seconds));
    announceValue(*this);
}

QString AudioPlayProgressView::spokenValue() const {
    return tr("%1 of %2")
        .arg(ToolControl::getTimeString(qint64(currentTime_)), ToolControl::getTimeString(qint64(duration_)));
}

void AudioPlayProgressView::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) {
        QWidget::mousePressEvent(event);
        return;
    }
    dragging_ = true;
    setAudioPosition(event->position().x());
}

void AudioPlayProgressView::mouseMoveEvent(QMouseEvent* event) {
    if (dragging_ && event->buttons() & Qt::LeftButton)
        setAudioPosition(event->position().x());
}

void AudioPlayProgressView::mouseReleaseEvent(QMouseEvent*) {
    dragging_ = false;
}

void AudioPlayProgressView::keyPressEvent(QKeyEvent* event) {
    const double step = event->modifiers() & Qt::ShiftModifier ? 1 : 5; // seconds
    constexpr double page = 30;
    switch (event->key()) {
    case Qt::Key_Left:
        askFor(currentTime_ - step);
        break;
    case Qt::Key_Right:
        askFor(currentTime_ + step);
        break;
    case Qt::Key_PageUp:
        askFor(currentTime_ + page);
        break;
    case Qt::Key_PageDown:
        askFor(currentTime_ - page);
        break;
    case Qt::Key_Home:
        askFor(0);
        break;
    case Qt::Key_End:
        askFor(duration_);
        break;
    default:
        QWidget::keyPressEvent(event);
    }
}
