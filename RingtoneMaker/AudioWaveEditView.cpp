// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "RingtoneMaker/AudioWaveEditView.h"

#include "Source/View/Theme.h"

#include <QMouseEvent>
#include <QPainter>

namespace {

QColor ground() {
    // The light grey is fixed; the dark theme uses a grey at the same distance from its background.
    const float grey = Theme::shade() == Theme::Shade::Dark ? 0.26F : 0.745098F;
    return QColor::fromRgbF(grey, grey, grey, 0.7F);
}

} // namespace

AudioWaveEditView::AudioWaveEditView(QWidget* parent)
    : ImageCacheView(parent),
      scroll_(*this, [this](QPoint global) { trimAudioFromPoint(pressed_, QPointF(mapFromGlobal(global))); }) {
    setLayoutDirection(Qt::LeftToRight); // time runs from left to right in every language
    setAccessibleName(tr("Outline"));
    setFocusPolicy(Qt::ClickFocus);
    // Moves without a pressed button are also reported; they have no effect.
    setMouseTracking(true);
}

void AudioWaveEditView::setMessage(const QString& message) {
    if (message_ == message)
        return;
    message_ = message;
    update();
}

void AudioWaveEditView::drawGround(QPainter& painter, const QRect& dirty) {
    painter.fillRect(dirty, ground());
}

void AudioWaveEditView::paintEvent(QPaintEvent* event) {
    ImageCacheView::paintEvent(event);
    if (message_.isEmpty())
        return;
    QPainter painter(this);
    QColor text = palette().color(QPalette::Active, QPalette::WindowText);
    text.setAlphaF(0.85F);
    painter.setPen(text);
    painter.drawText(visibleRegion().boundingRect().adjusted(16, 0, -16, 0), Qt::AlignCenter | Qt::TextWordWrap,
                     message_);
}

void AudioWaveEditView::trimAudioFromPoint(QPointF from, QPointF to) {
    if (delegate())
        delegate()->trimAudioFromPoint(from, to);
}

void AudioWaveEditView::mousePressEvent(QMouseEvent* event) {
    dragging_ = event->button() == Qt::LeftButton;
    pressed_ = event->position();
}

void AudioWaveEditView::mouseMoveEvent(QMouseEvent* event) {
    if (!dragging_ || !(event->buttons() & Qt::LeftButton))
        return;
    trimAudioFromPoint(pressed_, event->position());
    scroll_.follow(event->globalPosition().toPoint());
}

void AudioWaveEditView::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton)
        return;
    dragging_ = false;
    scroll_.end();
}
