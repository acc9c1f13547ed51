// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Foundation/Result.h"

#include <QByteArray>
#include <QUrl>

namespace Platform {

/// A larger picture is refused.
inline constexpr qint64 LargestPlayerCover = qint64(10) << 20;

/// The bytes of the picture that a media player names as a cover: of a local file, or in the address itself ("data:").
/// Nothing is ever read from a network. Whether it is a picture is not examined. Blocks as long as the disk does; any
/// thread.
[[nodiscard]] Result<QByteArray> readPlayerCover(const QUrl& cover);

} // namespace Platform
