// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/Model/MediaLibrary.h"

#include "Platform/Foundation/Services.h"
#include "Platform/Foundation/linux/PropertyListDefaults.h"
#include "Source/Model/AudioRecordEntry.h"
#include "Source/Model/MediaLibraryStore.h"
#include "Source/Preferences/PreferenceStore.h"
#include "tests/fakes/FakeUserDefaults.h"
#include "tests/support/LeafNotes.h"

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using PreferenceStore::kMediaLibrarySavedKey;

namespace {

Dictionary entry(const QString& key, const QString& title = u"NO Title"_s, const QString& path = {}) {
    return {{AudioRecordEntry::NodeDataKey, key}, {AudioRecordEntry::Title, title}, {AudioRecordEntry::SavePath, path}};
}

Dictionary newEntry(const QString& key) {
    Dictionary result = entry(key);
    result.insert(AudioRecordEntry::IsNew, true);
    return result;
}

QStringList keys(const QVariantList& entries) {
    QStringList result;
    for (const QVariant& one : entries)
        result.append(one.toMap().value(AudioRecordEntry::NodeDataKey).toString());
    return result;
}

class Library : public testing::Test {
protected:
    Library() { Platform::services().userDefaults = &defaults_; }

    static QVariantList leaf(const MediaLibrary& library, const QString& key) {
        for (const auto& group : library.rootNode().nonLeafNode())
            for (const auto& node : group->nonLeafNode())
                if (node->key() == key)
                    return node->leafNode();
        ADD_FAILURE() << "no leaf " << qPrintable(key);
        return {};
    }
    [[nodiscard]] Dictionary stored() const { return defaults_.objectForKey(kMediaLibrarySavedKey).toMap(); }

    Platform::ServicesScope scope_;
    FakeUserDefaults defaults_;
};

QVariantList manyEntries(int count) {
    QVariantList list;
    for (int i = 0; i < count; ++i)
        list.append(Dictionary{{AudioRecordEntry::NodeDataKey, u"/home/a/Music/Recording %1.m4a_817430400.5"_s.arg(i)},
                               {AudioRecordEntry::SavePath, u"/home/a/Music/Recording %1.m4a"_s.arg(i)},
                               {AudioRecordEntry::Title, u"Recording %1"_s.arg(i)},
                               {AudioRecordEntry::Artist, u"NO Artist"_s},
                               {AudioRecordEntry::Album, u"NO Album"_s},
                               {AudioRecordEntry::Year, 2012},
                               {AudioRecordEntry::Genre, u"NO General"_s},
                               {AudioRecordEntry::AddDate, u"2026/11/21"_s},
                               {AudioRecordEntry::Length, 12.5}});
    return list;
}

} // namespace

TEST(MediaLibraryNode, IsALeafUntilItHasChildren) {
    MediaLibraryNode node;
    EXPECT_TRUE(node.isLeaf());
    EXPECT_TRUE(node.leafNode().isEmpty());
    EXPECT_TRUE(node.nonLeafNode().empty());
    EXPECT_TRUE(node.key().isNull());
    node.setNonLeafNode({std::make_shared<MediaLibraryNode>()});
    EXPECT_FALSE(node.isLeaf());
}

TEST_F(Library, HasTheFixedTree) {
    const MediaLibrary library;
    const auto& root = library.rootNode();
    EXPECT_TRUE(root.name().isNull());
    EXPECT_TRUE(root.icon().isNull());
    EXPECT_TRUE(root.key().isNull());
    QStringList lines;
    for (const auto& group : root.nonLeafNode()) {
        lines += group->name() + u'|' + group->icon() + u'|' + group->key();
        for (const auto& leaf : group->nonLeafNode())
            lines += leaf->name() + u'|' + leaf->icon() + u'|' + leaf->key();
    }
    EXPECT_EQ(lines, (QStringList{u"Record Library||"_s, u"Newly Recorded|all-record-node-icon|new-record"_s,
                                  u"All Recorded|all-record-node-icon|all-record"_s, u"Ringtone Library||"_s,
                                  u"Newly Ringtone|all-ringtone-node-icon|new-ringtone"_s,
                                  u"All Ringtone|all-ringtone-node-icon|all-ringtone"_s}));
}

