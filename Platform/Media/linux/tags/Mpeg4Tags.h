// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Media/linux/tags/InPlaceSave.h"

#include <taglib/mp4tag.h>

#include <vector>

namespace Platform::Media {

inline constexpr const char (&artworkItem)[5] = "covr";

/// The edit that replaces the items named in @p changed with those that @p edit sets; all other items keep their bytes.
[[nodiscard]] TagsEdit editOfTags(const std::vector<const char*>& changed,
                                  const std::function<void(TagLib::MP4::Tag&)>& edit);

} // namespace Platform::Media
