// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/Model/MediaLibraryRequests.h"

#include "Platform/Foundation/Services.h"
#include "Platform/Foundation/UserDefaults.h"
#include "Source/Model/MediaLibrary.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace MediaLibraryRequests {
namespace {

const QByteArray removeWord = "library-remove ";

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

QByteArray removeRequest(const QStringList& keys) {
    return removeWord + line(QJsonDocument(QJsonArray::fromStringList(keys)));
}

std::optional<Removal> removalOf(const QByteArray& answer) {
    const QJsonDocument document = QJsonDocument::fromJson(answer);
    if (!document.isObject() || !document[u"removed"_s].isArray())
        return std::nullopt;
    return Removal{texts(document[u"removed"_s]), texts(document[u"unknown"_s]), document[u"stored"_s].toBool()};
}

std::optional<QByteArray> answer(const QByteArray& request) {
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