TEST_F(Library, InsertsTheNewestAtTheTop) {
    MediaLibrary library;
    library.addRecordFile(entry(u"a"_s));
    library.addRecordFile(entry(u"b"_s));
    library.addRingtoneFile(entry(u"c"_s));
    EXPECT_EQ(keys(library.records()), (QStringList{u"b"_s, u"a"_s}));
    EXPECT_EQ(keys(leaf(library, u"all-record"_s)), (QStringList{u"b"_s, u"a"_s}));
    EXPECT_EQ(keys(leaf(library, u"all-ringtone"_s)), (QStringList{u"c"_s}));
}

TEST_F(Library, ReplacesAnEntryInPlace) {
    MediaLibrary library;
    for (const char16_t* key : {u"a", u"b", u"c"})
        library.addRecordFile(entry(QString::fromUtf16(key)));
    library.addRecordFile(entry(u"b"_s, u"Other title"_s));
    EXPECT_EQ(keys(library.records()), (QStringList{u"c"_s, u"b"_s, u"a"_s}));
    EXPECT_EQ(MediaLibrary::findAudioByKey(u"b"_s, library.records()).value(AudioRecordEntry::Title), u"Other title"_s);
}

TEST_F(Library, KeepsTheKeyOfANewEntryOnce) {
    MediaLibrary library;
    library.addRecordFile(newEntry(u"a"_s));
    library.addRecordFile(newEntry(u"a"_s));
    EXPECT_EQ(library.currentNewArray(), QStringList{u"a"_s});
    EXPECT_EQ(keys(leaf(library, u"new-record"_s)), QStringList{u"a"_s});
}

TEST_F(Library, ListsAnEntryWithoutTheFlagUnderAllOnly) {
    MediaLibrary library;
    library.addRecordFile(entry(u"a"_s));
    EXPECT_TRUE(leaf(library, u"new-record"_s).isEmpty());
    EXPECT_EQ(leaf(library, u"all-record"_s).size(), 1);
}

TEST_F(Library, NeverStoresTheFlag) {
    MediaLibrary library;
    library.addRecordFile(newEntry(u"a"_s));
    const QVariantList records = stored().value(u"records"_s).toList();
    ASSERT_EQ(records.size(), 1);
    EXPECT_EQ(records.first().toMap(), entry(u"a"_s));
    EXPECT_EQ(stored().keys(), (QStringList{u"records"_s, u"ringtones"_s}));
}

TEST_F(Library, ReadsTheFlagInAnyForm) {
    MediaLibrary library;
    for (const QVariant& flag : {QVariant(1), QVariant(u"YES"_s), QVariant(0), QVariant(QVariantList{})}) {
        Dictionary one = entry(u"key %1"_s.arg(library.records().size()));
        one.insert(AudioRecordEntry::IsNew, flag);
        library.addRecordFile(one);
    }
    EXPECT_EQ(library.currentNewArray(), (QStringList{u"key 0"_s, u"key 1"_s}));
}

TEST_F(Library, PreservesUnknownKeys) {
    Dictionary odd = entry(u"a"_s);
    odd.insert(u"SomeoneElsesKey"_s, u"kept"_s);
    MediaLibrary().addRecordFile(odd);
    EXPECT_EQ(MediaLibrary().records().first().toMap().value(u"SomeoneElsesKey"_s), u"kept"_s);
}

TEST_F(Library, StartsWithEmptyNewLeavesAfterARestart) {
    {
        MediaLibrary library;
        library.addRecordFile(newEntry(u"a"_s));
        library.addRingtoneFile(newEntry(u"b"_s));
    }
    const MediaLibrary library;
    EXPECT_TRUE(leaf(library, u"new-record"_s).isEmpty());
    EXPECT_TRUE(leaf(library, u"new-ringtone"_s).isEmpty());
    EXPECT_EQ(keys(leaf(library, u"all-record"_s)), QStringList{u"a"_s});
    EXPECT_EQ(keys(leaf(library, u"all-ringtone"_s)), QStringList{u"b"_s});
}

