// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/Model/MediaLibrary.h"

#include "Platform/Foundation/Clock.h"
#include "Platform/Foundation/FileManager.h"
#include "Platform/Foundation/Services.h"
#include "Platform/Foundation/UserDefaults.h"
#include "Source/Model/AudioRecordEntry.h"
#include "Source/Model/MediaLibraryStore.h"
#include "Source/Model/RecordingTracks.h"
#include "Source/Preferences/PreferenceStore.h"

#include <QCoreApplication>
#include <QLoggingCategory>
#include <QSet>

#include <algorithm>
#include <vector>

using namespace Qt::StringLiterals;
using AudioRecordEntry::keyOf;
using Platform::stringForm;
using PreferenceStore::kMediaLibrarySavedKey;

namespace {

Q_LOGGING_CATEGORY(libraryLog, "sonaphex.model")

const QString newRecord = u"new-record"_s;
const QString allRecord = u"all-record"_s;
const QString newRingtone = u"new-ringtone"_s;
const QString allRingtone = u"all-ringtone"_s;

qsizetype lastIndexOfKey(const QString& key, const QVariantList& entries) {
    for (qsizetype i = entries.size() - 1; i >= 0; --i)
        if (const QVariant found = keyOf(entries[i]); found.isValid() && stringForm(found) == key)
            return i;
    return -1;
}

std::shared_ptr<MediaLibraryNode> makeNode(const QString& name, const QString& icon = {}, const QString& key = {}) {
    auto node = std::make_shared<MediaLibraryNode>();
    node->setName(name);
    node->setIcon(icon);
    node->setKey(key);
    return node;
}

/// Uses a new name each time: an earlier damaged value may be the only remains of another list.
void keepAside(Platform::UserDefaults& defaults, const QVariant& stored) {
    QString key = kMediaLibrarySavedKey + u".damaged"_s;
    for (int number = 2;; ++number) {
        const QVariant kept = defaults.objectForKey(key);
        if (kept == stored)
            return;
        if (!kept.isValid())
            break;
        key = kMediaLibrarySavedKey + u".damaged-"_s + QString::number(number);
    }
    qCWarning(libraryLog, "the stored library is damaged; it was kept under %s", qUtf8Printable(key));
    defaults.setObject(key, stored);
}

} // namespace

MediaLibrary& MediaLibrary::shareLibrary() {
    static auto* const library = new MediaLibrary;
    return *library;
}

MediaLibrary::MediaLibrary() {
    loadMediaLibraryList();
    loadDefaultMediaLibrary();
    currentNewArray_.clear();
}

void MediaLibrary::loadMediaLibraryList() {
    setRecords({});
    setRingtones({});
    Platform::UserDefaults* const defaults = Platform::services().userDefaults;
    if (!defaults)
        return;
    defaults->setMergeForKey(kMediaLibrarySavedKey, MediaLibraryStore::merge);
    takeStored(*defaults);
}

void MediaLibrary::takeUpMediaLibraryList() {
    Platform::UserDefaults* const defaults = Platform::services().userDefaults;
    if (!defaults || !defaults->takeUp(kMediaLibrarySavedKey))
        return;
    takeStored(*defaults);
    updateLeaves();
}

void MediaLibrary::takeStored(Platform::UserDefaults& defaults) {
    const QVariant stored = defaults.objectForKey(kMediaLibrarySavedKey);
    bool damaged = false;
    setRingtones(MediaLibraryStore::entries(stored, u"ringtones"_s, damaged));
    setRecords(MediaLibraryStore::entries(stored, u"records"_s, damaged));
    if (damaged)
        keepAside(defaults, stored);
}

void MediaLibrary::store() const {
    if (Platform::UserDefaults* const defaults = Platform::services().userDefaults)
        defaults->setObject(kMediaLibrarySavedKey, MediaLibraryStore::value(records_, ringtones_));
}

void MediaLibrary::saveMediaLibraryList() {
    store();
    loadMediaLibraryNode(*rootNode_);
}

