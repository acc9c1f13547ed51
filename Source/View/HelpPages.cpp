// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/View/HelpPages.h"

#include "Platform/Foundation/Bundle.h"
#include "Platform/Foundation/FileManager.h"
#include "Platform/Foundation/Folders.h"
#include "Platform/Foundation/Services.h"
#include "Platform/Foundation/Translations.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QLocale>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace HelpPages {
namespace {

/// The texts of the pages, for lupdate, which does not read HTML.
[[maybe_unused]] constexpr const char* kTexts[] = {
    QT_TRANSLATE_NOOP("HelpPages", "Sonaphex support"),
    QT_TRANSLATE_NOOP("HelpPages", "Nothing is recorded"),
    QT_TRANSLATE_NOOP(
        "HelpPages",
        "Look whether a source is chosen in the main window: an input device, the computer's audio, or both. In a "
        "terminal, <code>sonaphex devices</code> lists the input devices that the sound server offers."),
    QT_TRANSLATE_NOOP("HelpPages",
                      "A recording of the computer's audio alone begins with the first sound that the computer plays."),
    QT_TRANSLATE_NOOP("HelpPages", "A recording is missing"),
    QT_TRANSLATE_NOOP("HelpPages", "Recordings shorter than the time that is set in the preferences are dropped; "
                                   "switch the filter off to keep them. What could not be finished, for instance on a "
                                   "full disk, lies in <code>~/.local/share/com.korvane.Sonaphex/Unfinished</code>."),
    QT_TRANSLATE_NOOP("HelpPages", "The computer's audio cannot be chosen"),
    QT_TRANSLATE_NOOP(
        "HelpPages",
        "It needs a small add-on: see <a href=\"computer-audio.html\">recording the computer's audio</a>."),
    QT_TRANSLATE_NOOP("HelpPages", "The settings are gone"),
    QT_TRANSLATE_NOOP("HelpPages", "They are in <code>~/.config/com.korvane.Sonaphex.plist</code>. A damaged file is "
                                   "kept beside it under a name that ends in <code>.damaged-</code> and the date."),
    QT_TRANSLATE_NOOP("HelpPages", "Recording the computer's audio"),
    QT_TRANSLATE_NOOP("HelpPages",
                      "The add-on is an input device named “Korvane System Audio” that hears what the default output "
                      "plays. It is a small program of the user's session that speaks to the sound server; it changes "
                      "nothing in what you hear, and it never becomes the default microphone of other programs."),
    QT_TRANSLATE_NOOP("HelpPages", "Install"),
    QT_TRANSLATE_NOOP(
        "HelpPages",
        "Choose Install in the preferences window, or run <code>sonaphex driver install</code>. The password of an "
        "administrator is asked for once: the add-on is installed for all users of the computer."),
    QT_TRANSLATE_NOOP("HelpPages", "Remove"),
    QT_TRANSLATE_NOOP("HelpPages", "Choose Remove in the same place, or run <code>sonaphex driver remove</code>.")};

} // namespace

QString translated(const QString& html) {
    static const QRegularExpression element(u"<(title|h1|h2|p)>(.*?)</\\1>"_s,
                                            QRegularExpression::DotMatchesEverythingOption);
    QString page;
    qsizetype end = 0;
    for (auto matches = element.globalMatch(html); matches.hasNext();) {
        const auto match = matches.next();
        const QByteArray text = match.captured(2).simplified().toUtf8();
        page +=
            html.mid(end, match.capturedStart(2) - end) + QCoreApplication::translate("HelpPages", text.constData());
        end = match.capturedEnd(2);
    }
    const QLocale locale(Platform::Translations::language());
    const QString direction = locale.textDirection() == Qt::RightToLeft ? u"rtl"_s : u"ltr"_s;
    page += html.mid(end);
    return page.replace(u"<html lang=\"en\">"_s, u"<html lang=\"%1\" dir=\"%2\">"_s.arg(locale.bcp47Name(), direction));
}

QString path(const QString& name) {
    const Platform::Bundle& bundle = *Platform::services().bundle;
    const QString original = bundle.pathForResource(name);
    QFile file(original);
    if (Platform::Translations::language() == u"en"_s || !file.open(QIODevice::ReadOnly))
        return original;
    const QString folder = Platform::Folders::cache() + u'/' + bundle.bundleIdentifier();
    const QString target = folder + u'/' + name;
    const QByteArray page = translated(QString::fromUtf8(file.readAll())).toUtf8();
    return QDir().mkpath(folder) && Platform::FileManager::writeAtomically(target, page) ? target : original;
}

} // namespace HelpPages
