// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

#include <functional>
#include <optional>

namespace Platform {

/// File operations that lose nothing. Thread-safe, blocking; paths are absolute and never interpreted.
namespace FileManager {

/// What went wrong, in words for a person ("No space left on device"); empty when nothing did.
using Problem = QString;

/// Moves a file and never overwrites: fails when something stands at @p to. Across file systems a hidden copy is made
/// beside the target, synced, and renamed; the source goes last.
[[nodiscard]] Problem move(const QString& from, const QString& to);

/// move() that asks @p nextName for another target as long as one stands in the way. @p landed receives the path used.
[[nodiscard]] Problem moveToFreeName(const QString& from, const QString& to,
                                     const std::function<QString(const QString& taken)>& nextName, QString& landed);

/// Copies beside the target, syncs, renames; with an existing target the call fails unless @p replace.
[[nodiscard]] Problem copy(const QString& from, const QString& to, bool replace = false);

/// Returns when the content of a file, and its name, are on the disk.
[[nodiscard]] Problem sync(const QString& path);

/// Whether some process has the file open for writing. False also when it cannot be told: another user's file, a file
/// system without leases.
[[nodiscard]] bool isOpenForWriting(const QString& path);

/// Unlinks a regular file or a link, never a folder. A missing file is no problem.
[[nodiscard]] Problem removeFile(const QString& path);

/// Writes the whole content beside the target, syncs it and the folder, and renames it over the target.
[[nodiscard]] Problem writeAtomically(const QString& path, const QByteArray& content, int mode = 0644);

/// Reads a regular file of at most @p largest bytes. Never waits for a pipe or a device. @return nothing on failure,
/// with @p why.
[[nodiscard]] std::optional<QByteArray> read(const QString& path, qint64 largest, Problem& why);

/// Bytes that a program without special rights may still write to the file system of @p path (or of its nearest
/// existing parent); -1 when it cannot be told.
[[nodiscard]] qint64 availableBytes(const QString& path);

/// The folder for recordings that could not be finished: $XDG_DATA_HOME/<bundle id>/Unfinished, made when missing.
[[nodiscard]] QString unfinishedFolder();

/// Moves @p path into @p folder under a free name made from @p wishedName. @p landed receives the path used.
[[nodiscard]] Problem moveIntoFolder(const QString& path, const QString& folder, const QString& wishedName,
                                     QString& landed);

/// moveIntoFolder() with unfinishedFolder(). @return where the file is; the old path when it could not be moved. A file
/// in a temporary folder needs MovedFiles::setAside(), or it is removed with the folder.
[[nodiscard]] QString setAside(const QString& path, const QString& wishedName);

} // namespace FileManager
} // namespace Platform