TEST_F(Library, RemovesEveryEntryWithTheKeyFromBothCollectionsAndTheFile) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"a \"b\" $(c).m4a"_s);
    ASSERT_TRUE(QFile(path).open(QIODevice::WriteOnly));
    const Dictionary one = entry(u"a"_s, u"x"_s, path);
    defaults_.setObject(kMediaLibrarySavedKey,
                        MediaLibraryStore::value({one, entry(u"b"_s), entry(u"a"_s, u"twin"_s)}, {one}));
    MediaLibrary library;
    library.removeMediaLibraryArray({one});
    EXPECT_EQ(keys(library.records()), QStringList{u"b"_s});
    EXPECT_TRUE(library.ringtones().isEmpty());
    EXPECT_FALSE(QFile::exists(path));
    EXPECT_EQ(stored().value(u"records"_s).toList().size(), 1);
}

TEST_F(Library, DeletesTheFileOfEachGivenEntryEvenOfUnknownOnes) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"stranger.m4a"_s);
    ASSERT_TRUE(QFile(path).open(QIODevice::WriteOnly));
    MediaLibrary library;
    library.removeMediaLibraryArray({entry(u"unknown"_s, {}, path), entry(u"unknown"_s, {}, path)});
    EXPECT_FALSE(QFile::exists(path));
}

TEST_F(Library, RemovesTheEntryWhenTheFileCannotBeDeleted) {
    const QTemporaryDir folder; // a folder in place of the file
    MediaLibrary library;
    const Dictionary one = entry(u"a"_s, {}, folder.path());
    library.addRecordFile(one);
    library.removeMediaLibraryArray({one});
    EXPECT_TRUE(library.records().isEmpty());
    EXPECT_TRUE(QDir(folder.path()).exists());
}

TEST_F(Library, KeepsTheNewKeysOfRemovedEntries) {
    MediaLibrary library;
    library.addRecordFile(newEntry(u"a"_s));
    library.removeMediaLibraryArray({entry(u"a"_s)});
    EXPECT_EQ(library.currentNewArray(), QStringList{u"a"_s});
    EXPECT_TRUE(leaf(library, u"new-record"_s).isEmpty());
}

TEST_F(Library, FindsTheLastEntryWithAKey) {
    const QVariantList list{entry(u"a"_s, u"first"_s), entry(u"b"_s), entry(u"a"_s, u"last"_s)};
    EXPECT_EQ(MediaLibrary::findAudioByKey(u"a"_s, list).value(AudioRecordEntry::Title), u"last"_s);
    EXPECT_TRUE(MediaLibrary::findAudioByKey(u"c"_s, list).isEmpty());
    EXPECT_EQ(MediaLibrary::keyArrayFromAudioArray(list), (QStringList{u"a"_s, u"b"_s}));
    EXPECT_EQ(keys(MediaLibrary::findAudioArrayByKeyArray({u"b"_s, u"a"_s}, list)),
              (QStringList{u"a"_s, u"b"_s, u"a"_s}));
}

TEST_F(Library, TreatsAStoredValueOfTheWrongShapeAsEmptyAndKeepsItAside) {
    const QVariantList shapes{u"a text"_s, 5, QVariantList{1, 2}, QVariantMap{{u"records"_s, u"no array"_s}},
                              QVariantMap{{u"ringtones"_s, 7.5}}};
    QString aside = kMediaLibrarySavedKey + u".damaged"_s;
    for (int number = 1; const QVariant& shape : shapes) {
        defaults_.setObject(kMediaLibrarySavedKey, shape);
        for (int launch = 0; launch < 2; ++launch) {
            const MediaLibrary library;
            EXPECT_TRUE(library.records().isEmpty());
            EXPECT_TRUE(library.ringtones().isEmpty());
        }
        MediaLibrary().addRecordFile(entry(u"a"_s));
        EXPECT_EQ(defaults_.objectForKey(aside), shape) << "each is kept, and once";
        aside = kMediaLibrarySavedKey + u".damaged-%1"_s.arg(++number);
        EXPECT_FALSE(defaults_.objectForKey(aside).isValid());
    }
}

