// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Media/linux/mpeg4/Mpeg4Layout.h"

#include <QByteArray>

namespace Platform {

/// Whether replaceIndex() can change a file with this layout. Fragmented files, and some whose last box has no size,
/// must be rewritten instead.
[[nodiscard]] bool canReplaceIndex(const Mpeg4Layout& layout);

/// Replaces the index of an open file in place. @p index is a complete "moov" with a header of eight bytes. The file
/// contains a complete index at every moment, the old one or the new one; the audio is neither moved nor written.
/// Blocks on the disk.
/// @return false with errno; the file then still plays.
[[nodiscard]] bool replaceIndex(int fd, const Mpeg4Layout& layout, const QByteArray& index);

} // namespace Platform
