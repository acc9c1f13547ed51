// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Foundation/Result.h"

#include <QString>

namespace ArtworkTool {

/// Writes a JPEG or PNG file as the only cover of an MPEG-4 audio file, in place. A helper program examines the image,
/// so that this one needs none of the desktop's libraries. Waits for it; any thread. After an error the audio file is
/// unchanged.
[[nodiscard]] Platform::Result<> write(const QString& path, const QString& image);

} // namespace ArtworkTool
