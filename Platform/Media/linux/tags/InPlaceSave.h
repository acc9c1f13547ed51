// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Foundation/linux/Descriptor.h"
#include "Platform/Media/linux/tags/PatchedFile.h"

#include <functional>

#include <QString>

namespace Platform::Media {

/// Edits a file so that a crash at any moment costs nothing. What the save overwrites is first copied into a hidden
/// file beside it and synced; restoreInterruptedSave() puts it back. When more than 32 MiB would have to move
/// (the index stands in front of the audio), the whole file is made anew beside it and renamed.
///
/// @p edit changes the content in memory and answers whether it is to be written. Blocks; other processes that save
/// this way wait. @return false, with the reason in @p why, and the file as it was.
[[nodiscard]] bool saveInPlace(const QString& path, const std::function<bool(PatchedFile&, QString& why)>& edit,
                               QString& why);

/// Writes the edited content of @p source to @p destination, beside it first and renamed when it is whole and synced;
/// the source is only read. @return false, with the reason in @p why, and nothing new at the destination.
[[nodiscard]] bool saveCopy(const QString& source, const QString& destination,
                            const std::function<bool(PatchedFile&, QString& why)>& edit, QString& why);

/// Opens a file whose tags are to be read, so that no save goes on meanwhile, and undoes one that a crash interrupted.
/// @return false, with the reason in @p why, when it is no file that can be opened.
[[nodiscard]] bool openForReading(const QString& path, Descriptor& file, QString& why);

/// Undoes a save that a crash interrupted; a look at one name when there was none. @return whether something was put
/// back.
bool restoreInterruptedSave(const QString& path);

} // namespace Platform::Media
