// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// Prepares a path, or a sentence that contains one, for display. Without this, a name that reads from right to left
/// would change places with its neighbours: so each part between two slashes is isolated, and the whole reads from left
/// to right. A text without such names, or without a slash, is returned unchanged. Use the result for display only: it
/// contains control characters.
[[nodiscard]] QString pathText(const QString& text);
