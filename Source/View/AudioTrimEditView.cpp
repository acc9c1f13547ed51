// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/View/AudioTrimEditView.h"

#include "Source/Control/ToolControl.h"
#include "Source/View/NamedImages.h"
#include "Source/View/OutlineDrawing.h"
#include "Source/View/Theme.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr const char* kLeft = "TrimLeft.png";
constexpr const char* kRight = "TrimRight.png";
constexpr const char* kButton = "TrimPlaybtn.png";
constexpr const char* kBack = "ProcessBack.png";
constexpr const char* kArea = "TrimArea.png";

QString name(const char* image) {
    return QString::fromLatin1(image);
}

} // namespace

AudioTrimEditView::AudioTrimEditView(QWidget* parent)
    : QWidget(parent), trimBtnHeight_(NamedImages::naturalSize(name(kLeft)).height()),
      trimBackHeight_(NamedImages::naturalSize(name(kBack)).height()),
      trimAreaHeight_(NamedImages::naturalSize(name(kArea)).height()),
      btnSize_(NamedImages::naturalSize(name(kButton))) {
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setAccessibleName(tr("Range to keep"));
}

QSize AudioTrimEditView::sizeHint() const {
    return {600, trimBackHeight_ + 2 * int(btnSize_.height())};
}

QSize AudioTrimEditView::minimumSizeHint() const {
    return {200, sizeHint().height()};
}

void AudioTrimEditView::setLeftTrimRate(float rate) {
    leftTrimRate_ = std::min(rate, rightTrimRate_);
    update();
}

void AudioTrimEditView::setRightTrimRate(float rate) {
    rightTrimRate_ = std::max(rate, leftTrimRate_);
    update();
}

void AudioTrimEditView::setPlayRate(float rate) {
    playRate_ = rate;
    update();
}

void AudioTrimEditView::setDuration(double seconds) {
    duration_ = seconds;
}

void AudioTrimEditView::setOutline(const QList<float>& values) {
    outline_ = values;
    update();
}

void AudioTrimEditView::setLastHandle(DragType handle) {
    lastHandle_ = handle;
    update();
}

double AudioTrimEditView::usableLength() const {
    return width() - btnSize_.width();
}

QRectF AudioTrimEditView::seekStripRect() const {
    return {0, 0, double(width()), btnSize_.height()};
}

QRectF AudioTrimEditView::leftHandleRect() const {
    return {usableLength() * double(leftTrimRate_), height() - btnSize_.height(), btnSize_.width() / 2,
            btnSize_.height()};
}

QRectF AudioTrimEditView::rightHandleRect() const {
    return {btnSize_.width() / 2 + usableLength() * double(rightTrimRate_), height() - btnSize_.height(),
            btnSize_.width() / 2, btnSize_.height()};
}

QRectF AudioTrimEditView::playButtonRect() const {
    return {QPointF(usableLength() * double(playRate_), 0), btnSize_};
}

QRectF AudioTrimEditView::backStripRect() const {
    return {btnSize_.width() / 2, btnSize_.height(), usableLength(), height() - 2 * btnSize_.height()};
}

QRectF AudioTrimEditView::rangeRect() const {
    // One point above the middle.
    return {btnSize_.width() / 2 + usableLength() * double(leftTrimRate_), (height() - trimAreaHeight_) / 2.0 - 1,
            usableLength() * double(rightTrimRate_ - leftTrimRate_), double(trimAreaHeight_)};
}

float AudioTrimEditView::mousePointRate(const QPointF& place) const {
    const double length = usableLength();
    if (length <= 0)
        return 0;
    return float(std::clamp((place.x() - btnSize_.width() / 2) / length, 0.0, 1.0));
}

void AudioTrimEditView::seekPlay(float rate) {
    if (delegate_)
        delegate_->seekPlay(rate);
}

void AudioTrimEditView::setLeftTrim(float rate) {
    if (delegate_)
        delegate_->setLeftTrim(rate);
}

void AudioTrimEditView::setRightTrim(float rate) {
    if (delegate_)
        delegate_->setRightTrim(rate);
}

