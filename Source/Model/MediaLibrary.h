// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Source/Model/MediaLibraryNode.h"

#include <QObject>
#include <QStringList>

namespace Platform {
class UserDefaults;
}

/// The two collections of audio files that the program made, newest first, their tree, and their store. Every change is
/// stored at once (in memory; the file follows behind) and shown in all leaves. Main thread only.
class MediaLibrary : public QObject {
    Q_OBJECT
public:
    enum class Collection { Records, Ringtones };

    /// The one library of the process, made at the first call and never released.
    static MediaLibrary& shareLibrary();

    /// Loads what is stored and builds the tree.
    MediaLibrary();
    /// Reads the stored collections. What is stored in another shape counts as empty; it is kept aside in the defaults
    /// under the same key with the ending ".damaged", the next damaged one with ".damaged-2" and so on.
    void loadMediaLibraryList();
    /// Takes over what other processes have stored since; views hear of each row. What cannot be read changes nothing.
    void takeUpMediaLibraryList();
    /// Stores both collections and loads every leaf anew.
    void saveMediaLibraryList();
    void loadDefaultMediaLibrary();
    void loadMediaLibraryNode(MediaLibraryNode& node);
    void loadMediaLibraryNodeLeaf(MediaLibraryNode& leaf);
    /// A copy of the entries; of the new ones only with @p isNew.
    [[nodiscard]] QVariantList mediaNodes(const QVariantList& entries, bool isNew) const;
    /// The entry of a file: its tags, its path, and an identity made of path and time when they bring none.
    [[nodiscard]] static Dictionary entryForFile(const QString& path, const Dictionary& tags);
    /// Puts the entry on top, or in the place of the entry with its key.
    void addRecordFile(const Dictionary& entry);
    void addRingtoneFile(const Dictionary& entry);
    /// Changes the array only: nothing is stored, no leaf is refreshed.
    void addAudio(const Dictionary& entry, QVariantList& toArray);
    /// Takes every entry with the key of a given one out of the array; an entry without a key matches its equals.
    static void removeAudio(const QVariantList& entries, QVariantList& inArray);
    /// Removes the entries from both collections and deletes their files, not to the trash. Errors are ignored.
    void removeMediaLibraryArray(const QVariantList& entries);
    /// The last entry with that key; empty when there is none.
    [[nodiscard]] static Dictionary findAudioByKey(const QString& key, const QVariantList& inArray);
    /// Each key once, in the order of the entries.
    [[nodiscard]] static QStringList keyArrayFromAudioArray(const QVariantList& entries);
    [[nodiscard]] static QVariantList findAudioArrayByKeyArray(const QStringList& keys, const QVariantList& inArray);

    // The setters change the field only; call saveMediaLibraryList() or loadMediaLibraryNode() to let it be seen.
    [[nodiscard]] MediaLibraryNode& rootNode() const { return *rootNode_; }
    void setRootNode(std::shared_ptr<MediaLibraryNode> node) { rootNode_ = std::move(node); }
    [[nodiscard]] const QVariantList& records() const { return records_; }
    void setRecords(const QVariantList& entries) { records_ = entries; }
    [[nodiscard]] const QVariantList& ringtones() const { return ringtones_; }
    void setRingtones(const QVariantList& entries) { ringtones_ = entries; }
    /// Keys of the entries that were added as new in this run.
    [[nodiscard]] const QStringList& currentNewArray() const { return currentNewArray_; }
    void setCurrentNewArray(const QStringList& keys) { currentNewArray_ = keys; }

Q_SIGNALS:
    // What changed in a leaf, so that views need not load it again. Indexes are of the leaf's entries; the leaf has
    // changed by just this one row when the signal comes. Several rows leave from the last to the first, and then come
    // from the first to the last.
    void entryInserted(const QString& leafKey, int index);
    void entryReplaced(const QString& leafKey, int index);
    void entryRemoved(const QString& leafKey, int index);
    /// The leaf was loaded anew as a whole, or changed in more rows at once than are worth a signal each.
    void leafReset(const QString& leafKey);

private:
    void add(const Dictionary& entry, Collection collection);
    void store() const;
    void takeStored(Platform::UserDefaults& defaults);
    void updateLeaves();
    void updateLeavesAndStore();
    /// Brings one leaf up to date with a signal for each row that differs.
    void updateLeaf(MediaLibraryNode& leaf);
    [[nodiscard]] QVariantList contentOf(const QString& leafKey) const;

    QVariantList records_;
    QVariantList ringtones_;
    std::shared_ptr<MediaLibraryNode> rootNode_;
    QStringList currentNewArray_;
};
