// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Media/linux/PatchedFile.h"

#include <taglib/mp4tag.h>

#include <functional>
#include <vector>

namespace Platform::Media {

inline constexpr const char* artworkItem = "covr";

/// Edits the tags and keeps every item but those named in @p changed. TagLib drops items whose type it does not know.
[[nodiscard]] bool editTags(PatchedFile& content, const std::vector<const char*>& changed,
                            const std::function<void(TagLib::MP4::Tag&)>& edit, QString& why);

} // namespace Platform::Media
