// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/View/TabularLabel.h"

#include "Source/View/SpokenField.h"

#include <QEvent>
#include <QFontMetricsF>
#include <QPainter>

#include <cmath>
#include <utility>

TabularLabel::TabularLabel(QWidget* parent) : QWidget(parent) {
    setLayoutDirection(Qt::LeftToRight); // time runs from left to right in every language
    setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);
}

void TabularLabel::setText(const QString& text) {
    if (text == text_)
        return;
    const bool sameRoom = std::max(text.size(), reserve_.size()) == std::max(text_.size(), reserve_.size());
    text_ = text;
    // A blinking time is without its seconds every other half second.
    if (!text.endsWith(u':'))
        SpokenField::setText(*this, text);
    if (!sameRoom)
        updateGeometry();
    update();
}

void TabularLabel::setAlignment(Qt::Alignment alignment) {
    alignment_ = alignment;
    update();
}

qreal TabularLabel::advance(QChar letter) const {
    const QFontMetricsF metrics(font());
    if (!letter.isDigit())
        return metrics.horizontalAdvance(letter);
    // In some typefaces "0" is not the widest digit.
    qreal widest = 0;
    for (char16_t digit = u'0'; digit <= u'9'; ++digit)
        widest = std::max(widest, metrics.horizontalAdvance(QChar(digit)));
    return widest;
}

void TabularLabel::setReserve(const QString& text) {
    reserve_ = text;
    updateGeometry();
}

qreal TabularLabel::widthOf(const QString& text) const {
    qreal width = 0;
    for (const QChar letter : text)
        width += advance(letter);
    return width;
}

QSize TabularLabel::sizeHint() const {
    return {int(std::ceil(std::max(textWidth(), widthOf(reserve_)))), int(std::ceil(QFontMetricsF(font()).height()))};
}

void TabularLabel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::WindowText));
    const QFontMetricsF metrics(font());
    qreal x = 0;
    if (alignment_ & Qt::AlignRight)
        x = width() - textWidth();
    else if (alignment_ & Qt::AlignHCenter)
        x = (width() - textWidth()) / 2;
    const qreal baseline = (height() - metrics.height()) / 2 + metrics.ascent();
    for (const QChar letter : std::as_const(text_)) {
        const qreal room = advance(letter);
        painter.drawText(QPointF(x + (room - metrics.horizontalAdvance(letter)) / 2, baseline), letter);
        x += room;
    }
}

void TabularLabel::changeEvent(QEvent* event) {
    if (event->type() == QEvent::FontChange)
        updateGeometry();
    QWidget::changeEvent(event);
}
