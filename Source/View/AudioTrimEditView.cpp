// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/View/AudioTrimEditView.h"

#include "Source/Control/ToolControl.h"
#include "Source/View/NamedImages.h"
#include "Source/View/OutlineDrawing.h"
#include "Source/View/SpokenView.h"
#include "Source/View/Theme.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr const char* kLeft = "TrimLeft.png";
constexpr const char* kRight = "TrimRight.png";
constexpr const char* kButton = "TrimPlaybtn.png";
constexpr const char* kBack = "ProcessBack.png";
constexpr const char* kArea = "TrimArea.png";

constexpr double kPage = 10; ///< seconds that Page Up and Page Down move a handle

QString name(const char* image) {
    return QString::fromLatin1(image);
}

QString tenthsText(double seconds) {
    const auto tenths = qint64(seconds * 10);
    return ToolControl::getTimeString(tenths / 10) + u'.' + QString::number(tenths % 10);
}

} // namespace

/// The focus stop and the slider of one handle. The bar draws the handle and takes the mouse; keys reach the bar
/// because this widget ignores them.
class TrimHandle : public QWidget, public SpokenView {
public:
    TrimHandle(AudioTrimEditView& bar, AudioTrimEditView::DragType type, const QString& name)
        : QWidget(&bar), bar_(bar), type_(type) {
        setFocusPolicy(Qt::TabFocus);
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setAccessibleName(name);
    }
    [[nodiscard]] QAccessible::Role spokenRole() const override { return QAccessible::Slider; }
    [[nodiscard]] QString spokenValue() const override { return tenthsText(spokenNumber().toDouble()); }
    [[nodiscard]] QVariant spokenNumber() const override { return bar_.duration() * double(bar_.rateOf(type_)); }
    [[nodiscard]] QVariant spokenMaximum() const override { return bar_.duration(); }
    void setSpokenNumber(const QVariant& number) override {
        if (bar_.duration() > 0)
            bar_.moveHandle(type_, float(number.toDouble() / bar_.duration()));
    }
    /// Takes the place of its handle. A screen reader follows the focused one.
    void show(float rate) {
        setGeometry(bar_.rectOf(type_).toAlignedRect());
        if (std::exchange(shown_, rate) != rate && hasFocus())
            announceValue(*this);
    }

protected:
    void focusInEvent(QFocusEvent* event) override {
        QWidget::focusInEvent(event);
        if (type_ != AudioTrimEditView::Seek)
            bar_.setLastHandle(type_);
        bar_.update();
    }
    void focusOutEvent(QFocusEvent* event) override {
        QWidget::focusOutEvent(event);
        bar_.update();
    }

private:
    AudioTrimEditView& bar_;
    AudioTrimEditView::DragType type_;
    float shown_ = -1;
};

AudioTrimEditView::AudioTrimEditView(QWidget* parent)
    : QWidget(parent), trimBtnHeight_(NamedImages::naturalSize(name(kLeft)).height()),
      trimBackHeight_(NamedImages::naturalSize(name(kBack)).height()),
      trimAreaHeight_(NamedImages::naturalSize(name(kArea)).height()),
      btnSize_(NamedImages::naturalSize(name(kButton))) {
    setLayoutDirection(Qt::LeftToRight); // time runs from left to right in every language
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setAccessibleName(tr("Range to keep"));
    handles_ = {new TrimHandle(*this, Seek, tr("Play position")),
                new TrimHandle(*this, LeftHandle, tr("Begin of the range to keep")),
                new TrimHandle(*this, RightHandle, tr("End of the range to keep"))};
    setFocusProxy(handles_[LeftHandle]);
}

QSize AudioTrimEditView::sizeHint() const {
    return {600, trimBackHeight_ + 2 * int(btnSize_.height())};
}

QSize AudioTrimEditView::minimumSizeHint() const {
    return {200, sizeHint().height()};
}

void AudioTrimEditView::setLeftTrimRate(float rate) {
    leftTrimRate_ = std::min(rate, rightTrimRate_);
    showHandles();
}

void AudioTrimEditView::setRightTrimRate(float rate) {
    rightTrimRate_ = std::max(rate, leftTrimRate_);
    showHandles();
}

