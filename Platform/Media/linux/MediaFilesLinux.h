// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Media/ExtAudioFile.h"

namespace Platform {

/// Media files on libav.
[[nodiscard]] std::unique_ptr<MediaFiles> createMediaFiles();

} // namespace Platform
