// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

/// Texts in the columns of a terminal: a character of Japanese takes two, a combining mark none.
namespace TerminalColumns {

/// The columns that @p text takes. Depends on the locale's characters (LC_CTYPE).
[[nodiscard]] qsizetype of(const QString& text);

/// @p text with spaces behind it, so that it takes at least @p columns.
[[nodiscard]] QString padded(const QString& text, qsizetype columns);

/// @p first and then @p words with a space before each, in lines of at most @p length columns, all but the first with
/// @p indent spaces. A word is broken only when it is of a script that is written without spaces.
[[nodiscard]] QString wrapped(const QString& first, const QStringList& words, qsizetype indent, qsizetype length);

} // namespace TerminalColumns
