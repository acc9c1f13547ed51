// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Foundation/FileManager.h"

#include "tests/support/Environment.h"
#include "tests/support/FileContent.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <sys/stat.h>
#include <unistd.h>

namespace Files = Platform::FileManager;

namespace {

using FileContent::put;

struct FileManager : testing::Test {
    QTemporaryDir dir;
    /// A folder on another file system, so that a move becomes a copy. Null when the machine has none.
    QTemporaryDir elsewhere{QStringLiteral("/dev/shm/sonaphex-test-XXXXXX")};
    EnvironmentScope data{"XDG_DATA_HOME", dir.filePath(QStringLiteral("share")).toUtf8()};

    [[nodiscard]] QString path(const char* name) const { return dir.filePath(QString::fromUtf8(name)); }
    static QByteArray get(const QString& path) { return FileContent::get(path, "(missing)"); }
    [[nodiscard]] static QStringList all(const QString& folder) {
        return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                                      QDir::Name);
    }
};

} // namespace

TEST_F(FileManager, MovesAFile) {
    put(path("a"), "one");
    EXPECT_TRUE(Files::move(path("a"), path("b")));
    EXPECT_EQ(get(path("b")), "one");
    EXPECT_FALSE(QFileInfo::exists(path("a")));
}

TEST_F(FileManager, NeverMovesOverAnotherFile) {
    put(path("a"), "one");
    put(path("b"), "two");
    EXPECT_FALSE(Files::move(path("a"), path("b")));
    EXPECT_EQ(get(path("a")), "one");
    EXPECT_EQ(get(path("b")), "two");
}

TEST_F(FileManager, NeverMovesOverABrokenLink) {
    put(path("a"), "one");
    ASSERT_EQ(symlink("nowhere", qPrintable(path("b"))), 0);
    EXPECT_FALSE(Files::move(path("a"), path("b")));
    EXPECT_TRUE(QFileInfo(path("b")).isSymLink());
}

TEST_F(FileManager, MovesAcrossFileSystemsAndLeavesNothingBehind) {
    const QString target = elsewhere.filePath(QStringLiteral("b"));
    put(path("a"), QByteArray(3000000, 'x'));
    EXPECT_TRUE(Files::move(path("a"), target));
    EXPECT_EQ(get(target), QByteArray(3000000, 'x'));
    EXPECT_FALSE(QFileInfo::exists(path("a")));
    EXPECT_EQ(all(elsewhere.path()), QStringList{QStringLiteral("b")});
}

TEST_F(FileManager, NeverOverwritesAcrossFileSystems) {
    const QString target = elsewhere.filePath(QStringLiteral("b"));
    put(path("a"), "one");
    put(target, "two");
    EXPECT_FALSE(Files::move(path("a"), target));
    EXPECT_EQ(get(path("a")), "one");
    EXPECT_EQ(get(target), "two");
    EXPECT_EQ(all(elsewhere.path()), QStringList{QStringLiteral("b")});
}

TEST_F(FileManager, TakesTheNextFreeNameWhenTheTargetExists) {
    put(path("a"), "one");
    put(path("Track0"), "");
    put(path("Track1"), "");
    int number = 0;
    const auto landed = Files::moveToFreeName(
        path("a"), path("Track0"), [&](const QString&) { return path("Track") + QString::number(++number); });
    ASSERT_TRUE(landed);
    EXPECT_EQ(*landed, path("Track2"));
    EXPECT_EQ(get(*landed), "one");
}

TEST_F(FileManager, SaysWhyAMoveFailed) {
    const auto never = [](const QString&) { return QString(); };
    const Platform::Error error = Files::move(path("missing"), path("b")).error();
    EXPECT_EQ(error.kind, Platform::Error::Kind::NotFound);
    EXPECT_EQ(error.text, QStringLiteral("No such file or directory"));
    put(path("a"), "one");
    EXPECT_EQ(Files::moveToFreeName(path("a"), path("no/folder"), never).error().text,
              QStringLiteral("No such file or directory"));
    put(path("b"), "two");
    EXPECT_EQ(Files::moveToFreeName(path("a"), path("b"), never).error().kind, Platform::Error::Kind::Exists);
    EXPECT_EQ(get(path("a")), "one");
}