void AudioTrimEditView::mousePressEvent(QMouseEvent* event) {
    // Always accepted: some styles move the window when its empty areas are dragged.
    event->accept();
    if (event->button() != Qt::LeftButton)
        return;
    const QPointF place = event->position();
    if (seekStripRect().contains(place))
        dragType_ = Seek;
    else if (leftHandleRect().contains(place))
        dragType_ = LeftHandle;
    else if (rightHandleRect().contains(place))
        dragType_ = RightHandle;
    else
        dragType_ = NoDrag;
    if (dragType_ == LeftHandle || dragType_ == RightHandle)
        setLastHandle(DragType(dragType_));
}

void AudioTrimEditView::mouseMoveEvent(QMouseEvent* event) {
    event->accept();
    if (dragType_ == NoDrag)
        return;
    const float rate = mousePointRate(event->position());
    dragX_ = btnSize_.width() / 2 + usableLength() * double(rate);
    if (dragType_ == RightHandle)
        setRightTrim(std::max(rate, leftTrimRate_));
    else if (dragType_ == LeftHandle)
        setLeftTrim(std::min(rate, rightTrimRate_));
    else
        seekPlay(rate);
    update();
}

void AudioTrimEditView::mouseReleaseEvent(QMouseEvent* event) {
    event->accept();
    if (event->button() != Qt::LeftButton)
        return;
    dragType_ = NoDrag;
    dragX_.reset();
    update();
}

void AudioTrimEditView::nudge(double seconds) {
    if (duration_ <= 0)
        return;
    const auto step = float(seconds / duration_);
    if (lastHandle_ == RightHandle)
        setRightTrim(std::clamp(rightTrimRate_ + step, leftTrimRate_, 1.0F));
    else
        setLeftTrim(std::clamp(leftTrimRate_ + step, 0.0F, rightTrimRate_));
}

void AudioTrimEditView::keyPressEvent(QKeyEvent* event) {
    const double step = event->modifiers() & Qt::ShiftModifier ? 1 : 0.1; // seconds
    if (event->key() == Qt::Key_Left)
        nudge(-step);
    else if (event->key() == Qt::Key_Right)
        nudge(step);
    else
        QWidget::keyPressEvent(event);
}

void AudioTrimEditView::focusInEvent(QFocusEvent* event) {
    QWidget::focusInEvent(event);
    update();
}

void AudioTrimEditView::focusOutEvent(QFocusEvent* event) {
    QWidget::focusOutEvent(event);
    update();
}

void AudioTrimEditView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QRectF strip = backStripRect();
    const QRectF range = rangeRect();
    NamedImages::draw(painter, strip, name(kBack));
    const QRectF wave = strip.adjusted(0, 4, 0, -4);
    OutlineDrawing::draw(painter, wave, outline_, Theme::Glass::dimText());
    NamedImages::draw(painter, range, name(kArea));
    painter.save();
    painter.setClipRect(range);
    OutlineDrawing::draw(painter, wave, outline_, Theme::Glass::level());
    painter.restore();

    NamedImages::draw(painter, leftHandleRect(), name(kLeft));
    NamedImages::draw(painter, rightHandleRect(), name(kRight));
    if (hasFocus()) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(
            (lastHandle_ == RightHandle ? rightHandleRect() : leftHandleRect()).adjusted(1, 1, -1, -1), 4, 4);
    }

    const QRectF button = playButtonRect();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Theme::Glass::text(), 1));
    painter.drawLine(QPointF(button.center().x(), strip.top()), QPointF(button.center().x(), strip.bottom()));
    NamedImages::draw(painter, button, name(kButton));
    drawTime(painter);
}

void AudioTrimEditView::drawTime(QPainter& painter) const {
    if (!dragX_ || duration_ <= 0)
        return;
    const double seconds = duration_ * double(mousePointRate({*dragX_, 0}));
    const auto tenths = qint64(seconds * 10);
    const QString text = ToolControl::getTimeString(tenths / 10) + u'.' + QString::number(tenths % 10);
    QRectF box(0, 0, painter.fontMetrics().horizontalAdvance(text) + 12, painter.fontMetrics().height() + 6);
    box.moveCenter({*dragX_, backStripRect().center().y()});
    box.moveLeft(std::clamp(box.left(), 0.0, std::max(0.0, width() - box.width())));
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0, 0, 0, 200));
    painter.drawRoundedRect(box, 4, 4);
    painter.setPen(Theme::Glass::text());
    painter.drawText(box, Qt::AlignCenter, text);
}
