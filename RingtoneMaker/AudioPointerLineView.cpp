// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "RingtoneMaker/AudioPointerLineView.h"

#include "RingtoneMaker/ValueTransformers.h"
#include "Source/View/NamedImages.h"
#include "Source/View/Theme.h"

#include <QPainter>

#include <cmath>

using namespace Qt::StringLiterals;

AudioPointerLineView::AudioPointerLineView(QWidget* parent) : QWidget(parent) {
    setLayoutDirection(Qt::LeftToRight); // time runs from left to right in every language
    setAccessibleName(tr("Play pointer"));
    setFocusPolicy(Qt::ClickFocus);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    resize(kWidth, height());
    setPosition(0);
}

void AudioPointerLineView::setPosition(float x) {
    x_ += double(x) - double(position());
    move(int(std::floor(x_)), y());
    update();
}

void AudioPointerLineView::paintEvent(QPaintEvent*) {
    // The dark grey and the light grey are fixed; in the dark theme they are swapped, or the line would be invisible.
    const bool dark = Theme::shade() == Theme::Shade::Dark;
    const QColor line = QColor::fromRgbF(dark ? 0.8F : 1 / 3.0F, dark ? 0.8F : 1 / 3.0F, dark ? 0.8F : 1 / 3.0F);
    const QColor light = QColor::fromRgbF(2 / 3.0F, 2 / 3.0F, 2 / 3.0F);
    QPainter painter(this);
    const double center = x_ - std::floor(x_) + kWidth / 2.0;
    painter.setPen(QPen(line, 1));
    painter.drawLine(QPointF(center, height()), QPointF(center, 0));
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(light);
    painter.drawPolygon(QPolygonF{{center - 10, 0}, {center + 10, 0}, {center, 10}});
}

QString AudioPointerLineView::spokenValue() const {
    return AudioWaveTime2TimeStringTransformer().transformedValue(position() / 10).toString();
}

RingtoneMakerBackgroundView::RingtoneMakerBackgroundView(QWidget* parent) : QWidget(parent) {
    setFocusPolicy(Qt::ClickFocus);
    setAccessibleName(tr("Ringtone"));
}

void RingtoneMakerBackgroundView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    NamedImages::draw(painter, QRectF(rect()), u"RingtoneMakerViewBackground"_s, palette().color(QPalette::WindowText));
}
