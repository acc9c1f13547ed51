// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Desktop/PlayerCover.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include <sys/stat.h>

using namespace Qt::StringLiterals;
using Platform::readPlayerCover;

namespace {

bool writeCover(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

} // namespace

TEST(PlayerCover, IsReadFromALocalFile) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"a b%20c#d.png"_s);
    ASSERT_TRUE(writeCover(path, "bytes"));
    EXPECT_EQ(readPlayerCover(QUrl::fromLocalFile(path)).valueOr({}), "bytes");
}

TEST(PlayerCover, IsReadFromTheAddressItself) {
    EXPECT_EQ(readPlayerCover(QUrl(u"data:image/png;base64,Ynl0ZXM="_s)).valueOr({}), "bytes");
    EXPECT_EQ(readPlayerCover(QUrl(u"data:image/png;BASE64,Ynl0ZXM%3D"_s)).valueOr({}), "bytes");
    EXPECT_EQ(readPlayerCover(QUrl(u"data:,by%74es"_s)).valueOr({}), "bytes");
    EXPECT_FALSE(readPlayerCover(QUrl(u"data:image/png;base64,####"_s)));
    EXPECT_FALSE(readPlayerCover(QUrl(u"data:image/png"_s)));
}

TEST(PlayerCover, IsNeverFetchedFromANetwork) {
    for (const auto& address :
         {u"http://127.0.0.1/cover.png"_s, u"https://example.org/c.jpg"_s, u"file://server/share/cover.png"_s,
          u"ftp://localhost/c.png"_s, u"cover.png"_s, QString()})
        EXPECT_FALSE(readPlayerCover(QUrl(address))) << qPrintable(address);
}

TEST(PlayerCover, IsRefusedWhenItIsTooLargeOrNoFile) {
    const QTemporaryDir folder;
    const QString large = folder.filePath(u"large.png"_s);
    ASSERT_TRUE(writeCover(large, "x"));
    ASSERT_TRUE(QFile(large).resize(Platform::LargestPlayerCover + 1)); // sparse
    EXPECT_FALSE(readPlayerCover(QUrl::fromLocalFile(large)));
    EXPECT_FALSE(readPlayerCover(QUrl::fromLocalFile(folder.path())));
    EXPECT_FALSE(readPlayerCover(QUrl::fromLocalFile(folder.filePath(u"missing.png"_s))));
    const QString pipe = folder.filePath(u"pipe"_s);
    ASSERT_EQ(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    EXPECT_FALSE(readPlayerCover(QUrl::fromLocalFile(pipe))) << "and it does not wait";
    const QByteArray text = "data:image/png;base64," + QByteArray(Platform::LargestPlayerCover + 3, 'x').toBase64();
    EXPECT_FALSE(readPlayerCover(QUrl::fromEncoded(text)));
}
