// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Media/linux/mpeg4/Mpeg4Atoms.h"

namespace Platform::Media {

/// One item of a tag list as it stands in the file.
struct TagItem {
    QByteArray name;
    QByteArray bytes; ///< header included
};

[[nodiscard]] std::vector<TagItem> tagItems(const PatchedFile& content, const Mpeg4Atoms& atoms);

/// Puts @p items, whole ones one behind the other, in the place of those of the tag list, which is made where it is
/// missing: behind the tables of the audio, so that these are not written anew whenever the tags grow. Where audio
/// moves for it, every table that says where it is follows. @return false, with the reason in @p why, when the result
/// would be no sound file; the content is then of no use.
[[nodiscard]] bool replaceTagItems(PatchedFile& content, const Mpeg4Atoms& atoms, const QByteArray& items,
                                   QString& why);

/// A file of nothing but tags.
[[nodiscard]] QByteArray fileOfTags(const QByteArray& items);

} // namespace Platform::Media
