// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/Model/MissingFiles.h"

#include "tests/support/WaitFor.h"

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QString touch(const QTemporaryDir& folder, const QString& name) {
    QFile file(folder.filePath(name));
    (void)file.open(QIODevice::WriteOnly);
    return file.fileName();
}

} // namespace

TEST(MissingFiles, ReportsAMissingFileLater) {
    QTemporaryDir folder;
    MissingFiles files;
    const QString there = touch(folder, u"a.m4a"_s);
    const QString gone = folder.filePath(u"b.m4a"_s);
    EXPECT_FALSE(files.isMissing(gone)) << "nobody waits for the disk";
    ASSERT_TRUE(waitFor([&] { return files.isMissing(gone); }));
    EXPECT_FALSE(files.isMissing(there));
    EXPECT_FALSE(files.isMissing({}));
}

TEST(MissingFiles, NoticesARemovedAndAReturnedFile) {
    QTemporaryDir folder;
    MissingFiles files;
    const QString path = touch(folder, u"a.m4a"_s);
    const QString other = folder.filePath(u"b.m4a"_s);
    EXPECT_FALSE(files.isMissing(path));
    ASSERT_TRUE(waitFor([&] { return files.isMissing(other); })) << "the folder has been looked at, and is watched";
    ASSERT_TRUE(QFile::remove(path));
    EXPECT_TRUE(waitFor([&] { return files.isMissing(path); }));
    touch(folder, u"a.m4a"_s);
    EXPECT_TRUE(waitFor([&] { return !files.isMissing(path); }));
}

TEST(MissingFiles, AcceptsAFolderThatNeverExisted) {
    MissingFiles files;
    const QString path = u"/nonexistent-folder/some/where.m4a"_s;
    EXPECT_FALSE(files.isMissing(path));
    EXPECT_TRUE(waitFor([&] { return files.isMissing(path); }));
    files.forgetAll();
    EXPECT_TRUE(files.isMissing(path)) << "the last answer stands until there is a new one";
}
