// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Media/linux/tags/PatchedFile.h"

#include <taglib/mp4tag.h>

#include <functional>
#include <vector>

namespace Platform::Media {

inline constexpr const char* artworkItem = "covr";

/// Puts the tags that @p edit sets in the place of those that are named in @p changed; every other item stays to the
/// byte.
[[nodiscard]] bool editTags(PatchedFile& content, const std::vector<const char*>& changed,
                            const std::function<void(TagLib::MP4::Tag&)>& edit, QString& why);

} // namespace Platform::Media
