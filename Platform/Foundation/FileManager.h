// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Foundation/Result.h"

#include <QByteArray>
#include <QString>

#include <functional>

namespace Platform {

/// File operations that never lose data. Thread-safe, blocking; paths are absolute and never interpreted. The text of
/// an error says why, without the path ("No space left on device").
namespace FileManager {

/// Moves a file and never overwrites: fails when @p to exists. Across file systems a hidden copy is made beside the
/// target, synced and renamed; the source is removed last.
Result<> move(const QString& from, const QString& to);

/// Like move(), but asks @p nextName for another target while the target exists. @return the path used.
Result<QString> moveToFreeName(const QString& from, const QString& to,
                               const std::function<QString(const QString& taken)>& nextName);

/// Copies to a hidden file beside the target, syncs and renames it. Fails when the target exists, unless @p replace.
Result<> copy(const QString& from, const QString& to, bool replace = false);

/// Returns when the content of a file and its name are on the disk.
Result<> sync(const QString& path);

/// Whether some process has the file open for writing. Also false when this cannot be determined: another user's file,
/// a file system without leases.
[[nodiscard]] bool isOpenForWriting(const QString& path);

/// Unlinks a regular file or a link, never a folder. A missing file is no error.
Result<> removeFile(const QString& path);

/// Writes the content to a hidden file beside the target, syncs it and the folder, and renames it over the target.
Result<> writeAtomically(const QString& path, const QByteArray& content, int mode = 0644);

/// Reads a regular file of at most @p largest bytes. Never blocks on a pipe or a device.
Result<QByteArray> read(const QString& path, qint64 largest);

/// Bytes that an unprivileged program can still write to the file system of @p path (or of its nearest existing
/// parent); -1 when unknown.
[[nodiscard]] qint64 availableBytes(const QString& path);

/// The folder for recordings that could not be finished: $XDG_DATA_HOME/<bundle id>/Unfinished, created when missing.
[[nodiscard]] QString unfinishedFolder();

/// Moves @p path into @p folder under a free name made from @p wishedName. @return the path used.
Result<QString> moveIntoFolder(const QString& path, const QString& folder, const QString& wishedName);

/// moveIntoFolder() with unfinishedFolder(). @return where the file is; the old path when it could not be moved. A file
/// in a temporary folder needs MovedFiles::setAside(), or it is removed with the folder.
[[nodiscard]] QString setAside(const QString& path, const QString& wishedName);

} // namespace FileManager
} // namespace Platform
