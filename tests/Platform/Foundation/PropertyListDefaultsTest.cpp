// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Foundation/linux/PropertyListDefaults.h"

#include "Platform/Foundation/linux/PropertyList.h"
#include "tests/support/ChildProcess.h"
#include "tests/support/DiskCalls.h"
#include "tests/support/Environment.h"
#include "tests/support/WaitFor.h"

#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <algorithm>
#include <atomic>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <thread>

using namespace Qt::StringLiterals;
using Platform::PropertyListDefaults;

namespace {

class DefaultsFile : public testing::Test {
protected:
    [[nodiscard]] QString path() const { return folder_.filePath(u"com.korvane.Sonaphex.plist"_s); }

    [[nodiscard]] std::optional<Dictionary> stored() const {
        QFile file(path());
        return file.open(QIODevice::ReadOnly) ? Platform::PropertyList::fromXml(file.readAll()) : std::nullopt;
    }
    void store(const QByteArray& content) const {
        QFile file(path());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }
    [[nodiscard]] QStringList damagedFiles() const { return QDir(folder_.path()).entryList({u"*.damaged-*"_s}); }

    QTemporaryDir folder_;
};

QVariantList library(int entries, int stamp) {
    QVariantList list;
    for (int i = 0; i < entries; ++i)
        list.append(QVariantMap{{u"MediaLibraryNodeDataKey"_s, QString(u"/home/a/Music/%1.m4a_817430400.5"_s).arg(i)},
                                {u"AudioSavePath"_s, QString(u"/home/a/Music/%1.m4a"_s).arg(i)},
                                {u"ID3TitleKey"_s, u"Title %1"_s.arg(i)},
                                {u"ID3ArtistKey"_s, u"NO Artist"_s},
                                {u"ID3AlbumKey"_s, u"NO Album"_s},
                                {u"ID3YearKey"_s, stamp},
                                {u"ID3GenreKey"_s, u"NO General"_s},
                                {u"AddAudioDate"_s, u"2026/11/21"_s},
                                {u"AddAudioLength"_s, 12.5}});
    return list;
}

QVariant joinTexts(const QVariant& base, const QVariant& theirs, const QVariant& ours) {
    return QVariant(QString(base.toString() + u'|' + theirs.toString() + u'|' + ours.toString()));
}

} // namespace

TEST_F(DefaultsFile, KeepsValuesFromOneRunToTheNext) {
    {
        PropertyListDefaults defaults(path());
        EXPECT_FALSE(defaults.objectForKey(u"PreferenceSplitTimeMSKey"_s).isValid());
        defaults.setObject(u"PreferenceSplitTimeMSKey"_s, u"300"_s);
        defaults.setObject(u"PreferenceFilterKey"_s, qlonglong(1));
        EXPECT_EQ(defaults.objectForKey(u"PreferenceSplitTimeMSKey"_s), u"300"_s);
    }
    PropertyListDefaults defaults(path());
    EXPECT_EQ(defaults.objectForKey(u"PreferenceSplitTimeMSKey"_s), u"300"_s);
    EXPECT_EQ(defaults.objectForKey(u"PreferenceFilterKey"_s), 1);
}

TEST_F(DefaultsFile, RemovesAValue) {
    PropertyListDefaults defaults(path());
    defaults.setObject(u"a"_s, 1);
    ASSERT_TRUE(defaults.flush());
    defaults.removeObject(u"a"_s);
    ASSERT_TRUE(defaults.flush());
    EXPECT_EQ(stored(), Dictionary{});
    EXPECT_FALSE(defaults.objectForKey(u"a"_s).isValid());
}

TEST_F(DefaultsFile, ReturnsAValueOfTheWrongTypeUnchanged) {
    store(Platform::PropertyList::toXml({{u"PreferenceSplitKey"_s, QVariantList{u"odd"_s}}}));
    const PropertyListDefaults defaults(path());
    EXPECT_EQ(defaults.objectForKey(u"PreferenceSplitKey"_s), (QVariantList{u"odd"_s}));
}

