// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Foundation/FileManager.h"

/// Files of the user that stand in a temporary folder while they are worked on. A note beside each says where it came
/// from: when a crash leaves it there, it goes home before the folder is emptied.
namespace Platform::MovedFiles {

/// Moves a file into the temporary folder under the path @p to, which must be free.
[[nodiscard]] FileManager::Problem moveAway(const QString& from, const QString& to);

/// FileManager::setAside() for a file that lies in a temporary folder. When nothing takes it (a full disk) it stays in
/// that folder, under a free name made from @p wishedName and with a note, so that emptying the folder spares it and
/// moves it to FileManager::unfinishedFolder() as soon as there is room. @return where it is.
[[nodiscard]] QString setAside(const QString& path, const QString& wishedName);

/// Whether the file at @p path stays when its folder is emptied, or is the note of one that does.
[[nodiscard]] bool isKept(const QString& path);

/// Says that the file at @p to is no longer missed where it came from.
void forget(const QString& to);

/// Moves every file with a note home; one whose place is taken by now goes to FileManager::unfinishedFolder().
/// @return names in the folder of those that neither place took (a full disk), and of their notes: they must stay.
QStringList bringBack(const QString& folder);

} // namespace Platform::MovedFiles
