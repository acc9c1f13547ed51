// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Foundation/FileManager.h"

/// Files of the user that are moved into a temporary folder while they are changed. A note beside each file holds its
/// original path: after a crash the file is moved back there before the folder is emptied.
namespace Platform::MovedFiles {

/// Moves a file into the temporary folder under the path @p to, which must be free.
Result<> moveAway(const QString& from, const QString& to);

/// FileManager::setAside() for a file in a temporary folder. When it cannot be moved (a full disk), it stays in that
/// folder under a free name made from @p wishedName, with a note: emptying the folder then keeps the file and moves it
/// to FileManager::unfinishedFolder() as soon as there is room. @return its path.
[[nodiscard]] QString setAside(const QString& path, const QString& wishedName);

/// Whether the file at @p path is kept when its folder is emptied: it has a note, or it is the note of such a file.
[[nodiscard]] bool isKept(const QString& path);

/// Removes the note of the file at @p to.
void forget(const QString& to);

/// Moves every file with a note back; when its original path is taken, it goes to FileManager::unfinishedFolder().
/// @return the names, in the folder, of files that could not be moved (a full disk) and of their notes: they must be
/// kept.
QStringList bringBack(const QString& folder);

} // namespace Platform::MovedFiles