TEST_F(DefaultsFile, IsReadableByItsOwnerOnly) {
    PropertyListDefaults defaults(path());
    defaults.setObject(u"a"_s, 1);
    ASSERT_TRUE(defaults.flush());
    struct stat status {};
    ASSERT_EQ(::stat(QFile::encodeName(path()).constData(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777, 0600U);
}

TEST_F(DefaultsFile, CreatesAMissingFolder) {
    const QString deep = folder_.filePath(u"not/yet/there.plist"_s);
    PropertyListDefaults defaults(deep);
    defaults.setObject(u"a"_s, 1);
    EXPECT_TRUE(defaults.flush());
    EXPECT_TRUE(QFile::exists(deep));
}

TEST_F(DefaultsFile, SetsADamagedFileAsideAndStartsEmpty) {
    const QByteArray damaged = "<plist version=\"1.0\"><dict><key>kMediaLibrarySavedKey</key><di";
    store(damaged);
    PropertyListDefaults defaults(path());
    EXPECT_FALSE(defaults.objectForKey(u"kMediaLibrarySavedKey"_s).isValid());
    defaults.setObject(u"a"_s, 1);
    ASSERT_TRUE(defaults.flush());
    ASSERT_EQ(damagedFiles().size(), 1);
    QFile kept(folder_.filePath(damagedFiles().first()));
    ASSERT_TRUE(kept.open(QIODevice::ReadOnly));
    EXPECT_EQ(kept.readAll(), damaged);
    EXPECT_EQ(stored(), (Dictionary{{u"a"_s, qlonglong(1)}}));
}

TEST_F(DefaultsFile, SetsEachDamagedFileAsideUnderANameOfItsOwn) {
    for (int i = 0; i < 3; ++i) {
        store("damaged " + QByteArray::number(i));
        const PropertyListDefaults defaults(path());
    }
    EXPECT_EQ(damagedFiles().size(), 3);
}

TEST_F(DefaultsFile, KeepsItsValuesWhenTheFileIsDamagedMeanwhile) {
    PropertyListDefaults defaults(path());
    defaults.setObject(u"a"_s, 1);
    ASSERT_TRUE(defaults.flush());
    store("damaged by another program");
    defaults.setObject(u"b"_s, 2);
    ASSERT_TRUE(defaults.flush());
    EXPECT_EQ(stored(), (Dictionary{{u"a"_s, qlonglong(1)}, {u"b"_s, qlonglong(2)}}));
    EXPECT_EQ(damagedFiles().size(), 1);
}

TEST_F(DefaultsFile, WritesToTheTargetOfALink) {
    const QString real = folder_.filePath(u"real.plist"_s);
    {
        QFile file(real);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(Platform::PropertyList::toXml({}));
    }
    ASSERT_TRUE(QFile::link(real, path()));
    {
        PropertyListDefaults defaults(path());
        defaults.setObject(u"a"_s, 1);
    }
    EXPECT_TRUE(QFileInfo(path()).isSymLink());
    EXPECT_EQ(stored(), (Dictionary{{u"a"_s, qlonglong(1)}}));
}

TEST_F(DefaultsFile, ReportsAFailedWriteAndTriesAgain) {
    // A folder in place of the file cannot be replaced, even by root.
    ASSERT_TRUE(QDir().mkpath(path()));
    PropertyListDefaults defaults(path());
    defaults.setObject(u"a"_s, 1);
    EXPECT_FALSE(defaults.flush());
    EXPECT_EQ(defaults.objectForKey(u"a"_s), 1);
    ASSERT_TRUE(QDir().rmdir(path()));
    EXPECT_TRUE(defaults.flush());
    EXPECT_EQ(stored(), (Dictionary{{u"a"_s, qlonglong(1)}}));
}

TEST_F(DefaultsFile, TwoInstancesKeepEachOthersValues) {
    PropertyListDefaults one(path());
    PropertyListDefaults other(path());
    one.setObject(u"one"_s, 1);
    ASSERT_TRUE(one.flush());
    other.setObject(u"other"_s, 2);
    ASSERT_TRUE(other.flush());
    one.setObject(u"one"_s, 3);
    ASSERT_TRUE(one.flush());
    EXPECT_EQ(stored(), (Dictionary{{u"one"_s, qlonglong(3)}, {u"other"_s, qlonglong(2)}}));
    EXPECT_EQ(one.objectForKey(u"other"_s), 2);
}

TEST_F(DefaultsFile, NeverOverwritesANewerValueOfAnotherProcessWithAnOldOne) {
    PropertyListDefaults one(path());
    one.setObject(u"key"_s, 1);
    ASSERT_TRUE(one.flush());
    PropertyListDefaults other(path());
    other.setObject(u"key"_s, 2);
    ASSERT_TRUE(other.flush());
    one.setObject(u"unrelated"_s, true);
    ASSERT_TRUE(one.flush());
    EXPECT_EQ(stored()->value(u"key"_s), 2);
    EXPECT_EQ(one.objectForKey(u"key"_s), 2);
}

TEST_F(DefaultsFile, MergesAValueThatTwoProcessesChanged) {
    store(Platform::PropertyList::toXml({{u"list"_s, u"base"_s}}));
    PropertyListDefaults one(path());
    PropertyListDefaults other(path());
    one.setMergeForKey(u"list"_s, joinTexts);
    ASSERT_EQ(one.objectForKey(u"list"_s), u"base"_s) << "read before the other one writes";
    other.setObject(u"list"_s, u"theirs"_s);
    ASSERT_TRUE(other.flush());
    one.setObject(u"list"_s, u"ours"_s);
    ASSERT_TRUE(one.flush());
    EXPECT_EQ(stored()->value(u"list"_s), u"base|theirs|ours"_s);
    EXPECT_EQ(one.objectForKey(u"list"_s), u"ours"_s);
}

TEST_F(DefaultsFile, AdoptsAValueThatAnotherProcessStored) {
    store(Platform::PropertyList::toXml({{u"list"_s, u"base"_s}, {u"text"_s, u"old"_s}}));
    PropertyListDefaults one(path());
    PropertyListDefaults other(path());
    one.setMergeForKey(u"list"_s, joinTexts);
    EXPECT_TRUE(one.takeUp(u"list"_s));
    EXPECT_EQ(one.objectForKey(u"list"_s), u"base"_s) << "nothing is new";
    other.setObject(u"list"_s, u"theirs"_s);
    other.setObject(u"text"_s, u"new"_s);
    ASSERT_TRUE(other.flush());
    EXPECT_TRUE(one.takeUp(u"list"_s));
    EXPECT_TRUE(one.takeUp(u"list"_s));
    EXPECT_EQ(one.objectForKey(u"list"_s), u"base|theirs|base"_s) << "once";
    EXPECT_TRUE(one.takeUp(u"text"_s));
    EXPECT_EQ(one.objectForKey(u"text"_s), u"new"_s);
    one.setObject(u"list"_s, u"ours"_s);
    ASSERT_TRUE(one.flush());
    EXPECT_EQ(stored()->value(u"list"_s), u"theirs|theirs|ours"_s) << "a change of what was taken up";
    other.removeObject(u"text"_s);
    ASSERT_TRUE(other.flush());
    EXPECT_TRUE(one.takeUp(u"text"_s));
    EXPECT_FALSE(one.objectForKey(u"text"_s).isValid());
}

TEST_F(DefaultsFile, AdoptsAStoredValueAndKeepsItsOwnUnsavedOnes) {
    store(Platform::PropertyList::toXml({{u"list"_s, u"base"_s}, {u"text"_s, u"old"_s}}));
    PropertyListDefaults one(path());
    one.setMergeForKey(u"list"_s, joinTexts);
    const QString inTheWay = folder_.filePath(u".com.korvane.Sonaphex.plist.lock"_s);
    ASSERT_TRUE(QDir().mkpath(inTheWay));
    one.setObject(u"list"_s, u"ours"_s);
    one.setObject(u"text"_s, u"ours"_s);
    EXPECT_FALSE(one.flush());
    store(Platform::PropertyList::toXml({{u"list"_s, u"theirs"_s}, {u"text"_s, u"theirs"_s}}));
    EXPECT_TRUE(one.takeUp(u"list"_s));
    EXPECT_TRUE(one.takeUp(u"text"_s));
    EXPECT_EQ(one.objectForKey(u"list"_s), u"base|theirs|ours"_s);
    EXPECT_EQ(one.objectForKey(u"text"_s), u"ours"_s);
    ASSERT_TRUE(QDir().rmdir(inTheWay));
    EXPECT_TRUE(one.flush());
    EXPECT_EQ(stored(), (Dictionary{{u"list"_s, u"theirs|theirs|base|theirs|ours"_s}, {u"text"_s, u"ours"_s}}));
}

TEST_F(DefaultsFile, AdoptsNothingFromAnUnreadableFile) {
    store(Platform::PropertyList::toXml({{u"a"_s, 1}}));
    PropertyListDefaults defaults(path());
    ASSERT_EQ(defaults.objectForKey(u"a"_s), 1);
    store("damaged");
    EXPECT_FALSE(defaults.takeUp(u"a"_s));
    EXPECT_EQ(defaults.objectForKey(u"a"_s), 1);
    EXPECT_EQ(damagedFiles(), QStringList());
    ASSERT_TRUE(QFile::remove(path()));
    EXPECT_TRUE(defaults.takeUp(u"a"_s));
    EXPECT_EQ(defaults.objectForKey(u"a"_s), 1) << "a file that was taken away comes back with the next save";
}

TEST_F(DefaultsFile, TwoProcessesThatWriteAtTheSameTimeLoseNothing) {
    constexpr int values = 60;
    const auto writer = [&](const QString& name) {
        return [this, name] {
            PropertyListDefaults defaults(path());
            for (int i = 0; i < values; ++i) {
                defaults.setObject(name + QString::number(i), i);
                if (!defaults.flush())
                    return 1;
            }
            return 0;
        };
    };
    ChildProcess one(writer(u"one"_s));
    ChildProcess other(writer(u"other"_s));
    ASSERT_EQ(one.wait(), 0);
    ASSERT_EQ(other.wait(), 0);
    const auto all = stored();
    ASSERT_TRUE(all);
    EXPECT_EQ(all->size(), 2 * values);
}

TEST_F(DefaultsFile, AKilledProcessNeverLosesSavedValues) {
    for (int round = 0; round < 25; ++round) {
        int ends[2];
        ASSERT_EQ(::pipe(ends), 0);
        ChildProcess child([&] {
            PropertyListDefaults defaults(path());
            for (int stamp = round * 1000 + 1;; ++stamp) {
                defaults.setObject(u"kMediaLibrarySavedKey"_s, library(400, stamp));
                if (!defaults.flush() || ::write(ends[1], &stamp, sizeof stamp) != sizeof stamp)
                    return 1;
            }
        });
        ASSERT_TRUE(child.started());
        int saved = 0;
        ASSERT_EQ(::read(ends[0], &saved, sizeof saved), ssize_t(sizeof saved));
        ::usleep(static_cast<useconds_t>(round * 1700));
        child.kill();
        ::close(ends[1]);
        while (::read(ends[0], &saved, sizeof saved) == ssize_t(sizeof saved)) {
        }
        ::close(ends[0]);

        const auto all = stored();
        ASSERT_TRUE(all) << "round " << round;
        const QVariantList list = all->value(u"kMediaLibrarySavedKey"_s).toList();
        ASSERT_EQ(list.size(), 400);
        const int stamp = list.first().toMap().value(u"ID3YearKey"_s).toInt();
        EXPECT_GE(stamp, saved);
        EXPECT_EQ(list, PropertyListDefaults(path()).objectForKey(u"kMediaLibrarySavedKey"_s).toList());
    }
    EXPECT_TRUE(damagedFiles().isEmpty());
}

TEST_F(DefaultsFile, ABurstOfChangesIsWrittenOnce) {
    PropertyListDefaults defaults(path());
    defaults.setObject(u"a"_s, 0);
    ASSERT_TRUE(defaults.flush());
    const DiskCalls disk;
    const auto saves = [&] {
        return std::ranges::count_if(disk.calls(), [&](const DiskCalls::Call& call) {
            return call.kind == DiskCalls::Call::Kind::Rename && call.to == path();
        });
    };
    QElapsedTimer burst;
    burst.start();
    for (int i = 1; i <= 200; ++i) {
        defaults.setObject(u"a"_s, i);
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    // Each save waits 50 ms for more changes, so a burst that takes longer on a busy machine has a few more saves.
    EXPECT_LE(saves(), burst.elapsed() / 50 + 1);
    EXPECT_TRUE(waitFor([&] { return stored() && stored()->value(u"a"_s).toInt() == 200; }))
        << "nobody has to ask for the save";
}

TEST_F(DefaultsFile, FlushDoesNotWaitForTheEndOfABurst) {
    PropertyListDefaults defaults(path());
    std::atomic<bool> stop{false};
    std::thread burst([&] {
        for (int i = 0; !stop; ++i)
            defaults.setObject(u"burst"_s, i);
    });
    for (int i = 0; i < 20; ++i) {
        defaults.setObject(u"asked"_s, i);
        EXPECT_TRUE(defaults.flush());
        EXPECT_EQ(stored()->value(u"asked"_s), i);
    }
    stop = true;
    burst.join();
}

TEST_F(DefaultsFile, MayBeUsedFromManyThreads) {
    PropertyListDefaults defaults(path());
    std::vector<std::thread> threads;
    for (int thread = 0; thread < 4; ++thread)
        threads.emplace_back([&, thread] {
            for (int i = 0; i < 200; ++i) {
                defaults.setObject(u"%1-%2"_s.arg(thread).arg(i), i);
                (void)defaults.objectForKey(u"%1-%2"_s.arg((thread + 1) % 4).arg(i));
                if (i % 50 == thread) {
                    EXPECT_TRUE(defaults.takeUp(u"%1-%2"_s.arg(thread).arg(i)));
                }
            }
        });
    for (std::thread& thread : threads)
        thread.join();
    ASSERT_TRUE(defaults.flush());
    EXPECT_EQ(stored()->size(), 800);
}

TEST_F(DefaultsFile, SettingALargeLibraryCopiesNothing) {
    PropertyListDefaults defaults(path());
    const QVariantList entries = library(10000, 1);
    defaults.setObject(u"kMediaLibrarySavedKey"_s, entries);
    EXPECT_EQ(defaults.objectForKey(u"kMediaLibrarySavedKey"_s).toList().constData(), entries.constData());
    ASSERT_TRUE(defaults.flush());
    EXPECT_EQ(stored()->value(u"kMediaLibrarySavedKey"_s).toList(), entries);
}

TEST(UserDefaults, AreStoredInTheConfigurationFolderUnderTheBundleIdentifier) {
    const QTemporaryDir folder;
    const EnvironmentScope scope("XDG_CONFIG_HOME", folder.path().toUtf8());
    Platform::createUserDefaults(u"com.example.Test"_s)->setObject(u"a"_s, 1);
    EXPECT_TRUE(QFile::exists(folder.filePath(u"com.example.Test.plist"_s)));
}
