// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Foundation/Translations.h"
#include "Platform/Foundation/linux/LinuxFoundation.h"

#include <QCoreApplication>
#include <QDate>
#include <QDir>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include <memory>

using namespace Qt::StringLiterals;

namespace Platform::Translations {
namespace {

const QString kPrefix = u"sonaphex_"_s;
const QString kEnding = u".qm"_s;
const QString english = u"en"_s;
QString installed = english;

/// Whether messages are in the locale without a language. As in other programs, LANGUAGE has no effect then.
bool isLocaleC() {
    for (const char* name : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        if (const QByteArray locale = qgetenv(name); !locale.isEmpty())
            return locale == "C" || locale == "POSIX";
    }
    return false;
}

QLocale plainNumbers() {
    QLocale locale;
    locale.setNumberOptions(QLocale::OmitGroupSeparator);
    return locale;
}

/// The application object owns the translator. The file is mapped, not read.
bool load(const QString& name, const QString& folder) {
    auto translator = std::make_unique<QTranslator>();
    if (!translator->load(name, folder) || !QCoreApplication::installTranslator(translator.get()))
        return false;
    translator.release()->setParent(QCoreApplication::instance());
    return true;
}

} // namespace

QString choose(const QStringList& languages, const QStringList& available) {
    for (const QString& language : languages) {
        QStringList parts = language.split(u'-');
        if (parts.first() == u"en"_s || parts.first() == u"C"_s)
            return {};
        for (; !parts.isEmpty(); parts.removeLast()) { // "pt-Latn-BR", "pt-Latn", "pt"
            if (available.contains(parts.join(u'_')))
                return parts.join(u'_');
        }
    }
    return {};
}

QString list(const QStringList& items) {
    return items.join(QCoreApplication::translate("Foundation", ", ", "between the items of a list"));
}

QString number(qint64 value) {
    return plainNumbers().toString(value);
}

QString decimal(double value, char format, int precision) {
    return plainNumbers().toString(value, format, precision);
}

QString date(const QString& stored) {
    const QLocale locale;
    const QDate date = QDate::fromString(stored, u"yyyy/MM/dd"_s);
    if (!date.isValid() || locale.language() == QLocale::C)
        return stored;
    // The year with all its digits: recordings may be kept for decades.
    QString format = locale.dateFormat(QLocale::ShortFormat);
    if (!format.contains(u"yyyy"_s))
        format.replace(u"yy"_s, u"yyyy"_s);
    return locale.toString(date, format);
}

QString language() {
    return installed;
}

QString install() {
    installed = english;
    if (isLocaleC())
        return installed;
    const QDir folder(createBundle()->pathForResource(u"translations"_s));
    QStringList available;
    // No name filter for QDir: it would compile a regular expression, which takes longer than reading the folder.
    for (const QString& file : folder.entryList(QDir::Files))
        if (file.startsWith(kPrefix) && file.endsWith(kEnding))
            available << file.sliced(kPrefix.size()).chopped(kEnding.size());
    const QString chosen = choose(QLocale().uiLanguages(), available);
    if (chosen.isEmpty())
        return installed;
    // The translator that is installed last is asked first.
    if (QCoreApplication::instance()->inherits("QGuiApplication"))
        (void)load(u"qtbase_"_s + chosen, QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    if (load(kPrefix + chosen, folder.path()))
        installed = chosen;
    return installed;
}

} // namespace Platform::Translations