TEST_F(Library, LoadsTheGoodEntriesOfADamagedArray) {
    defaults_.setObject(kMediaLibrarySavedKey,
                        QVariantMap{{u"records"_s, QVariantList{u"stray"_s, entry(u"a"_s), 5, Dictionary{}}}});
    const MediaLibrary library;
    EXPECT_EQ(library.records(), (QVariantList{entry(u"a"_s), Dictionary{}}));
}

TEST_F(Library, AcceptsEntriesWithoutKeyOrPath) {
    const Dictionary first{{AudioRecordEntry::Title, u"first"_s}};
    const Dictionary second{{AudioRecordEntry::Title, u"second"_s}, {AudioRecordEntry::SavePath, QVariantList{1}}};
    defaults_.setObject(kMediaLibrarySavedKey, MediaLibraryStore::value({first, second}, {}));
    MediaLibrary library;
    library.addRecordFile(entry(u"a"_s));
    library.removeMediaLibraryArray({second});
    EXPECT_EQ(library.records(), (QVariantList{entry(u"a"_s), first}));
    EXPECT_TRUE(MediaLibrary::findAudioByKey(u"(null)"_s, library.records()).isEmpty());
}

TEST_F(Library, SignalsExactlyTheRowsThatChanged) {
    MediaLibrary library;
    library.addRecordFile(newEntry(u"a"_s));
    library.addRecordFile(entry(u"b"_s));
    library.addRecordFile(newEntry(u"c"_s));
    LeafNotes notes(library);
    library.addRecordFile(newEntry(u"d"_s));
    EXPECT_EQ(notes.lines, (QStringList{u"+new-record 0"_s, u"+all-record 0"_s}));
    notes.lines.clear();
    library.addRecordFile(newEntry(u"b"_s)); // now it is new: a row between d, c and a
    EXPECT_EQ(notes.lines, (QStringList{u"+new-record 2"_s}));
    notes.lines.clear();
    library.addRecordFile(entry(u"c"_s, u"Title"_s));
    EXPECT_EQ(notes.lines, (QStringList{u"=new-record 1"_s, u"=all-record 1"_s}));
    notes.lines.clear();
    library.addRingtoneFile(entry(u"r"_s));
    EXPECT_EQ(notes.lines, (QStringList{u"+all-ringtone 0"_s}));
    notes.lines.clear();
    library.removeMediaLibraryArray({entry(u"c"_s), entry(u"a"_s), entry(u"r"_s)});
    EXPECT_EQ(notes.lines, (QStringList{u"-new-record 3"_s, u"-new-record 1"_s, u"-all-record 3"_s, u"-all-record 1"_s,
                                        u"-all-ringtone 0"_s}));
}

TEST_F(Library, SignalsAChangeWhenTheLeafHasTheNewList) {
    MediaLibrary library;
    for (int i = 0; i < 4; ++i)
        library.addRecordFile(entry(QString::number(i)));
    QList<qsizetype> sizes;
    QObject::connect(&library, &MediaLibrary::leafChanged, &library, [&](const QString& key, const LeafChange& change) {
        sizes += leaf(library, key).size();
        EXPECT_EQ(leaf(library, key), change.entries);
    });
    library.removeMediaLibraryArray({entry(u"0"_s), entry(u"2"_s)});
    EXPECT_EQ(sizes, QList<qsizetype>{2});
}

TEST_F(Library, SignalsManyRemovedRowsAtOnce) {
    const QVariantList many = manyEntries(500);
    defaults_.setObject(kMediaLibrarySavedKey, MediaLibraryStore::value(many, {}));
    MediaLibrary library;
    LeafNotes notes(library);
    library.removeMediaLibraryArray(many.mid(100, 300));
    EXPECT_EQ(notes.lines, QStringList{u"-all-record 100.399"_s});
    EXPECT_EQ(leaf(library, u"all-record"_s).size(), 200);
}

