// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "CommandLine/LibraryCommand.h"

#include "CommandLine/Arguments.h"
#include "CommandLine/TerminalColumns.h"
#include "Platform/Foundation/PlainText.h"
#include "Platform/Foundation/Translations.h"
#include "Source/Control/EditNote.h"
#include "Source/Control/ToolControl.h"
#include "Source/Model/AudioRecordEntry.h"
#include "Source/Model/MediaLibrary.h"
#include "Source/ProcessRequests/MediaLibraryRequests.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace CommandLine {
namespace {

QString text(const Dictionary& entry, const QString& key) {
    const QVariant value = entry.value(key);
    return value.isValid() ? Platform::stringForm(value) : QString();
}

QJsonArray asJson(const QVariantList& entries) {
    using namespace AudioRecordEntry;
    QJsonArray array;
    for (const QVariant& object : entries) {
        const Dictionary entry = object.toMap();
        array.append(QJsonObject{{u"key"_s, text(entry, NodeDataKey)},
                                 {u"path"_s, text(entry, SavePath)},
                                 {u"title"_s, text(entry, Title)},
                                 {u"artist"_s, text(entry, Artist)},
                                 {u"album"_s, text(entry, Album)},
                                 {u"year"_s, Platform::intValue(entry.value(Year))},
                                 {u"genre"_s, text(entry, Genre)},
                                 {u"added"_s, text(entry, AddDate)},
                                 {u"seconds"_s, Platform::doubleValue(entry.value(Length))},
                                 {u"exists"_s, QFileInfo::exists(text(entry, SavePath))}});
    }
    return array;
}

void printCollection(const QString& title, const QVariantList& entries) {
    using namespace AudioRecordEntry;
    print(QCoreApplication::translate("CommandLine", "%1: %2", "a list of the library and how many are in it")
              .arg(title, Platform::Translations::number(entries.size())));
    QString file = QCoreApplication::translate("CommandLine", "file", "the path of a recording");
    QString key = QCoreApplication::translate("CommandLine", "key", "names an entry of the library");
    const qsizetype width = std::max(TerminalColumns::of(file), TerminalColumns::of(key));
    file = TerminalColumns::padded(file, width);
    key = TerminalColumns::padded(key, width);
    for (const QVariant& object : entries) {
        const Dictionary entry = object.toMap();
        const QString path = text(entry, SavePath);
        print(u"  %1  %2  %3"_s.arg(Platform::Translations::date(text(entry, AddDate)),
                                    ToolControl::getTimeString(Platform::longLongValue(entry.value(Length))),
                                    Platform::onOneLine(text(entry, Title))));
        const QString line = u"      %1 %2"_s;
        const QString shown = Platform::onOneLine(path);
        print(line.arg(file, QFileInfo::exists(path)
                                 ? shown
                                 : QCoreApplication::translate("CommandLine", "%1 (missing)").arg(shown)));
        print(line.arg(key, Platform::onOneLine(text(entry, NodeDataKey))));
    }
}

int list(bool json) {
    EditNote::recover(MediaLibraryRequests::retag);
    const MediaLibrary& library = MediaLibrary::shareLibrary();
    if (json) {
        const QJsonObject document{{u"records"_s, asJson(library.records())},
                                   {u"ringtones"_s, asJson(library.ringtones())}};
        print(QString::fromUtf8(QJsonDocument(document).toJson().trimmed()));
        return Done;
    }
    printCollection(QCoreApplication::translate("CommandLine", "recordings"), library.records());
    printCollection(QCoreApplication::translate("CommandLine", "ringtones"), library.ringtones());
    return Done;
}

int remove(const QStringList& keys, bool json) {
    // The running window removes them itself: it updates its views, and it keeps the file of an entry that it has just
    // changed.
    MediaLibraryRequests::Removal removal;
    if (const auto answer = askWindow(MediaLibraryRequests::removeRequest(keys))) {
        const auto removed = MediaLibraryRequests::removalOf(*answer);
        if (!removed)
            return fail(QCoreApplication::translate(
                "CommandLine", "the running program does not know this request: it is another version"));
        removal = *removed;
    } else {
        removal = MediaLibraryRequests::remove(keys);
    }
    if (!removal.unknown.isEmpty())
        return fail(QCoreApplication::translate("CommandLine", "no entry has the key %1 (nothing was removed)")
                        .arg(Platform::onOneLine(removal.unknown.first())));
    if (!removal.stored)
        return fail(
            QCoreApplication::translate("CommandLine", "the files are deleted, but the library could not be saved"));
    if (json) {
        const QJsonObject document{{u"removed"_s, QJsonArray::fromStringList(removal.removed)}};
        print(QString::fromUtf8(QJsonDocument(document).toJson().trimmed()));
    }
    return Done;
}

int run(const QStringList& given) {
    const Arguments arguments(given, libraryCommand);
    if (!arguments.problem().isEmpty())
        return wrongUsage(libraryCommand, arguments.problem());
    const QStringList words = arguments.positional();
    const bool json = arguments.isSet(u"json"_s);
    if (words.isEmpty() || words == QStringList{u"list"_s})
        return list(json);
    if (words.first() != u"remove"_s)
        return wrongUsage(
            libraryCommand,
            QCoreApplication::translate("CommandLine", "library knows list and remove, not %1").arg(words.first()));
    if (words.size() < 2)
        return wrongUsage(libraryCommand,
                          QCoreApplication::translate("CommandLine", "library remove takes the keys of entries"));
    return remove(words.mid(1), json);
}

} // namespace

const Command libraryCommand{
    "library",
    "[list | remove KEY...]",
    QT_TRANSLATE_NOOP("CommandLine", "list recordings and ringtones, or remove some with their files"),
    {kJsonOption},
    {{"library", QT_TRANSLATE_NOOP("CommandLine", "List both collections with the key of each entry.")},
     {"library remove KEY", QT_TRANSLATE_NOOP("CommandLine", "Remove an entry and delete its file.")}},
    run};

} // namespace CommandLine
