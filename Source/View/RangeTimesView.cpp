// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/View/RangeTimesView.h"

#include "Source/View/AudioTrimEditView.h"
#include "Source/View/TabularLabel.h"

#include <QEvent>

#include <algorithm>

namespace {
constexpr int kGap = 8;
}

RangeTimesView::RangeTimesView(QWidget* parent) : QWidget(parent) {
    setLayoutDirection(Qt::LeftToRight); // time runs from left to right in every language
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void RangeTimesView::setUp(AudioTrimEditView* bar, TabularLabel* left, TabularLabel* length, TabularLabel* right) {
    bar_ = bar;
    left_ = left;
    length_ = length;
    right_ = right;
    bar_->installEventFilter(this);
    updateGeometry();
    place();
}

QSize RangeTimesView::sizeHint() const {
    if (!left_)
        return {};
    const QSize left = left_->sizeHint();
    return {left.width() + kGap + length_->sizeHint().width() + kGap + right_->sizeHint().width(), left.height()};
}

void RangeTimesView::place() {
    if (!bar_)
        return;
    const int left = left_->sizeHint().width();
    const int length = length_->sizeHint().width();
    const int right = right_->sizeHint().width();
    const int all = left + kGap + length + kGap + right;
    const double begin = bar_->leftHandleRect().center().x();
    const double end = bar_->rightHandleRect().center().x();
    int leftAt = std::clamp(int(begin - left / 2.0), 0, std::max(0, width() - left));
    int rightAt = std::clamp(int(end - right / 2.0), 0, std::max(0, width() - right));
    if (rightAt + right - leftAt <
        all) { // not enough room between the handles: place them side by side, centred between the handles
        leftAt = std::clamp(int((begin + end - all) / 2), 0, std::max(0, width() - all));
        rightAt = leftAt + all - right;
    }
    const int lengthAt = (leftAt + left + rightAt - length) / 2;
    left_->setGeometry(leftAt, 0, left, height());
    length_->setGeometry(lengthAt, 0, length, height());
    right_->setGeometry(rightAt, 0, right, height());
}

void RangeTimesView::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    place();
}

bool RangeTimesView::eventFilter(QObject* watched, QEvent* event) {
    if (watched == bar_ && event->type() == QEvent::Resize)
        place();
    return QWidget::eventFilter(watched, event);
}
