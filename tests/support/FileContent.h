// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QStringList>
#include <gtest/gtest.h>

/// Small files of a test, written and read as a whole.
namespace FileContent {

/// Creates a file, or replaces its content.
inline void put(const QString& path, const QByteArray& content) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << qPrintable(path);
    ASSERT_EQ(file.write(content), content.size()) << qPrintable(path);
}

/// The content of a file; @p otherwise when it cannot be opened.
inline QByteArray get(const QString& path, const QByteArray& otherwise = {}) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : otherwise;
}

/// The names of the files in a folder, including hidden ones.
inline QStringList namesIn(const QString& folder) {
    return QDir(folder).entryList(QDir::Files | QDir::Hidden | QDir::System, QDir::Name);
}

} // namespace FileContent
