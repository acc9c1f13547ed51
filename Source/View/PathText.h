// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// How a path, or a sentence with one in it, is shown. A folder or file whose name reads from right to left would swap
/// places with its neighbours and carry the slashes along: each part between two slashes is isolated, and the whole
/// reads from left to right. A text without such names, or without a slash, is returned as it is. The result is only
/// for the eye: it holds signs that no file name has.
[[nodiscard]] QString pathText(const QString& text);
