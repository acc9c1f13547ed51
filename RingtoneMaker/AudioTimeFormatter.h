// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QVariant>

/// Keeps the text of a time field in the form hh:mm:ss while it is typed. Pure functions.
class AudioTimeFormatter {
public:
    /// The text itself; a null string for any other type.
    [[nodiscard]] static QString stringForObjectValue(const QVariant& object);
    /// Makes "hh:mm:ss" of three parts, each between 00 and 59; other values become 59, also for the hours. Always
    /// true; @p errorDescription is not changed.
    static bool getObjectValue(QString& object, const QString& string, QString* errorDescription = nullptr);
    /// Whether the text has decimal digits only; true for an empty text.
    [[nodiscard]] static bool isIntStr(const QString& string);
    /// Whether the text is allowed in the field while it is typed: exactly three parts of at most two digits, none
    /// above 59. Gives neither a replacement nor an error text.
    [[nodiscard]] static bool isPartialStringValid(const QString& partialString, QString* newEditingString = nullptr,
                                                   QString* errorDescription = nullptr);
};
