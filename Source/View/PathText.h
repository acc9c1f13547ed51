// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// Prepares a path, or a sentence that contains one, for display. Without this, a name that reads from right to left
/// would change places with its neighbours: so each part between two slashes is isolated, and the whole reads from left
/// to right. A text without a slash is returned unchanged, and in a window that reads from left to right a text without
/// such names. Use the result for display only: it contains control characters. Main thread.
[[nodiscard]] QString pathText(const QString& text);
