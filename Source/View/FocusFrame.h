// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QAbstractItemView;

/// Shows where the keyboard focus is in a list without a frame. Main thread.
namespace FocusFrame {
/// Draws a line around the viewport of @p view when it has the focus, and around the current row when that is not
/// selected. For the end of paintEvent(). The view must repaint the whole viewport when it scrolls.
void draw(QAbstractItemView& view);
/// Repaints the viewport after a scroll: Qt moves its pixels, and the frame with them.
void scrolled(QAbstractItemView& view);
} // namespace FocusFrame
