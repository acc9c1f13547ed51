// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/BuiltInAudioRecord/CarbonUtilities.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <unistd.h>

using namespace CarbonUtilities;

namespace {

struct CarbonUtilitiesTest : testing::Test {
    QTemporaryDir dir{QFileInfo(QDir::tempPath()).canonicalFilePath() + QStringLiteral("/sonaphex-XXXXXX")};
    [[nodiscard]] QString path(const char* name) const { return dir.filePath(QString::fromUtf8(name)); }
    [[nodiscard]] QString make(const char* name) const {
        QFile file(path(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        return file.fileName();
    }
    void link(const char* name, const char* target) const {
        EXPECT_EQ(symlink(target, path(name).toUtf8().constData()), 0);
    }
};

} // namespace

TEST_F(CarbonUtilitiesTest, AFileThatIsNotAnAliasResolvesToItself) {
    const QString file = make("música.m4a");
    EXPECT_EQ(resolveAliasFile(file), file);
    EXPECT_EQ(resolveAliasFile(dir.path() + QStringLiteral("/./música.m4a")),
              dir.path() + QStringLiteral("/./música.m4a"));
}

TEST_F(CarbonUtilitiesTest, AnAliasResolvesThroughChains) {
    const QString file = make("end");
    link("third", "end");
    link("second", "third");
    link("first", "second");
    EXPECT_EQ(resolveAliasFile(path("first")), file);
}

TEST_F(CarbonUtilitiesTest, AnAliasOfAFolderResolves) {
    QDir(dir.path()).mkpath(QStringLiteral("folder"));
    link("alias", "folder");
    EXPECT_EQ(resolveAliasFile(path("alias")), path("folder"));
}

TEST_F(CarbonUtilitiesTest, ABrokenOrCircularAliasDoesNotResolve) {
    link("broken", "nowhere");
    link("tick", "tock");
    link("tock", "tick");
    EXPECT_TRUE(resolveAliasFile(path("broken")).isNull());
    EXPECT_TRUE(resolveAliasFile(path("tick")).isNull());
    EXPECT_TRUE(resolveAliasFile(path("missing")).isNull());
}

TEST_F(CarbonUtilitiesTest, AReferenceLeadsBackToItsPath) {
    const QString file = make("a");
    FSRef reference;
    ASSERT_TRUE(getFSRef(file, reference));
    EXPECT_EQ(stringWithFSRef(&reference), file);
    QFile::remove(file);
    EXPECT_TRUE(stringWithFSRef(&reference).isNull());
}

TEST_F(CarbonUtilitiesTest, AMissingFileHasNoReference) {
    FSRef reference;
    EXPECT_FALSE(getFSRef(path("missing"), reference));
    EXPECT_TRUE(stringWithFSRef(nullptr).isNull());
}

TEST_F(CarbonUtilitiesTest, AReferenceHasAPathOfAtMost1024Bytes) {
    QString deep = dir.path();
    while (deep.toUtf8().size() <= 1024)
        deep += u'/' + QString(200, u'd');
    ASSERT_TRUE(QDir().mkpath(deep));
    FSRef reference;
    ASSERT_TRUE(getFSRef(deep, reference));
    EXPECT_TRUE(stringWithFSRef(&reference).isNull());
}
