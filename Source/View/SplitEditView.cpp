// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/View/SplitEditView.h"

#include "Source/Control/ToolControl.h"
#include "Source/View/NamedImages.h"
#include "Source/View/OutlineDrawing.h"
#include "Source/View/SpokenView.h"
#include "Source/View/Theme.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr const char* kPlayImage = "TrimPlaybtn.png";
constexpr const char* kBackImage = "ProcessBack.png";

constexpr double kStep = 0.1;      ///< seconds
constexpr double kLargeStep = 1;   ///< seconds
constexpr double kFineStep = 0.01; ///< seconds
constexpr double kPageStep = 10;   ///< seconds
constexpr double kZoomStep = 1.5;
constexpr double kGrab = 5;              ///< points beside a cut that still grab it
constexpr double kOutlinePerSecond = 10; ///< values, see AudioOutline
constexpr int kWaveHeight = 96;

/// "00:01:02.34"
QString hundredthsText(double seconds) {
    const auto hundredths = qint64(std::llround(seconds * 100));
    return u"%1.%2"_s.arg(ToolControl::getTimeString(hundredths / 100)).arg(hundredths % 100, 2, 10, QLatin1Char('0'));
}

} // namespace

/// The focus stop and the slider of the play position or of the current cut. The bar draws it and takes the mouse; keys
/// reach the bar because this widget ignores them.
class SplitHandle : public QWidget, public SpokenView {
public:
    SplitHandle(SplitEditView& bar, bool isCut, const QString& name) : QWidget(&bar), bar_(bar), isCut_(isCut) {
        setFocusPolicy(Qt::TabFocus);
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setAccessibleName(name);
    }
    [[nodiscard]] QAccessible::Role spokenRole() const override { return QAccessible::Slider; }
    [[nodiscard]] QString spokenValue() const override {
        const QString time = hundredthsText(spokenNumber().toDouble());
        if (!isCut_)
            return time;
        return SplitEditView::tr("Cut %1 of %2, %3").arg(bar_.currentCut() + 1).arg(bar_.cuts().size()).arg(time);
    }
    [[nodiscard]] QVariant spokenNumber() const override { return double(frame()) / bar_.sampleRate(); }
    [[nodiscard]] QVariant spokenMaximum() const override { return double(bar_.frames()) / bar_.sampleRate(); }
    void setSpokenNumber(const QVariant& number) override {
        const std::int64_t wanted = std::llround(number.toDouble() * bar_.sampleRate());
        if (isCut_)
            Q_EMIT bar_.moveAsked(bar_.currentCut(), wanted);
        else
            Q_EMIT bar_.seekAsked(std::clamp<std::int64_t>(wanted, 0, bar_.frames()));
    }
    /// Takes the place of what it stands for. A screen reader follows the focused one.
    void show(const QRectF& place) {
        setGeometry(place.toAlignedRect());
        const std::pair shown(isCut_ ? bar_.currentCut() : -1, frame());
        if (std::exchange(shown_, shown) != shown && hasFocus())
            announceValue(*this);
    }

protected:
    void focusInEvent(QFocusEvent* event) override {
        QWidget::focusInEvent(event);
        bar_.makeVisible(frame());
        bar_.update();
    }
    void focusOutEvent(QFocusEvent* event) override {
        QWidget::focusOutEvent(event);
        bar_.update();
    }

private:
    [[nodiscard]] std::int64_t frame() const {
        if (!isCut_)
            return bar_.playFrame();
        return bar_.currentCut() < 0 ? 0 : bar_.cuts()[std::size_t(bar_.currentCut())];
    }

    SplitEditView& bar_;
    bool isCut_;
    std::pair<int, std::int64_t> shown_{-2, -1};
};

SplitEditView::SplitEditView(QWidget* parent)
    : QWidget(parent), handleSize_(NamedImages::naturalSize(QString::fromLatin1(kPlayImage))) {
    setLayoutDirection(Qt::LeftToRight); // time runs from left to right in every language
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setAccessibleName(tr("Cuts of the recording"));
    playHandle_ = new SplitHandle(*this, false, tr("Play position"));
    cutHandle_ = new SplitHandle(*this, true, tr("Current cut"));
    cutHandle_->hide();
    setFocusProxy(playHandle_);
}

QSize SplitEditView::sizeHint() const {
    return {600, kWaveHeight + 2 * int(handleSize_.height())};
}

QSize SplitEditView::minimumSizeHint() const {
    return {200, sizeHint().height()};
}

