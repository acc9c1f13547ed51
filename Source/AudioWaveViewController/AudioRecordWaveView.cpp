// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/AudioWaveViewController/AudioRecordWaveView.h"

#include "Source/View/Theme.h"

#include <QEvent>
#include <QPainter>
#include <QWindow>

#include <algorithm>
#include <cmath>

namespace {

/// The mark of a clipped column, in points.
constexpr qsizetype MarkWidth = 3;
constexpr double MarkHeight = 3;

/// More columns than this are drawn into the picture.
constexpr int MostColumnsBeside = 16;

} // namespace

AudioRecordWaveView::AudioRecordWaveView(QWidget* parent) : QWidget(parent) {
    setLayoutDirection(Qt::LeftToRight); // time runs from left to right in every language
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAccessibleName(tr("Recording level"));
}

bool AudioRecordWaveView::isSeen(const QWidget& widget) {
    const QWindow* screen = widget.isVisible() ? widget.window()->windowHandle() : nullptr;
    return screen && screen->isExposed();
}

void AudioRecordWaveView::addCurrentLevel(float level, bool clipped) {
    const auto add = [this](auto& list, auto value, qsizetype most) {
        isLeftToRight() ? list.prepend(value) : list.append(value);
        while (list.size() > most)
            isLeftToRight() ? list.removeLast() : list.removeFirst();
    };
    add(audioLevelArray_, level, width());
    // A mark that begins at the edge is visible longer than its level.
    add(clipped_, clipped, width() + MarkWidth - 1);
    // In a hidden or iconified window nothing is drawn.
    const bool isShown = isSeen(*this);
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
    const bool isClipped = !clipped_.isEmpty() && (isLeftToRight() ? clipped_.first() : clipped_.last());
    return isClipped ? tr("%1 %, clipped").arg(spokenNumber().toInt()) : tr("%1 %").arg(spokenNumber().toInt());
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
    painter.fillRect(QRectF(left, (1 - v) * middle, right - left, 2 * v * middle),
                     clipped_.at(index) ? Theme::Glass::clipping() : Theme::Glass::level());
    // The mark is as wide as three columns, to be seen without its colour: it covers the two columns after a clipped
    // one.
    const auto last = std::min<qsizetype>(index + MarkWidth, clipped_.size());
    if (std::find(clipped_.cbegin() + index, clipped_.cbegin() + last, true) != clipped_.cbegin() + last)
        for (const double top : {0.0, height() - MarkHeight})
            painter.fillRect(QRectF(left, top, right - left, MarkHeight), Theme::Glass::clipping());
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
    columnsBeside_ = 0;
    pictureIsOld_ = false;
}

bool AudioRecordWaveView::scrollPicture() {
    const qreal ratio = devicePixelRatioF();
    const int step = int(ratio);
    // At 1.25 pixels per point, columns are not aligned to pixels and cannot be moved.
    if (pictureIsOld_ || step != ratio || picture_.devicePixelRatio() != ratio || audioLevelArray_.isEmpty())
        return false;
    if (++columnsBeside_ <= MostColumnsBeside)
        return true;
    picture_.scroll(columnsBeside_ * step, 0, picture_.rect());
    QPainter painter(&picture_);
    // Whole pixels and this mode are a plain fill. With antialiasing Qt wakes its pool of threads for these columns.
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.fillRect(QRect(0, 0, columnsBeside_, height()), Qt::transparent);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    painter.setRenderHint(QPainter::Antialiasing);
    drawColumnsBeside(painter);
    columnsBeside_ = 0;
    return true;
}

void AudioRecordWaveView::drawColumnsBeside(QPainter& painter) const {
    for (int i = 0; i < std::min(columnsBeside_, int(audioLevelArray_.size())); ++i)
        drawColumn(painter, i);
}

void AudioRecordWaveView::paintEvent(QPaintEvent*) {
    if (pictureIsOld_ || picture_.devicePixelRatio() != devicePixelRatioF())
        redrawAll();
    QPainter painter(this);
    painter.drawPixmap(columnsBeside_, 0, picture_);
    painter.setRenderHint(QPainter::Antialiasing);
    drawColumnsBeside(painter);
}

void AudioRecordWaveView::resizeEvent(QResizeEvent*) {
    pictureIsOld_ = true;
}

void AudioRecordWaveView::changeEvent(QEvent* event) {
    if (event->type() == QEvent::PaletteChange)
        pictureIsOld_ = true;
    QWidget::changeEvent(event);
}
