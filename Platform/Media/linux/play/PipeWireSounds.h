// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Media/Sound.h"

namespace Platform {

class MediaFiles;

/// Sounds that are read through @p files, which must outlive them, and played on the sound server.
[[nodiscard]] std::unique_ptr<Sounds> createSounds(MediaFiles& files);

} // namespace Platform
