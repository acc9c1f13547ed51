// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/ProcessRequests/MediaLibraryRequests.h"

#include "Platform/Foundation/Services.h"
#include "Platform/Foundation/UserDefaults.h"
#include "Source/Model/AudioRecordEntry.h"
#include "Source/Model/MediaLibrary.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace MediaLibraryRequests {
namespace {

const QByteArray removeWord = "library-remove ";
const QByteArray retagWord = "library-retag ";

QByteArray line(const QJsonDocument& document) {
    return document.toJson(QJsonDocument::Compact); // new-lines inside texts are escaped
}

QStringList texts(const QJsonValue& array) {
    QStringList list;
    for (const QJsonValue& value : array.toArray())
        list.append(value.toString());
    return list;
}

} // namespace

Removal remove(const QStringList& keys) {
    MediaLibrary& library = MediaLibrary::shareLibrary();
    library.takeUpMediaLibraryList();
    Removal result;
    QVariantList entries;
    for (const QString& key : keys) {
        Dictionary entry = MediaLibrary::findAudioByKey(key, library.records());
        if (entry.isEmpty())
            entry = MediaLibrary::findAudioByKey(key, library.ringtones());
        if (entry.isEmpty())
            result.unknown.append(key);
        else if (!result.removed.contains(key)) {
            result.removed.append(key);
            entries.append(entry);
        }
    }
    if (!result.unknown.isEmpty()) {
        result.removed.clear();
        return result;
    }
    library.removeMediaLibraryArray(entries);
    result.stored = Platform::services().userDefaults->flush();
    return result;
}

bool retag(const QString& path, const Dictionary& values) {
    const QString given = QDir::cleanPath(QFileInfo(path).absoluteFilePath());
    const QFileInfo real(QFileInfo(path).canonicalFilePath());
    const auto isIt = [&](const QString& other) {
        // The disk is asked only where the names agree: there may be a hundred thousand entries.
        return other == given || (QFileInfo(other).fileName() == real.fileName() &&
                                  QFileInfo(other).canonicalFilePath() == real.filePath());
    };
    MediaLibrary& library = MediaLibrary::shareLibrary();
    library.takeUpMediaLibraryList();
    bool changed = false;
    const auto retagAll = [&](const QVariantList& entries, void (MediaLibrary::*put)(const Dictionary&)) {
        for (const QVariant& object : entries) {
            Dictionary entry = object.toMap();
            if (!isIt(entry.value(AudioRecordEntry::SavePath).toString()))
                continue;
            const Dictionary before = entry;
            entry.insert(values);
            if (entry == before)
                continue;
            (library.*put)(entry);
            changed = true;
        }
    };
    // Copies: what is gone through changes meanwhile.
    retagAll(QVariantList(library.records()), &MediaLibrary::addRecordFile);
    retagAll(QVariantList(library.ringtones()), &MediaLibrary::addRingtoneFile);
    return !changed || Platform::services().userDefaults->flush();
}

QByteArray removeRequest(const QStringList& keys) {
    return removeWord + line(QJsonDocument(QJsonArray::fromStringList(keys)));
}

std::optional<Removal> removalOf(const QByteArray& answer) {
    const QJsonDocument document = QJsonDocument::fromJson(answer);
    if (!document.isObject() || !document[u"removed"_s].isArray())
        return std::nullopt;
    return Removal{texts(document[u"removed"_s]), texts(document[u"unknown"_s]), document[u"stored"_s].toBool()};
}

QByteArray retagRequest(const QString& path, const Dictionary& values) {
    // The window may have another working folder.
    const QJsonObject object{{u"path"_s, QFileInfo(path).absoluteFilePath()},
                             {u"values"_s, QJsonObject::fromVariantMap(values)}};
    return retagWord + line(QJsonDocument(object));
}

std::optional<bool> retaggingOf(const QByteArray& answer) {
    const QJsonValue stored = QJsonDocument::fromJson(answer)[u"stored"_s];
    return stored.isBool() ? std::optional(stored.toBool()) : std::nullopt;
}

std::optional<QByteArray> answer(const QByteArray& request) {
    if (request.startsWith(retagWord)) {
        const QJsonDocument asked = QJsonDocument::fromJson(request.mid(retagWord.size()));
        const QString path = asked[u"path"_s].toString();
        if (!QFileInfo(path).isAbsolute())
            return line(QJsonDocument(QJsonObject{{u"problem"_s, u"no path"_s}}));
        Dictionary values = asked[u"values"_s].toObject().toVariantMap();
        if (const auto year = values.find(AudioRecordEntry::Year); year != values.end())
            *year = year->toInt(); // JSON has one kind of number
        return line(QJsonDocument(QJsonObject{{u"stored"_s, retag(path, values)}}));
    }
    if (!request.startsWith(removeWord))
        return std::nullopt;
    const QJsonDocument keys = QJsonDocument::fromJson(request.mid(removeWord.size()));
    if (!keys.isArray())
        return line(QJsonDocument(QJsonObject{{u"problem"_s, u"no list of keys"_s}}));
    const Removal removal = remove(texts(keys.array()));
    return line(QJsonDocument(QJsonObject{{u"removed"_s, QJsonArray::fromStringList(removal.removed)},
                                          {u"unknown"_s, QJsonArray::fromStringList(removal.unknown)},
                                          {u"stored"_s, removal.stored}}));
}

} // namespace MediaLibraryRequests
