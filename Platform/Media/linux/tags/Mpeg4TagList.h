// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Media/linux/mpeg4/Mpeg4Boxes.h"

#include <QByteArray>

namespace Platform::Media {

/// One item of a tag list, as stored in the file.
struct TagItem {
    std::uint32_t type = 0;
    QByteArray bytes; ///< including the header
};

/// The items of the tag list in @p index, a "moov" whose tree was read. Items beyond a total of 80 MiB are omitted: no
/// real cover is that large.
[[nodiscard]] std::vector<TagItem> tagItems(const ByteSource& source, const Mpeg4Box& index);

/// @p index, a complete "moov", with @p items, the concatenated item boxes, as its tag list. A missing list is created
/// behind the tables of the audio. Nothing, with @p why, when the index is damaged.
[[nodiscard]] std::optional<QByteArray> withTagItems(QByteArray index, const QByteArray& items, QString& why);

/// A file that contains only tags.
[[nodiscard]] QByteArray fileOfTags(const QByteArray& items);

} // namespace Platform::Media
