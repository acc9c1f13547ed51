// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPoint>
#include <QTimer>

#include <functional>

class QRectF;
class QScrollArea;
class QWidget;

/// Scrolls the scroll area around a view. Main thread.
namespace ScrollTo {
/// The scroll area that @p view stands in; null when it stands in none.
[[nodiscard]] QScrollArea* areaOf(const QWidget& view);
/// Scrolls as little as brings @p rect, in points of @p view, into sight from side to side. Nothing moves when it is
/// wider than the area and fills it already.
void makeVisible(const QWidget& view, const QRectF& rect);
} // namespace ScrollTo

/// Keeps a drag going while the pointer is held beyond the left or right edge of the scroll area: no events come from a
/// pointer at rest, so a timer scrolls and repeats the last step. Main thread.
class DragScroll {
public:
    /// @p step is called with the pointer's place on the screen after each scrolling.
    explicit DragScroll(QWidget& view, std::function<void(QPoint global)> step);
    /// A drag's event: scrolls when the pointer is outside, and goes on until it is back or the drag ends.
    void follow(QPoint global);
    void end() { timer_.stop(); }

private:
    bool scroll();

    QWidget& view_;
    std::function<void(QPoint)> step_;
    QTimer timer_;
    QPoint global_;
};