void MediaLibrary::loadDefaultMediaLibrary() {
    const QString recordIcon = u"all-record-node-icon"_s;
    const QString ringtoneIcon = u"all-ringtone-node-icon"_s;
    const auto records = makeNode(QCoreApplication::translate("MediaLibrary", "Record Library"));
    records->setNonLeafNode(
        {makeNode(QCoreApplication::translate("MediaLibrary", "Newly Recorded"), recordIcon, newRecord),
         makeNode(QCoreApplication::translate("MediaLibrary", "All Recorded"), recordIcon, allRecord)});
    const auto ringtones = makeNode(QCoreApplication::translate("MediaLibrary", "Ringtone Library"));
    ringtones->setNonLeafNode(
        {makeNode(QCoreApplication::translate("MediaLibrary", "Newly Ringtone"), ringtoneIcon, newRingtone),
         makeNode(QCoreApplication::translate("MediaLibrary", "All Ringtone"), ringtoneIcon, allRingtone)});
    rootNode_ = std::make_shared<MediaLibraryNode>();
    rootNode_->setNonLeafNode({records, ringtones});
    loadMediaLibraryNode(*rootNode_);
}

void MediaLibrary::loadMediaLibraryNode(MediaLibraryNode& node) {
    if (node.isLeaf()) {
        loadMediaLibraryNodeLeaf(node);
        return;
    }
    for (const auto& child : node.nonLeafNode())
        loadMediaLibraryNode(*child);
}

void MediaLibrary::loadMediaLibraryNodeLeaf(MediaLibraryNode& leaf) {
    updateLeaf(leaf, Unchanged::IsAnnounced);
}

QVariantList MediaLibrary::contentOf(const QString& leafKey) {
    if (leafKey == newRecord)
        return newNodes(records_, recordsIndex_);
    if (leafKey == allRecord)
        return mediaNodes(records_, false);
    if (leafKey == newRingtone)
        return newNodes(ringtones_, ringtonesIndex_);
    if (leafKey == allRingtone)
        return mediaNodes(ringtones_, false);
    return {};
}

QVariantList MediaLibrary::mediaNodes(const QVariantList& entries, bool isNew) const {
    if (!isNew)
        return entries;
    QVariantList result;
    if (currentNewArray_.isEmpty())
        return result;
    const QSet<QString> newKeys(currentNewArray_.cbegin(), currentNewArray_.cend());
    for (const QVariant& entry : entries)
        if (newKeys.contains(stringForm(keyOf(entry))))
            result.append(entry);
    return result;
}

QVariantList MediaLibrary::newNodes(const QVariantList& entries, EntryIndex& index) const {
    if (currentNewArray_.isEmpty() || !index.isWhole(entries))
        return mediaNodes(entries, true);
    std::vector<qsizetype> places;
    for (const QString& key : currentNewArray_)
        if (const qsizetype place = index.lastIndexOf(key, entries); place >= 0)
            places.push_back(place);
    std::ranges::sort(places);
    QVariantList result;
    for (const qsizetype place : places)
        result.append(entries[place]);
    return result;
}

Dictionary MediaLibrary::entryForFile(const QString& path, const Dictionary& tags) {
    Dictionary entry = tags;
    if (!entry.contains(AudioRecordEntry::NodeDataKey)) {
        const double now = Platform::services().clock->timeIntervalSinceReferenceDate();
        entry.insert(AudioRecordEntry::NodeDataKey, path + u'_' + QString::number(now, 'f', 6));
    }
    entry.insert(AudioRecordEntry::SavePath, path);
    return entry;
}

void MediaLibrary::addRecordFile(const Dictionary& entry) {
    add(entry, Collection::Records);
}

void MediaLibrary::addRingtoneFile(const Dictionary& entry) {
    add(entry, Collection::Ringtones);
}

void MediaLibrary::add(const Dictionary& entry, Collection collection) {
    const bool isRecord = collection == Collection::Records;
    QVariantList& list = isRecord ? records_ : ringtones_;
    EntryIndex& index = isRecord ? recordsIndex_ : ringtonesIndex_;
    const QVariant key = entry.value(AudioRecordEntry::NodeDataKey);
    const qsizetype at = index.lastIndexOf(stringForm(key), list);
    place(entry, list, at);
    if (at < 0 && key.isValid())
        index.prepended(stringForm(key), list);
    updateLeavesAndStore();
}

void MediaLibrary::prepareForChanges() {
    recordsIndex_.prepare(records_);
    ringtonesIndex_.prepare(ringtones_);
}

void MediaLibrary::replace(QVariantList& list, EntryIndex& index, const QVariantList& entries) {
    if (list.size() == entries.size() && list.constData() == entries.constData())
        return; // the same shared list
    list = entries;
    if (index.isPrepared())
        index.prepare(list);
    else
        index.forget();
}

void MediaLibrary::addAudio(const Dictionary& entry, QVariantList& toArray) {
    place(entry, toArray, lastIndexOfKey(stringForm(entry.value(AudioRecordEntry::NodeDataKey)), toArray));
}

