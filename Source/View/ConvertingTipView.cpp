// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/View/ConvertingTipView.h"

#include "Source/View/Announcement.h"
#include "Source/View/SpokenField.h"
#include "Source/View/Theme.h"

#include <QEvent>
#include <QPainter>

namespace {
constexpr int kHeight = 56;
constexpr int kSlideMs = 250;
} // namespace

ConvertingTipView::ConvertingTipView(QWidget* parent) : QLabel(parent), slide_(this, "pos") {
    setObjectName(QStringLiteral("fileConvertingTipView_"));
    setAccessibleName(tr("Converting notice"));
    setTextFormat(Qt::PlainText);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::Window);
    setForegroundRole(QPalette::WindowText);
    QPalette colors = palette();
    colors.setColor(QPalette::WindowText, Qt::red);
    colors.setColor(QPalette::Window, Theme::alarmGround());
    setPalette(colors);
    slide_.setDuration(kSlideMs);
    slide_.setEasingCurve(QEasingCurve::OutCubic);
    connect(&slide_, &QPropertyAnimation::finished, this, [this] { setVisible(shown_); });
    parent->installEventFilter(this);
    hide();
}

QPoint ConvertingTipView::place(bool shown) const {
    return {0, parentWidget()->height() - (shown ? kHeight : 0)};
}

void ConvertingTipView::showFileConvertTipView(bool working, const QString& text, double progress) {
    if (working != shown_) {
        shown_ = working;
        // Without the dots, which blink.
        QString spoken = text.simplified();
        while (spoken.endsWith(u'.') || spoken.endsWith(u' '))
            spoken.chop(1);
        SpokenField::setText(*this, working ? spoken : QString());
        Announcement::say(*this, working ? spoken : tr("The recording is converted."));
        if (working) {
            resize(parentWidget()->width(), kHeight);
            move(place(false));
            show();
            raise();
        }
        slide_.stop();
        slide_.setStartValue(pos());
        slide_.setEndValue(place(working));
        slide_.start();
    }
    setText(text);
    if (progress_ != progress) {
        progress_ = progress;
        update();
    }
}

bool ConvertingTipView::eventFilter(QObject* watched, QEvent* event) {
    if (watched == parentWidget() && event->type() == QEvent::Resize) {
        slide_.stop();
        resize(parentWidget()->width(), kHeight);
        move(place(shown_));
        setVisible(shown_);
    }
    return QLabel::eventFilter(watched, event);
}

void ConvertingTipView::paintEvent(QPaintEvent* event) {
    QLabel::paintEvent(event);
    QPainter painter(this);
    painter.fillRect(QRect(0, 0, width(), 1), palette().color(QPalette::Mid));
    if (progress_ >= 0)
        painter.fillRect(QRectF(0, 0, width() * qBound(0.0, progress_, 1.0), 2), palette().color(QPalette::Highlight));
}