TEST_F(Library, AnExplicitSaveReloadsEveryLeaf) {
    MediaLibrary library;
    LeafNotes notes(library);
    library.setRecords({entry(u"a"_s)});
    library.setCurrentNewArray({u"a"_s});
    library.saveMediaLibraryList();
    EXPECT_EQ(notes.lines, (QStringList{u"+new-record 0"_s, u"+all-record 0"_s, u"new-ringtone"_s, u"all-ringtone"_s}));
    EXPECT_EQ(leaf(library, u"new-record"_s).size(), 1);
    EXPECT_EQ(stored().value(u"records"_s).toList(), library.records());
}

TEST_F(Library, SignalsOneRowForOneEntryAddedToTenThousand) {
    defaults_.setObject(kMediaLibrarySavedKey, MediaLibraryStore::value(manyEntries(10000), {}));
    MediaLibrary library;
    LeafNotes notes(library);
    for (int i = 0; i < 5; ++i)
        library.addRecordFile(newEntry(QString::number(i)));
    QStringList expected;
    for (int i = 0; i < 5; ++i)
        expected += {u"+new-record 0"_s, u"+all-record 0"_s};
    EXPECT_EQ(notes.lines, expected) << "a row among all and one among the new, each time";
    EXPECT_EQ(library.records().size(), 10005);
}

TEST_F(Library, FindsItsKeysAfterAnyChangeOfTheList) {
    // Compares with a linear search: which entries are replaced in place, and which are inserted at the top.
    defaults_.setObject(kMediaLibrarySavedKey, MediaLibraryStore::value(manyEntries(1500), {}));
    MediaLibrary library;
    library.prepareForChanges(); // enough entries for the worker
    MediaLibrary plain;
    QVariantList expected = library.records();
    const auto add = [&](const Dictionary& one) {
        library.addRecordFile(one);
        plain.addAudio(one, expected);
        ASSERT_EQ(library.records(), expected);
        ASSERT_EQ(keys(leaf(library, u"new-record"_s)), keys(plain.mediaNodes(expected, true)));
    };
    add(newEntry(u"first"_s));
    add(entry(u"second"_s));
    add(entry(keys(expected).at(700), u"edited"_s));
    add(newEntry(keys(expected).at(1400)));
    library.removeMediaLibraryArray(expected.mid(1, 400));
    MediaLibrary::removeAudio(QVariantList(expected.mid(1, 400)), expected);
    add(newEntry(keys(expected).at(900)));
    add(newEntry(u"second"_s));
    QVariantList twice = expected;
    twice.append(entry(u"first"_s, u"again"_s)); // as another program could write it
    library.setRecords(twice);
    expected = twice;
    add(newEntry(u"first"_s));
    EXPECT_EQ(library.records().last().toMap(), entry(u"first"_s))
        << "of two entries with one key the last is replaced";
}

TEST(MediaLibraryStore, MergesAdditionsAndRemovalsOfTwoProcesses) {
    const QVariantList base{entry(u"a"_s), entry(u"b"_s), entry(u"c"_s), entry(u"d"_s)};
    const QVariantList theirs{entry(u"theirs"_s), entry(u"b"_s, u"their title"_s), entry(u"c"_s), entry(u"d"_s)};
    const QVariantList ours{entry(u"ours"_s), entry(u"a"_s), entry(u"b"_s), entry(u"d"_s, u"our title"_s)};
    const QVariant joined =
        MediaLibraryStore::merge(MediaLibraryStore::value(base, {}), MediaLibraryStore::value(theirs, {entry(u"r"_s)}),
                                 MediaLibraryStore::value(ours, {}));
    EXPECT_EQ(joined, MediaLibraryStore::value({entry(u"ours"_s), entry(u"theirs"_s), entry(u"b"_s, u"their title"_s),
                                                entry(u"d"_s, u"our title"_s)},
                                               {entry(u"r"_s)}));
}

