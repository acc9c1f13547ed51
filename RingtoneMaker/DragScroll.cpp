// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "RingtoneMaker/DragScroll.h"

#include <QScrollArea>
#include <QScrollBar>
#include <QWidget>

#include <algorithm>
#include <cmath>

namespace {
constexpr int kMilliseconds = 30;
constexpr int kLeast = 4; ///< points at a time
constexpr int kMost = 60;
} // namespace

namespace ScrollTo {

QScrollArea* areaOf(const QWidget& view) {
    for (QWidget* each = view.parentWidget(); each; each = each->parentWidget())
        if (auto* const area = qobject_cast<QScrollArea*>(each))
            return area;
    return nullptr;
}

void makeVisible(const QWidget& view, const QRectF& rect) {
    QScrollArea* const area = areaOf(view);
    if (!area || !area->widget())
        return;
    const double offset = view.mapTo(area->widget(), QPoint(0, 0)).x();
    const double left = rect.left() + offset;
    const double right = rect.right() + offset;
    QScrollBar& bar = *area->horizontalScrollBar();
    const int width = area->viewport()->width();
    const int begin = bar.value();
    if (left <= begin && right >= begin + width)
        return;
    if (left < begin || right - left > width)
        bar.setValue(int(std::floor(left)));
    else if (right > begin + width)
        bar.setValue(int(std::ceil(right)) - width);
}

} // namespace ScrollTo

DragScroll::DragScroll(QWidget& view, std::function<void(QPoint)> step) : view_(view), step_(std::move(step)) {
    timer_.setInterval(kMilliseconds);
    QObject::connect(&timer_, &QTimer::timeout, &view, [this] {
        if (scroll())
            step_(global_);
        else
            timer_.stop();
    });
}

void DragScroll::follow(QPoint global) {
    global_ = global;
    if (scroll())
        timer_.start();
    else
        timer_.stop();
}

bool DragScroll::scroll() {
    QScrollArea* const area = ScrollTo::areaOf(view_);
    if (!area)
        return false;
    const int x = area->viewport()->mapFromGlobal(global_).x();
    const int beyond = x < 0 ? x : std::max(0, x - area->viewport()->width() + 1);
    if (beyond == 0)
        return false;
    QScrollBar& bar = *area->horizontalScrollBar();
    const int before = bar.value();
    const int distance = std::clamp(std::abs(beyond), kLeast, kMost);
    bar.setValue(before + (beyond < 0 ? -distance : distance));
    return bar.value() != before;
}
