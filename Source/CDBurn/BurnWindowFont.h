// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFont>

/// The typeface of the burn window's messages.
namespace BurnWindowFont {
/// @p points are of 1/72 inch at 100 % scale, so they are Qt's pixels. The house's own typeface stands in where this
/// one is not installed.
[[nodiscard]] inline QFont ofSize(int points) {
    QFont font;
    font.setFamilies(QStringList{QStringLiteral("Lucida Grande")} + font.families());
    font.setPixelSize(points);
    return font;
}
} // namespace BurnWindowFont