TEST(MediaLibraryStore, MergesChangesOfTwoProcessesInOneEntry) {
    const auto merged = [](const Dictionary& base, const Dictionary& theirs, const Dictionary& ours) {
        const auto whole = [](Dictionary values) {
            values.insert(AudioRecordEntry::NodeDataKey, u"a"_s);
            return MediaLibraryStore::value({entry(u"top"_s), values}, {values});
        };
        const Dictionary joined = MediaLibraryStore::merge(whole(base), whole(theirs), whole(ours)).toMap();
        EXPECT_EQ(keys(joined.value(u"records"_s).toList()), (QStringList{u"top"_s, u"a"_s}));
        Dictionary values = joined.value(u"records"_s).toList().last().toMap();
        EXPECT_EQ(joined.value(u"ringtones"_s).toList(), QVariantList{values});
        values.remove(AudioRecordEntry::NodeDataKey);
        return values;
    };
    using Values = Dictionary;
    // Each side changed, added or removed a different value.
    EXPECT_EQ(merged({{u"1"_s, 1}, {u"2"_s, 2}}, {{u"1"_s, 1}, {u"2"_s, u"b"_s}}, {{u"1"_s, u"a"_s}, {u"2"_s, 2}}),
              (Values{{u"1"_s, u"a"_s}, {u"2"_s, u"b"_s}}));
    EXPECT_EQ(merged({}, {{u"1"_s, 1}}, {{u"2"_s, 2}}), (Values{{u"1"_s, 1}, {u"2"_s, 2}}));
    EXPECT_EQ(merged({{u"1"_s, 1}, {u"2"_s, 2}}, {{u"2"_s, 2}}, {{u"1"_s, 1}}), Values{});
    EXPECT_EQ(merged({{u"1"_s, 1}, {u"2"_s, 2}}, {{u"1"_s, 1}}, {{u"1"_s, 3}, {u"2"_s, 2}}), (Values{{u"1"_s, 3}}));
    // Both sides changed the same one.
    EXPECT_EQ(merged({{u"1"_s, 1}}, {{u"1"_s, 2}}, {{u"1"_s, 3}}), (Values{{u"1"_s, 3}}));
    EXPECT_EQ(merged({{u"1"_s, 1}}, {{u"1"_s, 2}}, {}), Values{});
    EXPECT_EQ(merged({{u"1"_s, 1}}, {}, {{u"1"_s, 3}}), (Values{{u"1"_s, 3}}));
}

TEST(MediaLibraryStore, KeepsOneEntryWhenTwoProcessesAddedIt) {
    Dictionary theirs = entry(u"a"_s, u"their title"_s);
    theirs.insert(AudioRecordEntry::Artist, u"their artist"_s);
    Dictionary expected = theirs;
    expected.insert(AudioRecordEntry::Title, u"our title"_s);
    const QVariant base = MediaLibraryStore::value({entry(u"old"_s)}, {});
    EXPECT_EQ(MediaLibraryStore::merge(base, MediaLibraryStore::value({theirs, entry(u"old"_s)}, {}),
                                       MediaLibraryStore::value({entry(u"a"_s, u"our title"_s), entry(u"old"_s)}, {})),
              MediaLibraryStore::value({expected, entry(u"old"_s)}, {}));
}

TEST(MediaLibraryStore, KeepsItsEntriesWhenTheStoredValueIsMalformed) {
    const QVariant ours = MediaLibraryStore::value({entry(u"a"_s)}, {});
    EXPECT_EQ(MediaLibraryStore::merge({}, {}, ours), ours);
    EXPECT_EQ(MediaLibraryStore::merge({}, u"odd"_s, ours), ours);
    // A damaged value does not remove entries that this process knows.
    const QVariant known = MediaLibraryStore::value({entry(u"a"_s)}, {entry(u"r"_s)});
    for (const QVariant& theirs :
         {QVariant(u"odd"_s), QVariant(Dictionary()), QVariant(Dictionary{{u"records"_s, 5}, {u"ringtones"_s, u"x"_s}}),
          MediaLibraryStore::value({5}, {u"x"_s})})
        EXPECT_EQ(MediaLibraryStore::merge(known, theirs, known), known);
    EXPECT_EQ(MediaLibraryStore::merge(known, MediaLibraryStore::value({entry(u"new"_s), 5}, {entry(u"r"_s)}), known),
              MediaLibraryStore::value({entry(u"new"_s), entry(u"a"_s)}, {entry(u"r"_s)}));
}