void AudioTrimEditView::setPlayRate(float rate) {
    playRate_ = rate;
    showHandles();
}

void AudioTrimEditView::setDuration(double seconds) {
    duration_ = seconds;
}

void AudioTrimEditView::setOutline(const QList<float>& values) {
    outline_ = values;
    update();
}

void AudioTrimEditView::setLastHandle(DragType handle) {
    const bool focused = focusedHandle().has_value();
    lastHandle_ = handle;
    if (focusProxy() != handles_[handle]) {
        setFocusProxy(handles_[handle]);
        if (focused)
            handles_[handle]->setFocus(Qt::OtherFocusReason);
    }
    update();
}

std::optional<AudioTrimEditView::DragType> AudioTrimEditView::focusedHandle() const {
    for (const DragType handle : {Seek, LeftHandle, RightHandle})
        if (handles_[handle]->hasFocus())
            return handle;
    return std::nullopt;
}

float AudioTrimEditView::rateOf(DragType handle) const {
    return handle == Seek ? playRate_ : handle == LeftHandle ? leftTrimRate_ : rightTrimRate_;
}

QRectF AudioTrimEditView::rectOf(DragType handle) const {
    return handle == Seek ? playButtonRect() : handle == LeftHandle ? leftHandleRect() : rightHandleRect();
}

void AudioTrimEditView::moveHandle(DragType handle, float rate) {
    if (handle == RightHandle)
        setRightTrim(std::clamp(rate, leftTrimRate_, 1.0F));
    else if (handle == LeftHandle)
        setLeftTrim(std::clamp(rate, 0.0F, rightTrimRate_));
    else
        seekPlay(std::clamp(rate, 0.0F, 1.0F));
}

void AudioTrimEditView::showHandles() {
    for (const DragType handle : {Seek, LeftHandle, RightHandle})
        handles_[handle]->show(rateOf(handle));
    update();
}

void AudioTrimEditView::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    showHandles();
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
    setFocus(Qt::MouseFocusReason); // of the handle that was used last
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
    const DragType handle = focusedHandle().value_or(lastHandle_);
    moveHandle(handle, rateOf(handle) + float(seconds / duration_));
}

void AudioTrimEditView::keyPressEvent(QKeyEvent* event) {
    const double step = event->modifiers() & Qt::ShiftModifier ? 1 : 0.1; // seconds
    switch (event->key()) {
    case Qt::Key_Left:
        return nudge(-step);
    case Qt::Key_Right:
        return nudge(step);
    case Qt::Key_PageDown:
        return nudge(-kPage);
    case Qt::Key_PageUp:
        return nudge(kPage);
    case Qt::Key_Home:
        return moveHandle(focusedHandle().value_or(lastHandle_), 0);
    case Qt::Key_End:
        return moveHandle(focusedHandle().value_or(lastHandle_), 1);
    default:
        QWidget::keyPressEvent(event);
    }
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
    const QRectF button = playButtonRect();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Theme::Glass::text(), 1));
    painter.drawLine(QPointF(button.center().x(), strip.top()), QPointF(button.center().x(), strip.bottom()));
    NamedImages::draw(painter, button, name(kButton));
    if (const auto focused = focusedHandle()) {
        painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(rectOf(*focused).adjusted(1, 1, -1, -1), 4, 4);
    }
    drawTime(painter);
}

void AudioTrimEditView::drawTime(QPainter& painter) const {
    if (!dragX_ || duration_ <= 0)
        return;
    const double seconds = duration_ * double(mousePointRate({*dragX_, 0}));
    const QString text = tenthsText(seconds);
    QRectF box(0, 0, painter.fontMetrics().horizontalAdvance(text) + 12, painter.fontMetrics().height() + 6);
    box.moveCenter({*dragX_, backStripRect().center().y()});
    box.moveLeft(std::clamp(box.left(), 0.0, std::max(0.0, width() - box.width())));
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0, 0, 0, 200));
    painter.drawRoundedRect(box, 4, 4);
    painter.setPen(Theme::Glass::text());
    painter.drawText(box, Qt::AlignCenter, text);
}
