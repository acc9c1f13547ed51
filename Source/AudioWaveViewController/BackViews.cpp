// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/AudioWaveViewController/BackViews.h"

#include "Source/View/NamedImages.h"
#include "Source/View/Theme.h"

#include <QEvent>
#include <QPainter>
#include <QPainterPath>

using namespace Qt::StringLiterals;

AudioWaveformBackView::AudioWaveformBackView(QWidget* parent) : QWidget(parent) {
    // Text on the dark glass is light in both themes.
    QPalette glass = palette();
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        glass.setColor(role, Theme::Glass::text());
    // The images on its buttons are light, too, so a button under the pointer stays dark.
    glass.setColor(QPalette::Button, Theme::Glass::button());
    glass.setColor(QPalette::Highlight, Theme::Glass::focus());
    setPalette(glass);
    setAttribute(Qt::WA_OpaquePaintEvent); // the window below it is not drawn
}

void AudioWaveformBackView::setRecording(bool recording) {
    if (recording == recording_)
        return;
    recording_ = recording;
    picture_ = {};
    update();
}

void AudioWaveformBackView::changeEvent(QEvent* event) {
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::StyleChange)
        picture_ = {};
    QWidget::changeEvent(event);
}

void AudioWaveformBackView::paintEvent(QPaintEvent*) {
    const qreal ratio = devicePixelRatioF();
    const QSize size = (QSizeF(this->size()) * ratio).toSize();
    if (picture_.size() != size || picture_.devicePixelRatio() != ratio) {
        picture_ = QPixmap(size);
        picture_.setDevicePixelRatio(ratio);
        picture_.fill(palette().color(QPalette::Window)); // without transparency it need not be blended
        QPainter painter(&picture_);
        draw(painter);
    }
    QPainter(this).drawPixmap(0, 0, picture_);
}

void AudioWaveformBackView::draw(QPainter& painter) {
    painter.setRenderHint(QPainter::Antialiasing);
    QPainterPath outline;
    outline.addRoundedRect(QRectF(rect()), 8, 8);
    painter.setClipPath(outline);
    NamedImages::draw(painter, rect(), u"AudioWaveformBack.png"_s);
    painter.setClipping(false);
    if (recording_) {
        painter.setPen(QPen(Theme::Glass::recording(), 2));
        painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 7, 7);
        return;
    }
    painter.setPen(QPen(QColor(255, 255, 255, 30), 1));
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 7.5, 7.5);
}

void LibaryBackView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    NamedImages::draw(painter, rect(), u"LibaryBackImage.png"_s, palette().color(QPalette::WindowText));
}

AdditionalControlBackView::AdditionalControlBackView(QWidget* parent) : QWidget(parent) {
    takeColors();
}

void AdditionalControlBackView::takeColors() {
    if (palette().color(QPalette::Active, QPalette::ButtonText) == Theme::Strip::text(true))
        return;
    QPalette colors;
    colors.setColor(QPalette::Highlight, Theme::Strip::focus());
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        colors.setColor(role, Theme::Strip::text(true));
        colors.setColor(QPalette::Disabled, role, Theme::Strip::text(false));
    }
    setPalette(colors);
}

bool AdditionalControlBackView::event(QEvent* event) {
    if (event->type() == QEvent::ApplicationPaletteChange || event->type() == QEvent::PaletteChange)
        takeColors();
    return QWidget::event(event);
}

void AdditionalControlBackView::paintEvent(QPaintEvent*) {
    QPainter(this).fillRect(rect(), Theme::Strip::ground());
}
