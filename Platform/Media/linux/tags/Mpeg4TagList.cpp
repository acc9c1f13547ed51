// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Media/linux/tags/Mpeg4TagList.h"

#include "Platform/Media/linux/mpeg4/ByteWriter.h"

#include <QCoreApplication>

#include <initializer_list>
#include <iterator>

using namespace Qt::StringLiterals;

namespace Platform::Media {
namespace {

constexpr std::int64_t mostTags = std::int64_t(80) << 20;
constexpr char path[4][5] = {"moov", "udta", "meta", "ilst"};

/// The header of a box with @p content bytes.
QByteArray boxHeader(const char (&type)[5], qsizetype content) {
    ByteWriter header;
    header.u32(std::uint64_t(8 + content)).code(type);
    return {reinterpret_cast<const char*>(header.data().data()), qsizetype(header.size())};
}

/// A box with all @p parts. Its memory is taken once: a cover can have megabytes.
QByteArray box(const char (&type)[5], std::initializer_list<QByteArrayView> parts) {
    qsizetype content = 0;
    for (const QByteArrayView part : parts)
        content += part.size();
    QByteArray bytes = boxHeader(type, content);
    bytes.reserve(bytes.size() + content);
    for (const QByteArrayView part : parts)
        bytes.append(part);
    return bytes;
}

/// Wraps @p boxes in those boxes of the path that are missing when only the first @p depth exist.
QByteArray surrounded(QByteArray boxes, std::size_t depth) {
    const QByteArray version(4, '\0');
    const QByteArray handler = version + QByteArray(4, '\0') + "mdirappl" + QByteArray(9, '\0');
    if (depth < 3)
        boxes = box("meta", {version, box("hdlr", {handler}), boxes});
    return depth < 2 ? box("udta", {boxes}) : boxes;
}

/// The boxes "moov", "udta", "meta", "ilst", each inside the one before, as far as they exist.
std::vector<const Mpeg4Box*> pathToTags(const Mpeg4Box& index) {
    std::vector<const Mpeg4Box*> longest{&index};
    for (const Mpeg4Box& udta : index.children) {
        if (udta.type != fourCharCode("udta"))
            continue;
        if (longest.size() == 1)
            longest.push_back(&udta);
        for (const Mpeg4Box& meta : udta.children) {
            // A "keys" box means that the items are numbered, a different kind of list that most players do not show.
            if (meta.type != fourCharCode("meta") || meta.child(fourCharCode("keys")))
                continue;
            if (const Mpeg4Box* const list = meta.child(fourCharCode("ilst")))
                return {&index, &udta, &meta, list};
            if (longest.size() == 2)
                longest = {&index, &udta, &meta};
        }
    }
    return longest;
}

} // namespace

std::vector<TagItem> tagItems(const ByteSource& source, const Mpeg4Box& index) {
    std::vector<TagItem> items;
    const auto boxes = pathToTags(index);
    std::int64_t left = mostTags;
    if (boxes.size() < std::size(path))
        return items;
    for (const Mpeg4Box& item : boxes.back()->children) {
        if (item.length > left)
            continue;
        QByteArray bytes(qsizetype(item.length), Qt::Uninitialized);
        if (!source.readAll(item.offset, {reinterpret_cast<std::uint8_t*>(bytes.data()), std::size_t(bytes.size())}))
            continue;
        left -= item.length;
        items.push_back({item.type, bytes});
    }
    return items;
}

std::optional<QByteArray> withTagItems(QByteArray index, const QByteArray& items, QString& why) {
    const MemoryBytes bytes(index);
    auto moov = readBoxHeader(bytes, 0, index.size());
    if (!moov || !readBoxTree(bytes, *moov, why))
        return std::nullopt;
    const auto boxes = pathToTags(*moov);
    const std::size_t depth = boxes.size();

    // From the innermost box outwards: each box around the list is rewritten around its changed child.
    QByteArray changed = surrounded(box("ilst", {items}), depth);
    const Mpeg4Box* replaced = depth == std::size(path) ? boxes.back() : nullptr;
    for (std::size_t i = std::min(depth, std::size(path) - 1) - 1;; --i) {
        const Mpeg4Box& around = *boxes[i];
        const auto& children = around.children;
        std::int64_t from = children.empty() ? around.inner : children.back().end();
        std::int64_t to = from;
        if (replaced) {
            from = replaced->offset;
            to = replaced->end();
            // Other programs leave padding behind the list; it is not needed here.
            for (const Mpeg4Box& next : children)
                if (next.offset == to && next.type == fourCharCode("free") && i + 2 == std::size(path))
                    to = next.end();
        } else if (!children.empty() && children.back().openEnded) {
            why = QCoreApplication::translate("Media", "its last box has no size");
            return std::nullopt;
        }
        if (i == 0) {
            // In place: copying the index of an hour, 650 kB, into fresh memory takes as long as writing it.
            index.replace(from, to - from, changed);
            index.replace(0, around.content(), boxHeader(path[0], index.size() - around.content()));
            return index;
        }
        const QByteArrayView all(index);
        changed = box(path[i], {all.sliced(around.content(), from - around.content()), changed,
                                all.sliced(to, around.end() - to)});
        replaced = &around;
    }
}

QByteArray fileOfTags(const QByteArray& items) {
    return box("ftyp", {"M4A ", QByteArray(4, '\0')}) + box("moov", {surrounded(box("ilst", {items}), 1)});
}

} // namespace Platform::Media
