// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

#include <functional>
#include <optional>

namespace Platform {

/// File operations that never lose data. Thread-safe, blocking; paths are absolute and never interpreted.
namespace FileManager {

/// The error as a sentence for the user ("No space left on device"); empty on success.
using Problem = QString;

/// Moves a file and never overwrites: fails when @p to exists. Across file systems a hidden copy is made beside the
/// target, synced and renamed; the source is removed last.
[[nodiscard]] Problem move(const QString& from, const QString& to);

/// Like move(), but asks @p nextName for another target while the target exists. @p landed receives the path used.
[[nodiscard]] Problem moveToFreeName(const QString& from, const QString& to,
                                     const std::function<QString(const QString& taken)>& nextName, QString& landed);

/// Copies to a hidden file beside the target, syncs and renames it. Fails when the target exists, unless @p replace.
[[nodiscard]] Problem copy(const QString& from, const QString& to, bool replace = false);

/// Returns when the content of a file and its name are on the disk.
[[nodiscard]] Problem sync(const QString& path);

/// Whether some process has the file open for writing. Also false when this cannot be determined: another user's file,
/// a file system without leases.
[[nodiscard]] bool isOpenForWriting(const QString& path);

/// Unlinks a regular file or a link, never a folder. A missing file is no error.
[[nodiscard]] Problem removeFile(const QString& path);

/// Writes the content to a hidden file beside the target, syncs it and the folder, and renames it over the target.
[[nodiscard]] Problem writeAtomically(const QString& path, const QByteArray& content, int mode = 0644);

/// Reads a regular file of at most @p largest bytes. Never blocks on a pipe or a device. @return nothing on failure,
/// with @p why.
[[nodiscard]] std::optional<QByteArray> read(const QString& path, qint64 largest, Problem& why);

/// Bytes that an unprivileged program can still write to the file system of @p path (or of its nearest existing
/// parent); -1 when unknown.
[[nodiscard]] qint64 availableBytes(const QString& path);

/// The folder for recordings that could not be finished: $XDG_DATA_HOME/<bundle id>/Unfinished, created when missing.
[[nodiscard]] QString unfinishedFolder();

/// Moves @p path into @p folder under a free name made from @p wishedName. @p landed receives the path used.
[[nodiscard]] Problem moveIntoFolder(const QString& path, const QString& folder, const QString& wishedName,
                                     QString& landed);

/// moveIntoFolder() with unfinishedFolder(). @return where the file is; the old path when it could not be moved. A file
/// in a temporary folder needs MovedFiles::setAside(), or it is removed with the folder.
[[nodiscard]] QString setAside(const QString& path, const QString& wishedName);

} // namespace FileManager
} // namespace Platform
