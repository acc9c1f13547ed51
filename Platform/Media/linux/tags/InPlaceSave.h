// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Foundation/linux/Descriptor.h"

#include <functional>
#include <optional>

#include <QByteArray>
#include <QString>

namespace Platform::Media {

/// Makes a new index ("moov", header included) from the old one; nothing, with @p why, when it cannot.
using IndexEdit = std::function<std::optional<QByteArray>(const QByteArray& index, QString& why)>;

/// Gives an MPEG-4 file a new index, so that it holds a whole one at every moment: whatever interrupts the save, the
/// file plays, with the old index or with the new one. The audio is neither moved nor written. Fragmented files are
/// made anew beside and replaced.
///
/// Blocks; other processes that save this way wait. @return false, with the reason in @p why, and the file as it was.
[[nodiscard]] bool saveInPlace(const QString& path, const IndexEdit& edit, QString& why);

/// Writes a copy of @p source with a new index to @p destination, which appears whole or not at all. @return false,
/// with the reason in @p why, and nothing new at the destination.
[[nodiscard]] bool saveCopy(const QString& source, const QString& destination, const IndexEdit& edit, QString& why);

/// Opens a file whose tags are to be read. Waits up to two seconds for a save of another process, which reuses the
/// place of old indexes. @return false, with the reason in @p why, when it is no file that can be opened.
[[nodiscard]] bool openForReading(const QString& path, Descriptor& file, QString& why);

} // namespace Platform::Media
