// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Foundation/FileManager.h"

/// Files of the user that stand in a temporary folder while they are worked on. A note beside each says where it came
/// from: when a crash leaves it there, it goes home before the folder is emptied.
namespace Platform::MovedFiles {

/// Moves a file into the temporary folder under the path @p to, which must be free.
[[nodiscard]] FileManager::Problem moveAway(const QString& from, const QString& to);

/// Says that the file at @p to is no longer missed where it came from.
void forget(const QString& to);

/// Moves every file with a note back; one whose place is taken by now goes to FileManager::unfinishedFolder().
/// @return names in the folder of those that neither place took (a full disk), and of their notes: they must stay.
QStringList bringBack(const QString& folder);

} // namespace Platform::MovedFiles
