// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/View/ElidedLabel.h"

#include "Source/View/PathText.h"
#include "Source/View/SpokenField.h"

#include <QPainter>
#include <QStyle>

namespace {
constexpr int kLeading = 8;
}

ElidedLabel::ElidedLabel(QWidget* parent) : QWidget(parent) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
}

void ElidedLabel::setText(const QString& text) {
    text_ = text;
    setToolTip(pathText(text));
    SpokenField::setText(*this, text);
    update();
}

void ElidedLabel::setMargin(int points) {
    margin_ = points;
    updateGeometry();
    update();
}

QSize ElidedLabel::sizeHint() const {
    return {fontMetrics().horizontalAdvance(text_) + 2 * margin_, fontMetrics().height() + kLeading};
}

QSize ElidedLabel::minimumSizeHint() const {
    return {fontMetrics().averageCharWidth() * 4, fontMetrics().height() + kLeading};
}

void ElidedLabel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QRect room = rect().adjusted(margin_, 0, -margin_, 0);
    const QString shown = pathText(fontMetrics().elidedText(text_, Qt::ElideMiddle, room.width()));
    // Paths and sentences are aligned to the leading edge of the window.
    const Qt::Alignment edge = layoutDirection() == Qt::RightToLeft ? Qt::AlignRight : Qt::AlignLeft;
    style()->drawItemText(&painter, room, int(edge | Qt::AlignVCenter | Qt::AlignAbsolute), palette(), isEnabled(),
                          shown, foregroundRole());
}
