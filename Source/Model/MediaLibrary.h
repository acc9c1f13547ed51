// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Source/Model/EntryIndex.h"
#include "Source/Model/LeafChanges.h"
#include "Source/Model/MediaLibraryNode.h"

#include <QObject>
#include <QStringList>

namespace Platform {
class UserDefaults;
}

/// The two collections of the program's audio files, newest first, their tree, and their store. Every change is stored
/// at once (in memory; the file is written later) and shown in all leaves. Main thread only.
class MediaLibrary : public QObject {
    Q_OBJECT
public:
    enum class Collection { Records, Ringtones };

    /// The only library of the process, created by the first call and never released.
    static MediaLibrary& shareLibrary();

    /// Loads the stored collections and builds the tree.
    MediaLibrary();
    /// Reads the stored collections. A value of another shape counts as empty; it is kept in the defaults under the
    /// same key with the suffix ".damaged", the next damaged one with ".damaged-2" and so on.
    void loadMediaLibraryList();
    /// Adopts the entries that other processes have stored since; views get a signal for each row. Unreadable values
    /// change nothing.
    void takeUpMediaLibraryList();
    /// Stores both collections and reloads every leaf.
    void saveMediaLibraryList();
    /// Reads the collections' keys on a worker, so that the next addition to a long collection is as fast as to a short
    /// one. Without this call the first addition reads them.
    void prepareForChanges();
    void loadDefaultMediaLibrary();
    void loadMediaLibraryNode(MediaLibraryNode& node);
    void loadMediaLibraryNodeLeaf(MediaLibraryNode& leaf);
    /// A copy of the entries; with @p isNew only of the new ones.
    [[nodiscard]] QVariantList mediaNodes(const QVariantList& entries, bool isNew) const;
    /// The entry of a file: its tags, its path, and an identity made from path and time when the tags have none.
    [[nodiscard]] static Dictionary entryForFile(const QString& path, const Dictionary& tags);
    /// Inserts the entry at the top, or replaces the entry with its key.
    void addRecordFile(const Dictionary& entry);
    void addRingtoneFile(const Dictionary& entry);
    /// Changes only the array: nothing is stored, no leaf is refreshed.
    void addAudio(const Dictionary& entry, QVariantList& toArray);
    /// Removes every entry whose key is among those of the given entries; an entry without a key matches equal entries.
    static void removeAudio(const QVariantList& entries, QVariantList& inArray);
    /// Removes the entries from both collections and deletes their files and kept tracks, not to the trash. Errors are
    /// ignored.
    void removeMediaLibraryArray(const QVariantList& entries);
    /// The last entry with that key; empty when there is none.
    [[nodiscard]] static Dictionary findAudioByKey(const QString& key, const QVariantList& inArray);
    /// Each key once, in entry order.
    [[nodiscard]] static QStringList keyArrayFromAudioArray(const QVariantList& entries);
    [[nodiscard]] static QVariantList findAudioArrayByKeyArray(const QStringList& keys, const QVariantList& inArray);

    // The setters change only the field; call saveMediaLibraryList() or loadMediaLibraryNode() to make it visible.
    [[nodiscard]] MediaLibraryNode& rootNode() const { return *rootNode_; }
    void setRootNode(std::shared_ptr<MediaLibraryNode> node) { rootNode_ = std::move(node); }
    [[nodiscard]] const QVariantList& records() const { return records_; }
    void setRecords(const QVariantList& entries) { replace(records_, recordsIndex_, entries); }
    [[nodiscard]] const QVariantList& ringtones() const { return ringtones_; }
    void setRingtones(const QVariantList& entries) { replace(ringtones_, ringtonesIndex_, entries); }
    /// Keys of the entries that were added as new in this run.
    [[nodiscard]] const QStringList& currentNewArray() const { return currentNewArray_; }
    void setCurrentNewArray(const QStringList& keys) { currentNewArray_ = keys; }

Q_SIGNALS:
    /// All steps of a leaf's change. The leaf has the new list when the signal is emitted; a leaf that was loaded
    /// without a change emits a change without steps.
    void leafChanged(const QString& leafKey, const LeafChange& change);

private:
    void add(const Dictionary& entry, Collection collection);
    void store() const;
    void removeTracks(const QVariantList& removed) const;
    void takeStored(Platform::UserDefaults& defaults);
    void updateLeaves();
    void updateLeavesAndStore();
    enum class Unchanged { IsAnnounced, IsSilent };
    /// Updates one leaf with one signal.
    void updateLeaf(MediaLibraryNode& leaf, Unchanged unchanged);
    [[nodiscard]] QVariantList contentOf(const QString& leafKey);
    /// mediaNodes() of the new entries, without reading the whole list.
    [[nodiscard]] QVariantList newNodes(const QVariantList& entries, EntryIndex& index) const;
    void place(const Dictionary& entry, QVariantList& toArray, qsizetype index);
    static void replace(QVariantList& list, EntryIndex& index, const QVariantList& entries);

    QVariantList records_;
    QVariantList ringtones_;
    EntryIndex recordsIndex_; // of records_
    EntryIndex ringtonesIndex_;
    std::shared_ptr<MediaLibraryNode> rootNode_;
    QStringList currentNewArray_;
};