void SplitEditView::setRecording(std::int64_t frames, double sampleRate) {
    frames_ = frames;
    sampleRate_ = sampleRate > 0 ? sampleRate : 44100;
    zoom_ = 1;
    firstVisible_ = 0;
    playFrame_ = 0;
    cuts_.clear();
    silences_.clear();
    currentCut_ = -1;
    showHandles();
    Q_EMIT visibleRangeChanged();
}

void SplitEditView::setOutline(const QList<float>& values) {
    outline_ = values;
    update();
}

void SplitEditView::setSilences(std::vector<SilenceFinder::Silence> silences) {
    silences_ = std::move(silences);
    update();
}

void SplitEditView::setCuts(const std::vector<std::int64_t>& cuts) {
    cuts_ = cuts;
    const int current = cuts_.empty() ? -1 : std::clamp(currentCut_, 0, int(cuts_.size()) - 1);
    choose(current);
    showHandles();
}

void SplitEditView::setPlayFrame(std::int64_t frame) {
    playFrame_ = frame;
    showHandles();
}

void SplitEditView::choose(int cut) {
    if (std::exchange(currentCut_, cut) != cut)
        Q_EMIT currentCutChanged(cut);
}

void SplitEditView::setCurrentCut(int index) {
    if (index < 0 || index >= int(cuts_.size()))
        return;
    choose(index);
    makeVisible(cuts_[std::size_t(index)]);
    showHandles();
}

std::int64_t SplitEditView::visibleFrames() const {
    return std::max<std::int64_t>(1, std::llround(double(frames_) / zoom_));
}

void SplitEditView::setZoom(double zoom, double x) {
    const std::int64_t kept = frameAt(x);
    zoom_ = std::clamp(zoom, 1.0, std::max(1.0, double(frames_) / sampleRate_));
    const double share = std::clamp((x - waveRect().left()) / std::max(1.0, waveRect().width()), 0.0, 1.0);
    scrollTo(kept - std::llround(share * double(visibleFrames())));
}

void SplitEditView::zoomBy(double factor) {
    const double middle = waveRect().center().x();
    if (currentCut_ >= 0) {
        const std::int64_t cut = cuts_[std::size_t(currentCut_)];
        scrollTo(cut - visibleFrames() / 2);
        setZoom(zoom_ * factor, xOf(cut));
    } else {
        setZoom(zoom_ * factor, middle);
    }
}

void SplitEditView::scrollTo(std::int64_t firstFrame) {
    firstVisible_ = std::clamp<std::int64_t>(firstFrame, 0, std::max<std::int64_t>(0, frames_ - visibleFrames()));
    showHandles();
    Q_EMIT visibleRangeChanged();
}

void SplitEditView::makeVisible(std::int64_t frame) {
    if (frame < firstVisible_ || frame > firstVisible_ + visibleFrames())
        scrollTo(frame - visibleFrames() / 2);
}

QRectF SplitEditView::seekStripRect() const {
    return {0, 0, double(width()), handleSize_.height()};
}

QRectF SplitEditView::waveRect() const {
    return {handleSize_.width() / 2, handleSize_.height(), width() - handleSize_.width(),
            height() - 2 * handleSize_.height()};
}

double SplitEditView::xOf(std::int64_t frame) const {
    const QRectF wave = waveRect();
    return wave.left() + double(frame - firstVisible_) / double(visibleFrames()) * wave.width();
}

std::int64_t SplitEditView::frameAt(double x) const {
    const QRectF wave = waveRect();
    const double share = wave.width() > 0 ? (x - wave.left()) / wave.width() : 0;
    return std::clamp<std::int64_t>(firstVisible_ + std::llround(share * double(visibleFrames())), 0, frames_);
}

QRectF SplitEditView::handleRect(int cut) const {
    constexpr double width = 13;
    return {xOf(cuts_[std::size_t(cut)]) - width / 2, waveRect().bottom() + 1, width, handleSize_.height() - 2};
}

QRectF SplitEditView::playButtonRect() const {
    return {QPointF(xOf(playFrame_) - handleSize_.width() / 2, 0), handleSize_};
}

void SplitEditView::showHandles() {
    const bool hasCut = currentCut_ >= 0;
    if (hasCut != cutHandle_->isVisibleTo(this)) {
        if (cutHandle_->hasFocus())
            playHandle_->setFocus(Qt::OtherFocusReason);
        cutHandle_->setVisible(hasCut);
        setFocusProxy(hasCut ? cutHandle_ : playHandle_);
    }
    playHandle_->show(playButtonRect());
    if (hasCut)
        cutHandle_->show(handleRect(currentCut_));
    update();
}