TEST_F(FileManager, CopiesWithTheFilesModeAndTime) {
    put(path("a"), "one");
    chmod(qPrintable(path("a")), 0640);
    EXPECT_TRUE(Files::copy(path("a"), path("b")));
    EXPECT_EQ(get(path("b")), "one");
    EXPECT_EQ(QFileInfo(path("b")).lastModified(), QFileInfo(path("a")).lastModified());
    struct stat is {};
    stat(qPrintable(path("b")), &is);
    EXPECT_EQ(is.st_mode & 0777, 0640U);
}

TEST_F(FileManager, CopiesOverAnExistingFileOnlyWhenAsked) {
    put(path("a"), "one");
    put(path("b"), "two");
    EXPECT_FALSE(Files::copy(path("a"), path("b")));
    EXPECT_EQ(get(path("b")), "two");
    EXPECT_TRUE(Files::copy(path("a"), path("b"), true));
    EXPECT_EQ(get(path("b")), "one");
    EXPECT_EQ(all(dir.path()).filter(QStringLiteral(".part")), QStringList());
}

TEST_F(FileManager, RemovesFilesAndLinksButNoFolder) {
    put(path("a"), "one");
    QDir().mkpath(path("folder"));
    put(path("folder/inside"), "kept");
    ASSERT_EQ(symlink("folder", qPrintable(path("link"))), 0);
    EXPECT_TRUE(Files::removeFile(path("a")));
    EXPECT_TRUE(Files::removeFile(path("link")));
    EXPECT_TRUE(Files::removeFile(path("missing")));
    EXPECT_FALSE(Files::removeFile(path("folder")));
    EXPECT_EQ(get(path("folder/inside")), "kept");
}

TEST_F(FileManager, WritesAWholeFileOrNothing) {
    EXPECT_TRUE(Files::writeAtomically(path("a"), "one"));
    EXPECT_TRUE(Files::writeAtomically(path("a"), "two"));
    EXPECT_EQ(get(path("a")), "two");
    EXPECT_FALSE(Files::writeAtomically(path("no/folder"), "x"));
    EXPECT_EQ(all(dir.path()), QStringList{QStringLiteral("a")});
}

TEST_F(FileManager, WritesThroughALink) {
    put(path("real"), "one");
    ASSERT_EQ(symlink("real", qPrintable(path("link"))), 0);
    EXPECT_TRUE(Files::writeAtomically(path("link"), "two"));
    EXPECT_TRUE(QFileInfo(path("link")).isSymLink());
    EXPECT_EQ(get(path("real")), "two");
}

TEST_F(FileManager, AcceptsNamesOfMaximumLength) {
    const QString longest = dir.filePath(QString(255, u'n'));
    put(path("a"), "one");
    EXPECT_TRUE(Files::copy(path("a"), longest));
    EXPECT_TRUE(Files::writeAtomically(longest, "two"));
    EXPECT_EQ(get(longest), "two");
}

TEST_F(FileManager, ReportsTheFreeSpaceOfTheNearestExistingFolder) {
    EXPECT_GT(Files::availableBytes(dir.path()), 0);
    EXPECT_GT(Files::availableBytes(path("not/yet/made")), 0);
}

TEST_F(FileManager, SetsAsideUnderAFreeName) {
    put(path("a"), "one");
    put(path("b"), "two");
    const QString first = Files::setAside(path("a"), QStringLiteral("Track 0.m4a"));
    const QString second = Files::setAside(path("b"), QStringLiteral("Track 0.m4a"));
    EXPECT_EQ(first, Files::unfinishedFolder() + QStringLiteral("/Track 0.m4a"));
    EXPECT_EQ(second, Files::unfinishedFolder() + QStringLiteral("/Track 0 2.m4a"));
    EXPECT_EQ(get(second), "two");
}

TEST_F(FileManager, AWishedNameNeverLeavesTheFolder) {
    put(path("a"), "one");
    EXPECT_EQ(QFileInfo(Files::setAside(path("a"), QStringLiteral("../../a.m4a"))).path(), Files::unfinishedFolder());
}
