// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Media/linux/mpeg4/Mpeg4Offsets.h"

#include "Platform/Foundation/linux/Descriptor.h"

#include <algorithm>
#include <cerrno>
#include <limits>

namespace Platform {
namespace {

/// Adds @p delta to those of @p count numbers of @p size bytes that are at least @p from. False when one would become
/// too large.
bool moveNumbers(char* numbers, std::uint64_t count, int size, std::int64_t from, std::int64_t delta) {
    for (; count > 0; --count, numbers += size) {
        const std::uint64_t place = bigEndian(numbers, size);
        if (place < std::uint64_t(from))
            continue;
        const std::uint64_t moved = place + std::uint64_t(delta);
        if (size == 4 && moved > std::numeric_limits<std::uint32_t>::max())
            return false;
        for (int i = 0; i < size; ++i)
            numbers[i] = char(moved >> (8 * (size - 1 - i)));
    }
    return true;
}

bool moveTables(QByteArray& index, const Mpeg4Box& box, std::int64_t from, std::int64_t delta) {
    const int size = box.type == fourCharCode("stco") ? 4 : box.type == fourCharCode("co64") ? 8 : 0;
    if (size > 0) {
        char* const table = index.data() + box.content(); // readBoxTree() checked the count
        return moveNumbers(table + 8, bigEndian(table + 4, 4), size, from, delta);
    }
    return std::ranges::all_of(box.children,
                               [&](const Mpeg4Box& child) { return moveTables(index, child, from, delta); });
}

} // namespace

bool moveChunkOffsets(QByteArray& index, std::int64_t from, std::int64_t delta) {
    QString why;
    const MemoryBytes bytes(index);
    auto moov = readBoxHeader(bytes, 0, index.size());
    return moov && readBoxTree(bytes, *moov, why) && moveTables(index, *moov, from, delta);
}

int moveFragment(int fd, Mpeg4Box box, std::int64_t from, std::int64_t delta) {
    const FileBytes bytes(fd);
    box.offset += delta;
    box.inner += delta;
    QString why;
    if (box.type == fourCharCode("mfra")) // optional seek index with absolute offsets; players do not need it
        return writeAllAt(fd, "free", box.offset + 4) ? 0 : errno;
    if (box.type != fourCharCode("moof"))
        return 0;
    if (!readBoxTree(bytes, box, why))
        return EINVAL;
    for (const Mpeg4Box& part : box.children) {
        const Mpeg4Box* const head = part.child(fourCharCode("tfhd"));
        if (!head || (numberAt(bytes, head->content(), 4) & 1) == 0)
            continue; // its audio is addressed relative to the fragment
        char place[8];
        if (!bytes.readAll(head->content() + 8, {reinterpret_cast<std::uint8_t*>(place), sizeof place}) ||
            !moveNumbers(place, 1, sizeof place, from, delta) ||
            !writeAllAt(fd, QByteArrayView(place, sizeof place), head->content() + 8))
            return EIO;
    }
    return 0;
}

} // namespace Platform
