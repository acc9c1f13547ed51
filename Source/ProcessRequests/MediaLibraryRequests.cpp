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
const QByteArray addRingtoneWord = "library-add-ringtone ";

QByteArray line(const QJsonDocument& document) {
    return document.toJson(QJsonDocument::Compact); // newlines inside texts are escaped
}

QByteArray storedLine(bool stored) {
    return line(QJsonDocument(QJsonObject{{u"stored"_s, stored}}));
}

std::optional<bool> storedOf(const QByteArray& answer) {
    const QJsonValue stored = QJsonDocument::fromJson(answer)[u"stored"_s];
    return stored.isBool() ? std::optional(stored.toBool()) : std::nullopt;
}

/// A file and its values, in the format of retagRequest() and addRingtoneRequest().
struct FileValues {
    QString path; ///< empty when the request contains no absolute path
    Dictionary values;
};

QByteArray fileRequest(const QByteArray& word, const QString& path, const Dictionary& values) {
    // Absolute, because the window may have another working folder.
    const QJsonObject object{{u"path"_s, QFileInfo(path).absoluteFilePath()},
                             {u"values"_s, QJsonObject::fromVariantMap(values)}};
    return word + line(QJsonDocument(object));
}

FileValues fileValuesOf(const QByteArray& document) {
    const QJsonDocument asked = QJsonDocument::fromJson(document);
    FileValues result{asked[u"path"_s].toString(), asked[u"values"_s].toObject().toVariantMap()};
    if (!QFileInfo(result.path).isAbsolute())
        result.path.clear();
    if (const auto year = result.values.find(AudioRecordEntry::Year); year != result.values.end())
        *year = year->toInt(); // JSON has only one number type
    return result;
}

QStringList texts(const QJsonValue& array) {
    QStringList list;
    const QJsonArray values = array.toArray();
    for (const auto& value : values)
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
    const QFileInfo named(given);
    const QString folder = QFileInfo(named.path()).canonicalFilePath();
    const auto isIt = [&](const QString& other) {
        if (other == given)
            return true;
        // The disk is queried only when the names match: there may be a hundred thousand entries. A file that was just
        // renamed is found by its folder.
        const QFileInfo info(other);
        return (info.fileName() == real.fileName() && info.canonicalFilePath() == real.filePath()) ||
               (info.fileName() == named.fileName() && QFileInfo(info.path()).canonicalFilePath() == folder);
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
    // Iterates over copies, because the lists change meanwhile.
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
    return fileRequest(retagWord, path, values);
}

std::optional<bool> retaggingOf(const QByteArray& answer) {
    return storedOf(answer);
}

bool addRingtone(const QString& path, const Dictionary& tags) {
    MediaLibrary& library = MediaLibrary::shareLibrary();
    library.takeUpMediaLibraryList();
    library.addRingtoneFile(MediaLibrary::entryForFile(path, tags));
    return Platform::services().userDefaults->flush();
}

QByteArray addRingtoneRequest(const QString& path, const Dictionary& tags) {
    return fileRequest(addRingtoneWord, path, tags);
}

std::optional<bool> addingOf(const QByteArray& answer) {
    return storedOf(answer);
}

std::optional<QByteArray> answer(const QByteArray& request) {
    for (const QByteArray& word : {retagWord, addRingtoneWord}) {
        if (!request.startsWith(word))
            continue;
        const FileValues file = fileValuesOf(request.mid(word.size()));
        if (file.path.isEmpty())
            return line(QJsonDocument(QJsonObject{{u"problem"_s, u"no path"_s}}));
        return storedLine(word == retagWord ? retag(file.path, file.values) : addRingtone(file.path, file.values));
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
