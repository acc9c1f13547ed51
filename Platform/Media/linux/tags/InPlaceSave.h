// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Foundation/linux/Descriptor.h"
#include "Platform/Media/linux/tags/Mpeg4TagList.h"

#include <functional>
#include <optional>
#include <vector>

#include <QByteArray>
#include <QString>

namespace Platform::Media {

/// Makes the items of the new tag list, concatenated, from those of the old one; nothing, with @p why, when it cannot.
using TagsEdit = std::function<std::optional<QByteArray>(const std::vector<TagItem>& items, QString& why)>;

/// Replaces the tag list of an MPEG-4 file, and so its index. The file contains a complete index at every moment: if
/// the save is interrupted, the file plays with the old index or with the new one. The audio is neither moved nor
/// written. Fragmented files are rewritten beside the old one, which is then replaced. A file whose items stay the same
/// is not written. Blocks; other processes that save this way wait. @return false, with the reason in @p why; the file
/// is then unchanged.
[[nodiscard]] bool saveInPlace(const QString& path, const TagsEdit& edit, QString& why);

/// Writes a copy of @p source with a new tag list to @p destination, which appears complete or not at all. @return
/// false, with the reason in @p why; no new file is left.
[[nodiscard]] bool saveCopy(const QString& source, const QString& destination, const TagsEdit& edit, QString& why);

/// Opens a file to read its tags. Waits up to two seconds for a save of another process, which reuses the space of old
/// indexes. @return false, with the reason in @p why, when it cannot be opened or is not a regular file.
[[nodiscard]] bool openForReading(const QString& path, Descriptor& file, QString& why);

} // namespace Platform::Media