TEST(MediaLibraryStore, TwoLibrariesOnOneFileLoseNoEntry) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"a.plist"_s);
    const Platform::ServicesScope scope;
    {
        Platform::PropertyListDefaults one(path);
        Platform::PropertyListDefaults other(path);
        Platform::services().userDefaults = &one;
        MediaLibrary window;
        Platform::services().userDefaults = &other;
        MediaLibrary commandLine;
        const auto add = [](Platform::PropertyListDefaults& defaults, MediaLibrary& library, const QString& key) {
            Platform::services().userDefaults = &defaults;
            library.addRecordFile(entry(key));
            ASSERT_TRUE(defaults.flush());
        };
        add(one, window, u"window 1"_s);
        add(other, commandLine, u"command 1"_s);
        add(one, window, u"window 2"_s);
        add(other, commandLine, u"command 2"_s);
        Platform::services().userDefaults = &one;
        window.removeMediaLibraryArray({entry(u"window 1"_s)});
        ASSERT_TRUE(one.flush());
    }
    Platform::PropertyListDefaults defaults(path);
    Platform::services().userDefaults = &defaults;
    QStringList all = keys(MediaLibrary().records());
    all.sort();
    EXPECT_EQ(all, (QStringList{u"command 1"_s, u"command 2"_s, u"window 2"_s}));
}

TEST(MediaLibraryStore, IsAdoptedRowByRowByASecondLibrary) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"a.plist"_s);
    const Platform::ServicesScope scope;
    Platform::PropertyListDefaults one(path);
    Platform::services().userDefaults = &one;
    MediaLibrary window;
    for (const QString& key : {u"a"_s, u"b"_s, u"c"_s})
        window.addRecordFile(newEntry(key));
    ASSERT_TRUE(one.flush());

    {
        Platform::PropertyListDefaults other(path);
        Platform::services().userDefaults = &other;
        MediaLibrary commandLine;
        commandLine.removeMediaLibraryArray({entry(u"b"_s)});
        commandLine.addRecordFile(entry(u"a"_s, u"Title"_s));
        commandLine.addRecordFile(newEntry(u"d"_s));
        commandLine.addRingtoneFile(entry(u"r"_s));
        ASSERT_TRUE(other.flush());
    }
    Platform::services().userDefaults = &one;
    LeafNotes notes(window);
    window.takeUpMediaLibraryList();
    EXPECT_EQ(notes.lines, (QStringList{u"-new-record 1"_s, u"=new-record 1"_s, u"-all-record 1"_s, u"+all-record 0"_s,
                                        u"=all-record 2"_s, u"+all-ringtone 0"_s}));
    EXPECT_EQ(window.records(), (QVariantList{entry(u"d"_s), entry(u"c"_s), entry(u"a"_s, u"Title"_s)}));
    EXPECT_EQ(keys(window.ringtones()), QStringList{u"r"_s});
    notes.lines.clear();
    window.takeUpMediaLibraryList();
    EXPECT_EQ(notes.lines, QStringList());

    // An entry adopted from another process can be removed, and does not return.
    window.removeMediaLibraryArray({entry(u"d"_s)});
    ASSERT_TRUE(one.flush());
    Platform::PropertyListDefaults fresh(path);
    Platform::services().userDefaults = &fresh;
    EXPECT_EQ(keys(MediaLibrary().records()), (QStringList{u"c"_s, u"a"_s}));
}
