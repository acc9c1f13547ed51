// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Source/Model/MediaLibraryNode.h"

#include <QObject>
#include <QStringList>

/// The two collections of audio files that the program made, their tree, and their store. Main thread only.
class MediaLibrary : public QObject {
    Q_OBJECT
public:
    enum class Collection { Records, Ringtones };

    /// The one library of the process, made at the first call.
    static MediaLibrary& shareLibrary();

    MediaLibrary();
    void loadMediaLibraryList();
    void saveMediaLibraryList();
    void loadDefaultMediaLibrary();
    void loadMediaLibraryNode(MediaLibraryNode& node);
    void loadMediaLibraryNodeLeaf(MediaLibraryNode& leaf);
    [[nodiscard]] QVariantList mediaNodes(const QVariantList& entries, bool isNew) const;
    void addRecordFile(const Dictionary& entry);
    void addRingtoneFile(const Dictionary& entry);
    void removeMediaLibraryArray(const QVariantList& entries);
    [[nodiscard]] static Dictionary findAudioByKey(const QString& key, const QVariantList& inArray);
    [[nodiscard]] static QStringList keyArrayFromAudioArray(const QVariantList& entries);
    [[nodiscard]] static QVariantList findAudioArrayByKeyArray(const QStringList& keys, const QVariantList& inArray);

    [[nodiscard]] MediaLibraryNode& rootNode() const { return *rootNode_; }
    [[nodiscard]] const QVariantList& records() const { return records_; }
    [[nodiscard]] const QVariantList& ringtones() const { return ringtones_; }
    [[nodiscard]] const QStringList& currentNewArray() const { return currentNewArray_; }

Q_SIGNALS:
    /// What changed in a leaf, so that views need not load it again. Indexes are of the leaf's entries. The signals of
    /// removal come for each row from the last to the first, after the leaf has changed.
    void entryInserted(const QString& leafKey, int index);
    void entryReplaced(const QString& leafKey, int index);
    void entryRemoved(const QString& leafKey, int index);
    /// The leaf was loaded anew as a whole.
    void leafReset(const QString& leafKey);

private:
    QVariantList records_;
    QVariantList ringtones_;
    std::shared_ptr<MediaLibraryNode> rootNode_;
    QStringList currentNewArray_;
};