/// Replaces the entry at @p index, or inserts the entry at the top when the index is negative.
void MediaLibrary::place(const Dictionary& entry, QVariantList& toArray, qsizetype index) {
    Dictionary stored = entry;
    const QString key = stringForm(stored.value(AudioRecordEntry::NodeDataKey));
    const bool isNew = Platform::boolValue(stored.take(AudioRecordEntry::IsNew));
    if (index >= 0)
        toArray[index] = stored;
    else
        toArray.prepend(stored);
    if (isNew && !currentNewArray_.contains(key))
        currentNewArray_.append(key);
}

Dictionary MediaLibrary::findAudioByKey(const QString& key, const QVariantList& inArray) {
    const qsizetype index = lastIndexOfKey(key, inArray);
    return index < 0 ? Dictionary() : inArray[index].toMap();
}

QStringList MediaLibrary::keyArrayFromAudioArray(const QVariantList& entries) {
    QStringList keys;
    QSet<QString> seen;
    for (const QVariant& entry : entries) {
        const QString key = stringForm(keyOf(entry));
        if (!seen.contains(key)) {
            seen.insert(key);
            keys.append(key);
        }
    }
    return keys;
}

QVariantList MediaLibrary::findAudioArrayByKeyArray(const QStringList& keys, const QVariantList& inArray) {
    const QSet<QString> wanted(keys.cbegin(), keys.cend());
    QVariantList result;
    for (const QVariant& entry : inArray)
        if (const QVariant key = keyOf(entry); key.isValid() && wanted.contains(stringForm(key)))
            result.append(entry);
    return result;
}

void MediaLibrary::removeAudio(const QVariantList& entries, QVariantList& inArray) {
    QSet<QString> keys;
    QVariantList keyless;
    for (const QVariant& entry : entries) {
        if (const QVariant key = keyOf(entry); key.isValid())
            keys.insert(stringForm(key));
        else
            keyless.append(entry);
    }
    inArray.removeIf([&](const QVariant& entry) {
        const QVariant key = keyOf(entry);
        return key.isValid() ? keys.contains(stringForm(key)) : keyless.contains(entry);
    });
}

void MediaLibrary::removeMediaLibraryArray(const QVariantList& entries) {
    const auto without = [&](QVariantList list) {
        removeAudio(entries, list);
        return list;
    };
    setRecords(without(records_));
    setRingtones(without(ringtones_));
    for (const QVariant& entry : entries) {
        const QString path = entry.toMap().value(AudioRecordEntry::SavePath).toString();
        if (path.startsWith(u'/'))
            (void)Platform::FileManager::removeFile(path);
    }
    removeTracks(entries);
    updateLeavesAndStore();
}

/// Deletes the kept tracks of removed entries. A file that another entry also names stays.
void MediaLibrary::removeTracks(const QVariantList& removed) const {
    QStringList tracks;
    for (const QVariant& entry : removed) {
        const RecordingTracks::Tracks paths = RecordingTracks::stored(entry.toMap());
        tracks << paths.input << paths.computer;
    }
    tracks.removeAll(QString());
    if (tracks.isEmpty())
        return;
    QSet<QString> inUse;
    for (const QVariantList* list : {&records_, &ringtones_})
        for (const QVariant& entry : *list)
            for (const QString& path : RecordingTracks::pathsOf(entry.toMap()))
                inUse.insert(path);
    for (const QString& track : tracks)
        if (!inUse.contains(track))
            (void)Platform::FileManager::removeFile(track);
}

void MediaLibrary::updateLeavesAndStore() {
    updateLeaves(); // first: after the store, the saving worker may be the one that frees the removed entries
    store();
}

void MediaLibrary::updateLeaves() {
    for (const auto& group : rootNode_->nonLeafNode())
        for (const auto& leaf : group->nonLeafNode())
            updateLeaf(*leaf, Unchanged::IsSilent);
}

void MediaLibrary::updateLeaf(MediaLibraryNode& leaf, Unchanged unchanged) {
    const LeafChange change = LeafChanges::between(leaf.leafNode(), contentOf(leaf.key()));
    leaf.setLeafNode(change.entries); // also when equal: a list shared with the collection is compared quickly
    if (!change.isEmpty() || (unchanged == Unchanged::IsAnnounced && !leaf.key().isEmpty()))
        Q_EMIT leafChanged(leaf.key(), change);
}

#include "moc_MediaLibrary.cpp"
