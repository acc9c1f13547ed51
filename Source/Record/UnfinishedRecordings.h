// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Source/Record/RecordNotice.h"

#include <optional>

/// Recordings that could not be finished lie in FileManager::unfinishedFolder(), also those of earlier runs. The user
/// is told of each until he has seen it. Main thread.
namespace UnfinishedRecordings {

/// Paths of the files in the folder that were not seen yet, oldest first.
[[nodiscard]] QStringList unseen();
/// These need not be named again. Paths in other folders are ignored.
void markSeen(const QStringList& paths);
/// What to tell about the unseen ones at a start; nothing when there are none.
[[nodiscard]] std::optional<RecordNotice> notice();

} // namespace UnfinishedRecordings
