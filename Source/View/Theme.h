// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPalette>

class QApplication;
namespace Platform {
class ColorScheme;
}

/// The appearance of all windows: one style, a light and a dark palette, one typeface. Main thread.
namespace Theme {

enum class Shade { Light, Dark };

/// Applies the theme to the application and follows @p scheme (may be null: light). The application does not own @p
/// scheme, which must outlive its windows.
void install(QApplication& application, Platform::ColorScheme* scheme);

/// Changes the palette of the whole program.
void apply(Shade shade);
[[nodiscard]] Shade shade();

[[nodiscard]] QPalette palette(Shade shade);
/// A size in pixels that was designed for text of 10 points, larger when the program's text is larger.
[[nodiscard]] int enlarged(int pixels);
/// The outline of fields and empty boxes, for the palette of the widget.
[[nodiscard]] QColor outline(const QPalette& colors, bool enabled);
/// The sign of a warning.
[[nodiscard]] QColor warning();
/// A ground on which red text can be read: on a light window it would be too faint.
[[nodiscard]] QColor alarmGround();

/// Colours of the display's dark glass, the same in both themes.
namespace Glass {
[[nodiscard]] QColor text();
[[nodiscard]] QColor dimText();
[[nodiscard]] QColor level();
/// A level with clipped sound.
[[nodiscard]] QColor clipping();
/// The ends of the glass's gradient.
[[nodiscard]] QColor top();
[[nodiscard]] QColor bottom();
/// The mark of a notice.
[[nodiscard]] QColor warning();
/// The frame of the control with the keyboard focus.
[[nodiscard]] QColor focus();
/// Background of a button under the pointer.
[[nodiscard]] QColor button();
/// Colour of the frame while sound is recorded.
[[nodiscard]] QColor recording();
} // namespace Glass

/// Colours of the strip below the library.
namespace Strip {
[[nodiscard]] QColor ground();
[[nodiscard]] QColor text(bool enabled);
/// The frame of the control with the keyboard focus.
[[nodiscard]] QColor focus();
} // namespace Strip

} // namespace Theme
