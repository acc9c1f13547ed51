// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/View/TransportButton.h"

#include "Source/View/NamedImages.h"

#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

namespace {
constexpr int kMargin = 4; ///< room for the focus ring
}

TransportButton::TransportButton(QWidget* parent) : QAbstractButton(parent) {
    // A click does not move the focus: later keys are meant for the list.
    setFocusPolicy(Qt::TabFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setAttribute(Qt::WA_Hover);
}

void TransportButton::setImage(const QString& name) {
    if (name == image_)
        return;
    image_ = name;
    update();
}

void TransportButton::setPressedImage(const QString& name) {
    pressedImage_ = name;
    update();
}

void TransportButton::setImageSize(int points) {
    imageSize_ = points;
    updateGeometry();
}

QSize TransportButton::sizeHint() const {
    return {imageSize_ + 2 * kMargin, imageSize_ + 2 * kMargin};
}

bool TransportButton::event(QEvent* event) {
    if (event->type() == QEvent::ToolTip && !isEnabled() && !disabledReason_.isEmpty()) {
        QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), toolTip() + u'\n' + disabledReason_, this);
        return true;
    }
    return QAbstractButton::event(event);
}

void TransportButton::enterEvent(QEnterEvent* event) {
    update();
    QAbstractButton::enterEvent(event);
}

void TransportButton::leaveEvent(QEvent* event) {
    update();
    QAbstractButton::leaveEvent(event);
}

void TransportButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QRectF place(0, 0, imageSize_, imageSize_);
    place.moveCenter(QRectF(rect()).center());
    if (isEnabled() && (underMouse() || isDown())) {
        QColor halo = palette().color(QPalette::WindowText);
        halo.setAlphaF(isDown() ? 0.16F : 0.08F);
        painter.setPen(Qt::NoPen);
        painter.setBrush(halo);
        painter.drawEllipse(place.adjusted(-kMargin, -kMargin, kMargin, kMargin));
    }
    const bool pressed = isDown() && isEnabled();
    if (pressed && pressedImage_.isEmpty())
        place.adjust(1, 1, -1, -1);
    const QString name = pressed && !pressedImage_.isEmpty() ? pressedImage_ : image_;
    NamedImages::icon(name).paint(&painter, place.toRect(), Qt::AlignCenter,
                                  isEnabled() ? QIcon::Normal : QIcon::Disabled);
    if (hasFocus()) {
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
        painter.drawEllipse(place.adjusted(-2.5, -2.5, 2.5, 2.5));
    }
}
