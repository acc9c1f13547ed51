// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Foundation/FileManager.h"

/// Files of the user that are in a temporary folder while they are changed. A note beside each file holds the path that
/// it came from: after a crash the file is moved back there before the folder is emptied.
namespace Platform::MovedFiles {

/// Moves a file into the temporary folder under the path @p to, which must be free.
[[nodiscard]] FileManager::Problem moveAway(const QString& from, const QString& to);

/// FileManager::setAside() for a file in a temporary folder. When it cannot be moved (a full disk), it stays in that
/// folder under a free name made from @p wishedName, with a note: emptying the folder then keeps the file and moves it
/// to FileManager::unfinishedFolder() as soon as there is room. @return where it is.
[[nodiscard]] QString setAside(const QString& path, const QString& wishedName);

/// Whether the file at @p path stays when its folder is emptied, or is the note of one that does.
[[nodiscard]] bool isKept(const QString& path);

/// Removes the note of the file at @p to.
void forget(const QString& to);

/// Moves every file with a note back; a file whose place is taken by now goes to FileManager::unfinishedFolder().
/// @return names in the folder of the files that could not be moved (a full disk), and of their notes: they must stay.
QStringList bringBack(const QString& folder);

} // namespace Platform::MovedFiles
