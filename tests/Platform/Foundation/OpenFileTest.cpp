// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Foundation/linux/OpenFile.h"

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <cerrno>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using Platform::openFile;

namespace {

struct OpenFile : testing::Test {
    QTemporaryDir folder;
    QString path = folder.filePath(u"file"_s);
    [[nodiscard]] QByteArray name() const { return QFile::encodeName(path); }

    void SetUp() override {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("0123456789");
    }
};

} // namespace

TEST_F(OpenFile, OpensARegularFile) {
    const auto opened = openFile(path);
    EXPECT_TRUE(opened.file);
    EXPECT_EQ(opened.status.st_size, 10);
    EXPECT_EQ(opened.error.text, QString());
    EXPECT_EQ(Platform::readFile(path, {}).valueOr({}), QByteArray("0123456789"));
}

TEST_F(OpenFile, ReportsTheSystemsError) {
    const auto opened = openFile(folder.filePath(u"missing"_s));
    EXPECT_FALSE(opened.file);
    EXPECT_EQ(opened.code, ENOENT);
    EXPECT_EQ(opened.error.text, u"No such file or directory"_s);
}

TEST_F(OpenFile, RefusesAFolderAPipeAndADeviceWithoutWaiting) {
    EXPECT_EQ(openFile(folder.path()).error.text, u"is a folder"_s);
    EXPECT_TRUE(openFile(folder.path()).isFolder());
    const QString pipe = folder.filePath(u"pipe"_s);
    ASSERT_EQ(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    EXPECT_EQ(openFile(pipe).error.text, u"not a regular file"_s);
    EXPECT_EQ(openFile(pipe, {.writable = true}).error.text, u"not a regular file"_s);
    EXPECT_EQ(openFile(u"/dev/null"_s).error.text, u"not a regular file"_s);
    EXPECT_EQ(openFile(u"/dev/null"_s).code, 0);
}

TEST_F(OpenFile, RefusesALinkWhenTheRulesForbidIt) {
    const QString link = folder.filePath(u"link"_s);
    ASSERT_TRUE(QFile::link(path, link));
    EXPECT_TRUE(openFile(link).file);
    EXPECT_EQ(openFile(link, {.noLink = true}).error.text, u"is a link"_s);
}

TEST_F(OpenFile, RefusesTooLargeAFileBeforeAllocatingMemory) {
    EXPECT_TRUE(openFile(path, {.largest = 10}).file);
    EXPECT_EQ(openFile(path, {.largest = 9}).error.text, u"is larger than 9 bytes"_s);
    ASSERT_EQ(::truncate(name().constData(), off_t(200) << 30), 0); // sparse
    EXPECT_EQ(Platform::readFile(path, {}).error().text, u"is larger than 64.00 MiB"_s);
}

TEST_F(OpenFile, RefusesAnotherUsersFileWhereItsOwnerMatters) {
    if (::geteuid() == 0) {
        ASSERT_EQ(::chown(name().constData(), 12345, 12345), 0);
        EXPECT_TRUE(openFile(path).file);
        EXPECT_EQ(openFile(path, {.ownUser = true}).error.text, u"belongs to another user"_s);
        ASSERT_EQ(::chown(name().constData(), 0, 0), 0);
    }
    EXPECT_TRUE(openFile(path, {.ownUser = true}).file);
}
