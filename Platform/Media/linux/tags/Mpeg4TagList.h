// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Media/linux/mpeg4/Mpeg4Boxes.h"

#include <QByteArray>

namespace Platform::Media {

/// One item of a tag list as it stands in the file.
struct TagItem {
    std::uint32_t type = 0;
    QByteArray bytes; ///< header included
};

/// The items of the tag list in @p index, a "moov" whose tree was read. Items beyond 80 MiB in all are left out: a
/// cover of that size is none.
[[nodiscard]] std::vector<TagItem> tagItems(const ByteSource& source, const Mpeg4Box& index);

/// @p index, a whole "moov", with @p items, whole ones one after the other, as its tag list. The list is made where it
/// is missing, behind the tables of the audio. Nothing, with @p why, when the index is damaged.
[[nodiscard]] std::optional<QByteArray> withTagItems(const QByteArray& index, const QByteArray& items, QString& why);

/// A file of nothing but tags.
[[nodiscard]] QByteArray fileOfTags(const QByteArray& items);

} // namespace Platform::Media
