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
/// The scroll area that contains @p view; null when there is none.
[[nodiscard]] QScrollArea* areaOf(const QWidget& view);
/// Scrolls by the least amount that makes @p rect, in points of @p view, visible horizontally. Does not scroll when the
/// rect is wider than the area and already fills it.
void makeVisible(const QWidget& view, const QRectF& rect);
} // namespace ScrollTo

/// Continues a drag while the pointer is held beyond the left or right edge of the scroll area: a resting pointer sends
/// no events, so a timer scrolls and repeats the last step. Main thread.
class DragScroll {
public:
    /// @p step is called with the pointer's screen position after each scroll step.
    explicit DragScroll(QWidget& view, std::function<void(QPoint global)> step);
    /// Handles a drag event: scrolls while the pointer is outside, until it is back or the drag ends.
    void follow(QPoint global);
    void end() { timer_.stop(); }

private:
    bool scroll();

    QWidget& view_;
    std::function<void(QPoint)> step_;
    QTimer timer_;
    QPoint global_;
};
