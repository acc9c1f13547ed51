// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QVariant>
#include <QVariantMap>

/// A dictionary with string keys and property-list values. Keys that a reader does not know are preserved.
using Dictionary = QVariantMap;

namespace Platform {

/// Whether a stored object is a number; a boolean is not.
[[nodiscard]] bool isNumber(const QVariant& object);

/// The integer value of a stored object: a number truncated towards zero, the leading digits of a text (after blanks
/// and a sign; "300ms" is 300, "abc" is 0), 0 for everything else. Saturates at the 32-bit limits.
[[nodiscard]] int intValue(const QVariant& object);

/// intValue() without the 32-bit limits.
[[nodiscard]] qint64 longLongValue(const QVariant& object);

/// The boolean value of a stored object: true for a number other than 0 and for a text that begins (after blanks, a
/// sign and zeros) with a digit from 1 to 9 or with one of the letters Y, y, T, t; false for everything else.
[[nodiscard]] bool boolValue(const QVariant& object);

/// A number as a double, a text by its leading number, 0 for everything else.
[[nodiscard]] double doubleValue(const QVariant& object);

/// The text that "%@" prints for an object: a text as it is, a number in its shortest form, "(null)" for a missing
/// object.
[[nodiscard]] QString stringForm(const QVariant& object);

} // namespace Platform
