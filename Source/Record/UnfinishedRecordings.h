// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Source/Record/RecordNotice.h"

#include <optional>

/// Recordings that could not be finished, in this run or earlier ones, are in FileManager::unfinishedFolder(). Each
/// start shows them until the user has dismissed the notice. Main thread.
namespace UnfinishedRecordings {

/// Paths of the files in the folder that were not seen yet, oldest first.
[[nodiscard]] QStringList unseen();
/// Later starts do not show these files. Paths in other folders are ignored.
void markSeen(const QStringList& paths);
/// The notice about the unseen files, for the start; nothing when there are none.
[[nodiscard]] std::optional<RecordNotice> notice();

} // namespace UnfinishedRecordings
