// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CMakeLists.txt defines the version. The files that packages and software centres read must state the same.
#include <gtest/gtest.h>

#include <QFile>

namespace {
QByteArray content(const char* path) {
    QFile file(QStringLiteral(SONAPHEX_SOURCE_DIR "/") + QString::fromLatin1(path));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}
} // namespace

TEST(Version, IsTheSameInTheChangelogAndInTheMetadata) {
    const QByteArray changelog = content("debian/changelog");
    EXPECT_TRUE(changelog.startsWith("sonaphex (" SONAPHEX_VERSION ")")) << changelog.left(60).constData();
    const QByteArray metadata = content("Resources/com.korvane.Sonaphex.metainfo.xml");
    const auto firstRelease = metadata.indexOf("<release version=");
    EXPECT_EQ(metadata.indexOf("<release version=\"" SONAPHEX_VERSION "\""), firstRelease);
    EXPECT_GE(firstRelease, 0);
}
