// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Foundation/Folders.h"

#include "tests/support/Environment.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

#include <sys/stat.h>
#include <unistd.h>

using namespace Platform;

namespace {

struct Folders : testing::Test {
    QTemporaryDir dir;
    EnvironmentScope homeVariable{"HOME", dir.path().toUtf8()};
    EnvironmentScope cacheVariable{"XDG_CACHE_HOME"};
    EnvironmentScope configVariable{"XDG_CONFIG_HOME"};
    EnvironmentScope dataVariable{"XDG_DATA_HOME"};
    EnvironmentScope runtimeVariable{"XDG_RUNTIME_DIR"};
    EnvironmentScope temporaryVariable{"TMPDIR"};

    [[nodiscard]] QString path(const char* name) const { return dir.filePath(QString::fromUtf8(name)); }
    static mode_t modeOf(const QString& path) {
        struct stat is {};
        stat(QFile::encodeName(path).constData(), &is);
        return is.st_mode & 07777;
    }
};

} // namespace

TEST_F(Folders, AreBelowHomeUnlessTheEnvironmentOverridesThem) {
    EXPECT_EQ(Platform::Folders::home(), dir.path());
    EXPECT_EQ(Platform::Folders::config(), path(".config"));
    EXPECT_EQ(Platform::Folders::cache(), path(".cache"));
    EXPECT_EQ(Platform::Folders::data(), path(".local/share"));
    const EnvironmentScope given("XDG_CONFIG_HOME", "/etc/elsewhere/");
    EXPECT_EQ(Platform::Folders::config(), QStringLiteral("/etc/elsewhere"));
}

TEST_F(Folders, IgnoreARelativePathFromTheEnvironment) {
    const EnvironmentScope given("XDG_DATA_HOME", "share");
    EXPECT_EQ(Platform::Folders::data(), path(".local/share"));
}

TEST_F(Folders, TemporaryUsesTmpdirWhenOnlyTheUserCanEnterIt) {
    QDir().mkpath(path("mine"));
    chmod(qPrintable(path("mine")), 0700);
    const EnvironmentScope given("TMPDIR", path("mine").toUtf8());
    EXPECT_EQ(Platform::Folders::temporary().valueOr({}), path("mine"));
}

TEST_F(Folders, TemporaryUsesTheCacheWhenTmpdirIsOpenToOthers) {
    QDir().mkpath(path("shared"));
    chmod(qPrintable(path("shared")), 0755);
    const EnvironmentScope given("TMPDIR", path("shared").toUtf8());
    EXPECT_EQ(Platform::Folders::temporary().valueOr({}), path(".cache/tmp"));
    EXPECT_EQ(modeOf(path(".cache/tmp")), 0700U);
}

TEST_F(Folders, TemporaryRefusesALinkInPlaceOfItsFolder) {
    QDir().mkpath(path(".cache"));
    QDir().mkpath(path("target"));
    ASSERT_EQ(symlink(qPrintable(path("target")), qPrintable(path(".cache/tmp"))), 0);
    const QString why = Platform::Folders::temporary().error().text;
    EXPECT_TRUE(why.contains(QStringLiteral("is a link"))) << qPrintable(why);
}

TEST_F(Folders, TemporaryMakesAnExistingFolderPrivate) {
    QDir().mkpath(path(".cache/tmp"));
    chmod(qPrintable(path(".cache/tmp")), 0777);
    EXPECT_EQ(Platform::Folders::temporary().valueOr({}), path(".cache/tmp"));
    EXPECT_EQ(modeOf(path(".cache/tmp")), 0700U);
}

TEST_F(Folders, RuntimeFallsBackToAPrivateFolder) {
    EXPECT_EQ(Platform::Folders::runtime(), path(".cache/run"));
    EXPECT_EQ(modeOf(path(".cache/run")), 0700U);
    const EnvironmentScope given("XDG_RUNTIME_DIR", path("run").toUtf8());
    EXPECT_EQ(Platform::Folders::runtime(), path("run"));
}
