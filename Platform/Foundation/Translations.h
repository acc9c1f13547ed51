// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

/// The language of the texts that people read. English is the language of the sources; other languages are files beside
/// the resources ("translations/sonaphex_de.qm"), made from Resources/translations/*.ts at build time.
namespace Platform::Translations {

/// The language among @p available ("de", "pt_BR") for a user who wants @p languages, the preferred one first, as
/// QLocale::uiLanguages() returns them ("de-DE").
/// @return empty for English, which needs no translation
[[nodiscard]] QString choose(const QStringList& languages, const QStringList& available);

/// Installs the texts in the user's language in the application object: one of the languages in LANGUAGE, or else the
/// locale's. In the locale "C" the texts are English, whatever LANGUAGE says. A program with windows gets Qt's own
/// texts
/// ("Cancel") in that language as well. Call it once, after the application object was created and before the first
/// text. Main thread.
/// @return the language of the texts: "de", "en"
QString install();

/// What install() returned; "en" before.
[[nodiscard]] QString language();

/// The items with the separator of the language between them: "a, b, c". Any thread.
[[nodiscard]] QString list(const QStringList& items);

/// A number for people: with the digits and the decimal sign of the locale, and without separators of thousands. Any
/// thread.
[[nodiscard]] QString number(qint64 value);
/// A stored date ("2026/11/21") as the locale writes it. Any thread.
[[nodiscard]] QString date(const QString& stored);
[[nodiscard]] QString decimal(double value, char format = 'g', int precision = 6);

} // namespace Platform::Translations
