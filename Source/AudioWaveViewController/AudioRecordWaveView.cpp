// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/AudioWaveViewController/AudioRecordWaveView.h"

#include "Source/View/Theme.h"

#include <QEvent>
#include <QPainter>
#include <QWindow>

#include <algorithm>
#include <cmath>

AudioRecordWaveView::AudioRecordWaveView(QWidget* parent) : QWidget(parent) {
    setLayoutDirection(Qt::LeftToRight); // time runs from left to right in every language
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAccessibleName(tr("Recording level"));
}

void AudioRecordWaveView::addCurrentLevel(float level) {
    if (isLeftToRight())
        audioLevelArray_.prepend(level);
    else
        audioLevelArray_.append(level);
    while (audioLevelArray_.size() > width())
        isLeftToRight() ? audioLevelArray_.removeLast() : audioLevelArray_.removeFirst();
    // In a hidden or iconified window nothing is drawn.
    const QWindow* screen = isVisible() ? window()->windowHandle() : nullptr;
    const bool isShown = screen && screen->isExposed();
    if (!isShown || !scrollPicture())
        pictureIsOld_ = true;
    if (isShown)
        update();
}

QVariant AudioRecordWaveView::spokenNumber() const {
    const float newest = audioLevelArray_.isEmpty() ? 0
                         : isLeftToRight()          ? audioLevelArray_.first()
                                                    : audioLevelArray_.last();
    return std::isfinite(newest) ? std::round(std::clamp(double(newest), 0.0, 1.0) * 100) : 0.0;
}

QString AudioRecordWaveView::spokenValue() const {
    return tr("%1 %").arg(spokenNumber().toInt());
}

void AudioRecordWaveView::drawColumn(QPainter& painter, int index) const {
    const float level = audioLevelArray_.at(index);
    // A NaN or infinite level must not break the drawing of the others.
    const double v = std::isfinite(level) ? std::max(double(level), 0.02) : 0.02;
    const double middle = height() / 2.0;
    // At 1.5 pixels per point a column's sides are not on whole pixels; then it is one or two pixels wide.
    const qreal ratio = painter.device()->devicePixelRatioF();
    const qreal left = std::round(index * ratio) / ratio;
    const qreal right = std::round((index + 1) * ratio) / ratio;
    painter.fillRect(QRectF(left, (1 - v) * middle, right - left, 2 * v * middle), Theme::Glass::level());
}

void AudioRecordWaveView::redrawAll() {
    const qreal ratio = devicePixelRatioF();
    picture_ = QPixmap((QSizeF(size()) * ratio).toSize());
    picture_.setDevicePixelRatio(ratio);
    picture_.fill(Qt::transparent);
    QPainter painter(&picture_);
    painter.setRenderHint(QPainter::Antialiasing);
    for (int i = 0; i < audioLevelArray_.size(); ++i)
        drawColumn(painter, i);
    pictureIsOld_ = false;
}

bool AudioRecordWaveView::scrollPicture() {
    const qreal ratio = devicePixelRatioF();
    const int step = int(ratio);
    // At 1.25 pixels per point, columns are not aligned to pixels and cannot be moved.
    if (pictureIsOld_ || step != ratio || picture_.devicePixelRatio() != ratio || audioLevelArray_.isEmpty())
        return false;
    picture_.scroll(step, 0, picture_.rect());
    QPainter painter(&picture_);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setCompositionMode(QPainter::CompositionMode_Clear);
    painter.fillRect(QRectF(0, 0, 1, height()), Qt::transparent);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    drawColumn(painter, 0);
    return true;
}

void AudioRecordWaveView::paintEvent(QPaintEvent*) {
    if (pictureIsOld_ || picture_.devicePixelRatio() != devicePixelRatioF())
        redrawAll();
    QPainter(this).drawPixmap(0, 0, picture_);
}

void AudioRecordWaveView::resizeEvent(QResizeEvent*) {
    pictureIsOld_ = true;
}

void AudioRecordWaveView::changeEvent(QEvent* event) {
    if (event->type() == QEvent::PaletteChange)
        pictureIsOld_ = true;
    QWidget::changeEvent(event);
}