void SplitEditView::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    showHandles();
}

bool SplitEditView::isMovingCut() const {
    return currentCut_ >= 0 && !playHandle_->hasFocus();
}

void SplitEditView::moveTo(std::int64_t frame) {
    if (isMovingCut()) {
        const int cut = currentCut_;
        Q_EMIT moveAsked(cut, frame);
        if (cut < int(cuts_.size()))
            makeVisible(cuts_[std::size_t(cut)]);
    } else {
        frame = std::clamp<std::int64_t>(frame, 0, frames_);
        Q_EMIT seekAsked(frame);
        makeVisible(frame);
    }
}

void SplitEditView::moveBy(double seconds) {
    moveTo((isMovingCut() ? cuts_[std::size_t(currentCut_)] : playFrame_) + std::llround(seconds * sampleRate_));
}

void SplitEditView::keyPressEvent(QKeyEvent* event) {
    const auto keys = event->modifiers();
    const double step = keys & Qt::ShiftModifier ? kLargeStep : keys & Qt::ControlModifier ? kFineStep : kStep;
    switch (event->key()) {
    case Qt::Key_Left:
        return moveBy(-step);
    case Qt::Key_Right:
        return moveBy(step);
    case Qt::Key_PageDown:
        return moveBy(-kPageStep);
    case Qt::Key_PageUp:
        return moveBy(kPageStep);
    case Qt::Key_Home:
        return moveTo(0);
    case Qt::Key_End:
        return moveTo(frames_);
    case Qt::Key_Up:
        return setCurrentCut(std::max(0, currentCut_ - 1));
    case Qt::Key_Down:
        return setCurrentCut(std::min(int(cuts_.size()) - 1, currentCut_ + 1));
    case Qt::Key_Insert:
        Q_EMIT addAsked(playFrame_);
        return;
    case Qt::Key_Delete:
        if (currentCut_ >= 0)
            Q_EMIT removeAsked(currentCut_);
        return;
    case Qt::Key_Plus:
    case Qt::Key_Equal:
        return zoomBy(kZoomStep);
    case Qt::Key_Minus:
        return zoomBy(1 / kZoomStep);
    default:
        QWidget::keyPressEvent(event);
    }
}

int SplitEditView::cutAt(const QPointF& place) const {
    if (place.y() < waveRect().top())
        return -1;
    int nearest = -1;
    double least = place.y() > waveRect().bottom() ? kGrab + 3 : kGrab;
    for (std::size_t i = 0; i < cuts_.size(); ++i)
        if (const double away = std::abs(xOf(cuts_[i]) - place.x()); away <= least) {
            least = away;
            nearest = int(i);
        }
    return nearest;
}

void SplitEditView::mousePressEvent(QMouseEvent* event) {
    // Always accepted: some styles move the window when its empty areas are dragged.
    event->accept();
    if (event->button() != Qt::LeftButton || frames_ <= 0)
        return;
    const QPointF place = event->position();
    if (const int cut = cutAt(place); cut >= 0) {
        drag_ = Drag::Cut;
        grabbedAt_ = place.x() - xOf(cuts_[std::size_t(cut)]);
        setCurrentCut(cut);
        cutHandle_->setFocus(Qt::MouseFocusReason);
    } else {
        drag_ = Drag::Play;
        playHandle_->setFocus(Qt::MouseFocusReason);
        Q_EMIT seekAsked(frameAt(place.x()));
    }
}

void SplitEditView::mouseMoveEvent(QMouseEvent* event) {
    event->accept();
    if (drag_ == Drag::Cut && currentCut_ >= 0)
        Q_EMIT moveAsked(currentCut_, frameAt(event->position().x() - grabbedAt_));
    else if (drag_ == Drag::Play)
        Q_EMIT seekAsked(frameAt(event->position().x()));
}

void SplitEditView::mouseReleaseEvent(QMouseEvent* event) {
    event->accept();
    if (event->button() != Qt::LeftButton)
        return;
    drag_ = Drag::None;
    update();
}

void SplitEditView::mouseDoubleClickEvent(QMouseEvent* event) {
    event->accept();
    if (event->button() == Qt::LeftButton && frames_ > 0 && cutAt(event->position()) < 0 &&
        waveRect().contains(event->position()))
        Q_EMIT addAsked(frameAt(event->position().x()));
}

