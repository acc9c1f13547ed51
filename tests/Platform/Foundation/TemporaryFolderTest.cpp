// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Foundation/TemporaryFolder.h"
#include "Platform/Foundation/MovedFiles.h"
#include "Platform/Foundation/TerminationSignals.h"

#include "tests/support/ChildProcess.h"
#include "tests/support/Environment.h"
#include "tests/support/WaitFor.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <csignal>
#include <unistd.h>
#include <vector>

using Platform::TemporaryFolder;
namespace MovedFiles = Platform::MovedFiles;

namespace {

struct TemporaryFolderTest : testing::Test {
    QTemporaryDir dir;
    EnvironmentScope temporary{"TMPDIR", dir.path().toUtf8()};
    [[nodiscard]] QStringList all() const {
        return QDir(dir.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    }
    static void make(const QString& path) {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    }
};

} // namespace

TEST_F(TemporaryFolderTest, IsRemovedWithItsObject) {
    {
        const auto folder = TemporaryFolder::create(QStringLiteral("test"));
        ASSERT_TRUE(folder) << qPrintable(folder.error().text);
        EXPECT_TRUE(folder->path().startsWith(dir.path()));
        make(folder->path() + QStringLiteral("/raw"));
        const auto second = TemporaryFolder::create(QStringLiteral("test"));
        ASSERT_TRUE(second);
        EXPECT_NE(second->path(), folder->path());
        EXPECT_TRUE(QFile::exists(folder->path() + QStringLiteral("/raw"))) << "that of a living owner stays";
    }
    EXPECT_EQ(all(), QStringList());
}

TEST_F(TemporaryFolderTest, OfADeadOwnerIsRemovedByTheNextProcess) {
    int ready[2];
    ASSERT_EQ(pipe(ready), 0);
    ChildProcess other([&] {
        const auto folder = TemporaryFolder::create(QStringLiteral("test"));
        make(folder->path() + QStringLiteral("/raw"));
        (void)!write(ready[1], "x", 1);
        for (;;)
            pause();
        return 0;
    });
    char x = 0;
    ASSERT_EQ(read(ready[0], &x, 1), 1);
    { const auto mine = TemporaryFolder::create(QStringLiteral("test")); }
    EXPECT_EQ(all().size(), 2) << "folder and lock of the living owner";
    other.kill();
    EXPECT_EQ(all().size(), 2);
    { const auto mine = TemporaryFolder::create(QStringLiteral("test")); }
    EXPECT_EQ(all(), QStringList());
}

TEST_F(TemporaryFolderTest, RemovesALinkButNotItsTarget) {
    QDir(dir.path()).mkpath(QStringLiteral("precious"));
    make(dir.filePath(QStringLiteral("precious/file")));
    ASSERT_EQ(symlink("precious", qPrintable(dir.filePath(QStringLiteral("link")))), 0);
    TemporaryFolder::removeWhole(dir.filePath(QStringLiteral("link")));
    EXPECT_EQ(all(), QStringList{QStringLiteral("precious")});
    QDir(dir.path()).mkpath(QStringLiteral("wiped"));
    ASSERT_EQ(symlink("../precious", qPrintable(dir.filePath(QStringLiteral("wiped/link")))), 0);
    TemporaryFolder::removeWhole(dir.filePath(QStringLiteral("wiped")));
    EXPECT_EQ(all(), QStringList{QStringLiteral("precious")});
    EXPECT_TRUE(QFile::exists(dir.filePath(QStringLiteral("precious/file"))));
}

TEST(TerminationSignals, ArriveOnTheMainThreadWithoutEndingTheProcess) {
    std::vector<int> arrived;
    {
        const Platform::TerminationSignals signals([&](int number) { arrived.push_back(number); });
        std::raise(SIGTERM);
        EXPECT_TRUE(arrived.empty());
        EXPECT_TRUE(waitFor([&] { return arrived.size() == 1; }));
        std::raise(SIGINT);
        std::raise(SIGHUP);
        EXPECT_TRUE(waitFor([&] { return arrived.size() == 3; }));
    }
    EXPECT_EQ(arrived, (std::vector<int>{SIGTERM, SIGINT, SIGHUP}));
    struct sigaction now {};
    sigaction(SIGTERM, nullptr, &now);
    EXPECT_EQ(now.sa_handler, SIG_DFL);
}

TEST_F(TemporaryFolderTest, StaysWhileAFileOfTheUserCannotBeMovedBack) {
    const QString folder = dir.filePath(QStringLiteral("work"));
    const QString home = dir.filePath(QStringLiteral("music"));
    QDir(dir.path()).mkpath(QStringLiteral("work"));
    QDir(dir.path()).mkpath(QStringLiteral("music"));
    make(dir.filePath(QStringLiteral("no folder")));
    const EnvironmentScope data("XDG_DATA_HOME", dir.filePath(QStringLiteral("no folder/data")).toUtf8());
    make(home + QStringLiteral("/a.m4a"));
    ASSERT_TRUE(MovedFiles::moveAway(home + QStringLiteral("/a.m4a"), folder + QStringLiteral("/1.m4a")));
    make(folder + QStringLiteral("/raw"));
    ASSERT_TRUE(QDir(home).removeRecursively());

    for (int launch = 0; launch < 2; ++launch) {
        TemporaryFolder::removeWhole(folder);
        EXPECT_EQ(QDir(folder).entryList(QDir::Files | QDir::Hidden, QDir::Name),
                  (QStringList{QStringLiteral("1.m4a"), QStringLiteral("1.m4a.origin")}));
    }
    QDir(dir.path()).mkpath(QStringLiteral("music"));
    TemporaryFolder::removeWhole(folder);
    EXPECT_TRUE(QFile::exists(home + QStringLiteral("/a.m4a")));
    EXPECT_FALSE(QFile::exists(folder));
}

TEST_F(TemporaryFolderTest, StaysWhileAFileCannotBeSetAside) {
    const QString folder = dir.filePath(QStringLiteral("work"));
    QDir(dir.path()).mkpath(QStringLiteral("work"));
    make(dir.filePath(QStringLiteral("data")));
    const EnvironmentScope data("XDG_DATA_HOME", dir.filePath(QStringLiteral("data")).toUtf8());
    QStringList kept;
    for (int i = 0; i < 2; ++i) {
        make(folder + QStringLiteral("/raw"));
        kept += MovedFiles::setAside(folder + QStringLiteral("/raw"), QStringLiteral("a.m4a"));
    }
    EXPECT_EQ(kept, (QStringList{folder + QStringLiteral("/a.m4a"), folder + QStringLiteral("/a 2.m4a")}));
    // An empty note, as written on a full disk, keeps the file, too.
    ASSERT_TRUE(QFile::resize(kept.at(1) + QStringLiteral(".origin"), 0));
    make(folder + QStringLiteral("/raw"));
    TemporaryFolder::removeWhole(folder);
    for (const QString& path : kept) {
        EXPECT_TRUE(QFile::exists(path));
        EXPECT_TRUE(MovedFiles::isKept(path));
    }
    EXPECT_FALSE(QFile::exists(folder + QStringLiteral("/raw")));

    ASSERT_TRUE(QFile::remove(dir.filePath(QStringLiteral("data"))));
    EXPECT_NE(MovedFiles::setAside(kept.at(0), QStringLiteral("a.m4a")), kept.at(0)) << "now there is room";
    EXPECT_FALSE(MovedFiles::isKept(kept.at(0)));
    TemporaryFolder::removeWhole(folder);
    EXPECT_FALSE(QFile::exists(folder));
    EXPECT_EQ(QDir(Platform::FileManager::unfinishedFolder()).entryList(QDir::Files, QDir::Name),
              (QStringList{QStringLiteral("a 2.m4a"), QStringLiteral("a.m4a")}));
}

TEST_F(TemporaryFolderTest, ThatWasKeptIsFoundAgain) {
    const EnvironmentScope data("XDG_DATA_HOME", dir.filePath(QStringLiteral("no folder/data")).toUtf8());
    make(dir.filePath(QStringLiteral("no folder")));
    const QString home = dir.filePath(QStringLiteral("a.m4a"));
    make(home);
    {
        const auto folder = TemporaryFolder::create(QStringLiteral("test"));
        ASSERT_TRUE(folder) << qPrintable(folder.error().text);
        ASSERT_TRUE(MovedFiles::moveAway(home, folder->path() + QStringLiteral("/1.m4a")));
        make(home); // its original path is taken
    }
    EXPECT_EQ(all().size(), 4) << "the folder and its lock stay";
    ASSERT_TRUE(QFile::remove(home));
    { const auto other = TemporaryFolder::create(QStringLiteral("test")); }
    EXPECT_EQ(all(), (QStringList{QStringLiteral("a.m4a"), QStringLiteral("no folder")}));
}
