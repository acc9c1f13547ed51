// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Foundation/ReplacementFile.h"

#include "tests/support/ChildProcess.h"
#include "tests/support/DiskCalls.h"
#include "tests/support/FileContent.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <cerrno>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using FileContent::put;
using Existing = Platform::ReplacementFile::Existing;
using Link = Platform::ReplacementFile::Link;

namespace {

struct ReplacementFile : testing::Test {
    QTemporaryDir folder;
    QString target = folder.filePath(u"a.m4a"_s);

    static QByteArray get(const QString& path) { return FileContent::get(path, "(missing)"); }
    [[nodiscard]] QStringList names() const { return FileContent::namesIn(folder.path()); }
};

struct ReplacementFileWritten : ReplacementFile, testing::WithParamInterface<bool> {
    /// Writes in the way that this run tests: through the descriptor, or by name.
    static void write(Platform::ReplacementFile& file, const QByteArray& content) {
        if (!GetParam())
            return put(file.path(), content);
        ASSERT_EQ(file.open(), 0);
        ASSERT_EQ(::write(file.descriptor(), content.constData(), std::size_t(content.size())), content.size());
    }
};

} // namespace

INSTANTIATE_TEST_SUITE_P(BothWays, ReplacementFileWritten, testing::Bool());

TEST_P(ReplacementFileWritten, TakesTheTargetsNameInOneStep) {
    put(target, "old");
    Platform::ReplacementFile file(target);
    write(file, "new");
    EXPECT_EQ(get(target), "old");
    EXPECT_EQ(file.commit(), 0);
    EXPECT_EQ(get(target), "new");
    EXPECT_EQ(names(), QStringList(u"a.m4a"_s));
}

TEST_P(ReplacementFileWritten, LeavesNothingWithoutCommit) {
    put(target, "old");
    {
        Platform::ReplacementFile file(target);
        write(file, "new");
    }
    EXPECT_EQ(get(target), "old");
    EXPECT_EQ(names(), QStringList(u"a.m4a"_s));
}

TEST_P(ReplacementFileWritten, KeepsAnExistingTargetWhenAsked) {
    Platform::ReplacementFile file(target, Existing::Kept);
    write(file, "new");
    put(target, "old");
    EXPECT_EQ(file.commit(), EEXIST);
    EXPECT_EQ(get(target), "old");
    ASSERT_TRUE(QFile::remove(target));
    EXPECT_EQ(file.commit(), 0) << "it can be tried again";
    EXPECT_EQ(get(target), "new");
    EXPECT_EQ(names(), QStringList(u"a.m4a"_s));
}

TEST_P(ReplacementFileWritten, ReplacesTheTargetOfALinkOrTheLinkItself) {
    const QString link = folder.filePath(u"link.m4a"_s);
    put(target, "old");
    ASSERT_TRUE(QFile::link(target, link));
    Platform::ReplacementFile followed(link);
    write(followed, "new");
    EXPECT_EQ(followed.commit(), 0);
    EXPECT_TRUE(QFile(link).symLinkTarget() == target);
    EXPECT_EQ(get(target), "new");
    Platform::ReplacementFile replaced(link, Existing::Replaced, Link::Replaced);
    write(replaced, "newer");
    EXPECT_EQ(replaced.commit(), 0);
    EXPECT_TRUE(QFile(link).symLinkTarget().isEmpty());
    EXPECT_EQ(get(link), "newer");
    EXPECT_EQ(get(target), "new");
}

TEST_P(ReplacementFileWritten, IsSyncedBeforeItTakesTheName) {
    using Kind = DiskCalls::Call::Kind;
    Platform::ReplacementFile file(target);
    write(file, "content");
    const DiskCalls disk;
    EXPECT_EQ(file.commit(), 0);
    const auto calls = disk.calls();
    struct stat made {};
    struct stat around {};
    ASSERT_EQ(::stat(QFile::encodeName(target).constData(), &made), 0);
    ASSERT_EQ(::stat(QFile::encodeName(folder.path()).constData(), &around), 0);
    ASSERT_EQ(calls.size(), 3U);
    EXPECT_EQ(calls[0].kind, Kind::Sync);
    EXPECT_EQ(calls[0].inode, made.st_ino);
    EXPECT_EQ(calls[1].kind, Kind::Rename);
    EXPECT_EQ(calls[1].to, target);
    EXPECT_EQ(calls[2].inode, around.st_ino) << "the name is on the disk too";
}

TEST_P(ReplacementFileWritten, ThatCannotBeSyncedReplacesNothing) {
    put(target, "old");
    {
        Platform::ReplacementFile file(target);
        write(file, "new");
        DiskCalls disk;
        disk.failSync(EIO, [](const QString&) { return true; });
        EXPECT_EQ(file.commit(), EIO);
    }
    EXPECT_EQ(get(target), "old");
    EXPECT_EQ(names(), QStringList(u"a.m4a"_s));
}

TEST_F(ReplacementFile, HasTheTargetsExtensionAndAShortName) {
    const QString longest = folder.filePath(QString(251, u'x') + u".m4a"_s);
    Platform::ReplacementFile file(longest);
    EXPECT_TRUE(file.path().endsWith(u".m4a"_s));
    put(file.path(), "new");
    EXPECT_EQ(file.commit(), 0);
    EXPECT_EQ(get(longest), "new");
}

TEST_F(ReplacementFile, TakesOwnerAndModeFromAModel) {
    put(target, "old");
    ASSERT_EQ(::chmod(QFile::encodeName(target).constData(), 0640), 0);
    QFile model(target);
    ASSERT_TRUE(model.open(QIODevice::ReadOnly));
    Platform::ReplacementFile file(target);
    ASSERT_EQ(file.openLike(model.handle()), 0);
    ASSERT_EQ(file.commit(), 0);
    struct stat made {};
    ASSERT_EQ(::stat(QFile::encodeName(target).constData(), &made), 0);
    EXPECT_EQ(made.st_mode & 07777, 0640U);
    EXPECT_EQ(made.st_size, 0);
}

TEST_F(ReplacementFile, OfAKilledProcessLeavesNoFile) {
    put(target, "old");
    ChildProcess child([&] {
        Platform::ReplacementFile file(target);
        if (file.open() != 0 || ::write(file.descriptor(), "new", 3) != 3)
            return 1;
        ::raise(SIGKILL);
        return 0;
    });
    EXPECT_EQ(child.wait(), -1);
    EXPECT_EQ(get(target), "old");
    EXPECT_EQ(names(), QStringList(u"a.m4a"_s));
}

TEST_P(ReplacementFileWritten, TakesItsNameTogetherWithASecondFileOrNotAtAll) {
    const QString second = folder.filePath(u"b.cue"_s);
    const auto commit = [&] {
        Platform::ReplacementFile one(target, Existing::Kept);
        Platform::ReplacementFile two(second, Existing::Kept);
        write(one, "one");
        write(two, "two");
        return Platform::ReplacementFile::commitTogether(one, two);
    };
    put(second, "old");
    EXPECT_EQ(commit(), EEXIST);
    EXPECT_EQ(names(), QStringList(u"b.cue"_s));
    EXPECT_EQ(get(second), "old");
    ASSERT_TRUE(QFile::remove(second));
    EXPECT_EQ(commit(), 0);
    EXPECT_EQ(names(), (QStringList{u"a.m4a"_s, u"b.cue"_s}));
    EXPECT_EQ(get(target) + get(second), "onetwo");
}
