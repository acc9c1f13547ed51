// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "RingtoneMaker/AudioEditTimeView.h"

#include "RingtoneMaker/ValueTransformers.h"
#include "RingtoneMaker/WaveImage.h"
#include "Source/View/NamedImages.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr int kPoints = WaveImage::kPointsPerSecond;
constexpr int kSecondsBetween = 2;
constexpr double kLabelHeight = 15; ///< distance of the label's lower edge from the ruler's
constexpr double kLabelWidth = 100; ///< wider than any label: a label is also drawn into the tile that it extends into

QString timeText(double seconds) {
    return AudioWaveTime2TimeStringTransformer().transformedValue(seconds).toString();
}

} // namespace

AudioEditTimeView::AudioEditTimeView(QWidget* parent)
    : ImageCacheView(parent),
      scroll_(*this, [this](QPoint global) { setAudioPosition(float(mapFromGlobal(global).x())); }) {
    setLayoutDirection(Qt::LeftToRight); // time runs from left to right in every language
    setAccessibleName(tr("Play position"));
    setFocusPolicy(Qt::StrongFocus);
    QFont letters = font();
    letters.setPointSizeF(10);
    setFont(letters);
}

QList<AudioEditTimeView::Tick> AudioEditTimeView::ticks(double from, double to) const {
    QList<Tick> found;
    const int first = std::max(0, int(std::floor(from / kPoints / kSecondsBetween)) * kSecondsBetween);
    for (int s = first; double(s) * kPoints < std::min<double>(to, width()); s += kSecondsBetween) {
        const double tall = height();
        if (s % 20 == 0)
            found.append({double(s) * kPoints, tall / 1.3, s});
        else
            found.append({double(s) * kPoints, s % 10 == 0 ? tall / 1.7 : tall / 3, -1});
    }
    return found;
}

void AudioEditTimeView::updateImageCacheViewContent() {
    setViewContentCache(std::make_shared<ImageStrip>(QSizeF(size()), [this](QPainter& painter, const QRectF& area) {
        painter.setFont(font());
        painter.setPen(palette().color(QPalette::WindowText));
        for (const Tick& tick : ticks(area.left() - kLabelWidth, area.right() + 1)) {
            drawLineAt(painter, tick.x, tick.height);
            if (tick.labelledSecond >= 0)
                drawSecondAt(painter, tick.x, tick.labelledSecond);
        }
    }));
}

void AudioEditTimeView::drawLineAt(QPainter& painter, double x, double tall) const {
    painter.drawLine(QPointF(x + 0.5, height() - tall), QPointF(x + 0.5, height()));
}

void AudioEditTimeView::drawSecondAt(QPainter& painter, double x, int second) const {
    const double bottom = height() - kLabelHeight;
    painter.drawText(QPointF(x + 5, bottom - QFontMetricsF(painter.font()).descent() + 1), timeText(second));
}

void AudioEditTimeView::setAudioPosition(float x) {
    if (!delegate())
        return;
    delegate()->setAudioPosition(x);
    announceValue(*this);
}

void AudioEditTimeView::drawGround(QPainter& painter, const QRect& dirty) {
    NamedImages::draw(painter, QRectF(dirty.x(), 0, dirty.width(), height()), u"AudioWaveRuleBackground"_s,
                      palette().color(QPalette::WindowText));
}

void AudioEditTimeView::paintEvent(QPaintEvent* event) {
    ImageCacheView::paintEvent(event);
    if (!hasFocus())
        return;
    QPainter painter(this);
    painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
    painter.drawRect(QRectF(visibleRegion().boundingRect()).adjusted(1, 1, -1, -1));
}

void AudioEditTimeView::resizeEvent(QResizeEvent* event) {
    ImageCacheView::resizeEvent(event);
    setViewContentCache(nullptr);
}

void AudioEditTimeView::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton)
        return;
    dragging_ = true;
    setAudioPosition(float(event->position().x()));
}

void AudioEditTimeView::mouseMoveEvent(QMouseEvent* event) {
    if (!dragging_ || !(event->buttons() & Qt::LeftButton))
        return;
    setAudioPosition(float(event->position().x()));
    scroll_.follow(event->globalPosition().toPoint());
}

void AudioEditTimeView::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton)
        return;
    dragging_ = false;
    scroll_.end();
}

void AudioEditTimeView::keyPressEvent(QKeyEvent* event) {
    const float step = float(kPoints) * (event->modifiers() & Qt::ShiftModifier ? 10.0F : 1.0F);
    const float now = delegate() ? delegate()->audioPosition() : 0;
    switch (event->key()) {
    case Qt::Key_Left:
        return setAudioPosition(now - step);
    case Qt::Key_Right:
        return setAudioPosition(now + step);
    case Qt::Key_Home:
        return setAudioPosition(0);
    case Qt::Key_End:
        return setAudioPosition(delegate() ? delegate()->soundDuration() * float(kPoints) : 0);
    default:
        ImageCacheView::keyPressEvent(event);
    }
}

QString AudioEditTimeView::spokenValue() const {
    return timeText(spokenNumber().toDouble());
}

QVariant AudioEditTimeView::spokenNumber() const {
    return delegate() ? double(delegate()->audioPosition()) / kPoints : 0.0;
}

QVariant AudioEditTimeView::spokenMaximum() const {
    return delegate() ? double(delegate()->soundDuration()) : 0.0;
}

void AudioEditTimeView::setSpokenNumber(const QVariant& number) {
    setAudioPosition(number.toFloat() * float(kPoints));
}