void SplitEditView::wheelEvent(QWheelEvent* event) {
    const QPoint angle = event->angleDelta();
    if (event->modifiers() & Qt::ControlModifier)
        setZoom(zoom_ * std::pow(kZoomStep, angle.y() / 120.0), event->position().x());
    else
        scrollTo(firstVisible_ -
                 std::llround(double(angle.x() != 0 ? angle.x() : angle.y()) / 120 * 0.1 * double(visibleFrames())));
    event->accept();
}

void SplitEditView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QRectF wave = waveRect();
    NamedImages::draw(painter, wave, QString::fromLatin1(kBackImage));
    const auto valueAt = [&](std::int64_t frame) { return qsizetype(double(frame) / sampleRate_ * kOutlinePerSecond); };
    const qsizetype first = valueAt(firstVisible_);
    const qsizetype shown = std::max<qsizetype>(1, valueAt(visibleFrames()));
    QList<float> values = zoom_ > 1 ? outline_.mid(first, shown) : outline_;
    OutlineDrawing::draw(painter, wave.adjusted(0, 4, 0, -4), values, Theme::Glass::level());
    painter.save();
    painter.setClipRect(wave);
    QColor quiet = Theme::Glass::text();
    quiet.setAlpha(48);
    for (const SilenceFinder::Silence& silence : silences_)
        if (silence.end >= firstVisible_ && silence.first <= firstVisible_ + visibleFrames())
            painter.fillRect(QRectF(QPointF(xOf(silence.first), wave.top()), QPointF(xOf(silence.end), wave.bottom())),
                             quiet);
    painter.restore();
    painter.setRenderHint(QPainter::Antialiasing);
    drawCuts(painter);

    const QRectF button = playButtonRect();
    if (button.center().x() >= wave.left() - 1 && button.center().x() <= wave.right() + 1) {
        painter.setPen(QPen(Theme::Glass::text(), 1));
        painter.drawLine(QPointF(button.center().x(), wave.top()), QPointF(button.center().x(), wave.bottom()));
        NamedImages::draw(painter, button, QString::fromLatin1(kPlayImage));
        if (playHandle_->hasFocus()) {
            painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
            painter.setBrush(Qt::NoBrush);
            painter.drawRoundedRect(button.adjusted(1, 1, -1, -1), 4, 4);
        }
    }
    drawTime(painter);
}

void SplitEditView::drawCuts(QPainter& painter) const {
    const QRectF wave = waveRect();
    for (int i = 0; i < int(cuts_.size()); ++i) {
        const double x = xOf(cuts_[std::size_t(i)]);
        if (x < wave.left() - 1 || x > wave.right() + 1)
            continue;
        const bool isCurrent = i == currentCut_;
        const QRectF handle = handleRect(i);
        painter.setPen(QPen(Theme::Glass::recording(), isCurrent ? 2 : 1));
        painter.drawLine(QPointF(x, wave.top()), QPointF(x, wave.bottom()));
        // A house: its roof touches the line.
        const double roof = handle.width() / 2;
        const QPolygonF shape{{{x, handle.top()},
                               {handle.right(), handle.top() + roof},
                               {handle.right(), handle.bottom()},
                               {handle.left(), handle.bottom()},
                               {handle.left(), handle.top() + roof}}};
        painter.setPen(QPen(Theme::Glass::recording(), 1));
        painter.setBrush(isCurrent ? Theme::Glass::recording() : palette().color(QPalette::Base));
        painter.drawPolygon(shape);
        if (isCurrent && cutHandle_->hasFocus()) {
            painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
            painter.setBrush(Qt::NoBrush);
            painter.drawRoundedRect(handle.adjusted(-2, -1, 2, 1), 3, 3);
        }
    }
}

void SplitEditView::drawTime(QPainter& painter) const {
    if (drag_ == Drag::None || (drag_ == Drag::Cut && currentCut_ < 0))
        return;
    const std::int64_t frame = drag_ == Drag::Cut ? cuts_[std::size_t(currentCut_)] : playFrame_;
    const QString text = hundredthsText(double(frame) / sampleRate_);
    QRectF box(0, 0, painter.fontMetrics().horizontalAdvance(text) + 12, painter.fontMetrics().height() + 6);
    box.moveCenter({xOf(frame), waveRect().center().y()});
    box.moveLeft(std::clamp(box.left(), 0.0, std::max(0.0, width() - box.width())));
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0, 0, 0, 200));
    painter.drawRoundedRect(box, 4, 4);
    painter.setPen(Theme::Glass::text());
    painter.drawText(box, Qt::AlignCenter, text);
}
