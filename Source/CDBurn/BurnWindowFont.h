// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Source/View/Theme.h"

#include <QFont>

/// The typeface of the burn window's messages.
namespace BurnWindowFont {
/// @p points are 1/72 inch at 100 % scale, so they equal Qt's pixels; larger where the program's own typeface is larger
/// than usual. Falls back to the program's own typeface where
/// this one is not installed.
[[nodiscard]] inline QFont ofSize(int points) {
    QFont font;
    font.setFamilies(QStringList{QStringLiteral("Lucida Grande")} + font.families());
    font.setPixelSize(Theme::enlarged(points));
    return font;
}
} // namespace BurnWindowFont
