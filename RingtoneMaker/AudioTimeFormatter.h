// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QVariant>

/// Keeps the text of a time field in the form hh:mm:ss while it is typed. Without state.
class AudioTimeFormatter {
public:
    /// The text itself; a null string for anything that is no text.
    [[nodiscard]] static QString stringForObjectValue(const QVariant& object);
    /// Makes "hh:mm:ss" of three parts, each between 00 and 59; what lies outside becomes 59, the hours too.
    /// Always true; @p errorDescription stays as it is.
    static bool getObjectValue(QString& object, const QString& string, QString* errorDescription = nullptr);
    /// Whether there are decimal digits only; so has an empty text.
    [[nodiscard]] static bool isIntStr(const QString& string);
    /// Whether the text may stand in the field while it is typed: exactly three parts of at most two digits, none above
    /// 59. Neither a replacement nor an error text is given.
    [[nodiscard]] static bool isPartialStringValid(const QString& partialString, QString* newEditingString = nullptr,
                                                   QString* errorDescription = nullptr);
};
