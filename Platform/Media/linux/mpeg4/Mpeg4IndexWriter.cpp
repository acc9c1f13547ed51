// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Replaces the index of a file so that the file has a whole index at every moment:
//
//   ... [moov: old]                    before
//   ... [moov: old][free: new]         appended and synced; readers skip it
//   ... [moov: old][moov: new]         four bytes of its type are overwritten; readers use the first of two indexes
//   ... [free     ][moov: new]         four bytes of the old one's type are overwritten
//
// The next save uses the free room:
//
//   ... [free: newer][moov: new]       written and synced
//   ... [moov: newer][moov: new]       it is the first now, so readers use it
//   ... [moov: newer]                  the file is truncated behind it
//
// A size field is only overwritten where it lies in one sector, so that a power cut leaves the old or the new value. A
// type that is torn is an unknown box, which readers skip.
#include "Platform/Media/linux/mpeg4/Mpeg4IndexWriter.h"

#include "Platform/Foundation/linux/Descriptor.h"
#include "Platform/Media/linux/mpeg4/ByteWriter.h"

#include <algorithm>
#include <cerrno>
#include <limits>
#include <unistd.h>

namespace Platform {
namespace {

constexpr std::int64_t header = 8;
constexpr std::int64_t sector = 512;

bool isInOneSector(std::int64_t offset, std::int64_t length) {
    return offset / sector == (offset + length - 1) / sector;
}

QByteArray boxHeader(std::int64_t length, const char (&type)[5]) {
    ByteWriter out;
    out.u32(std::uint64_t(length)).code(type);
    return {reinterpret_cast<const char*>(out.data().data()), header};
}

/// Replaces the index of an open file in place.
class IndexWriter {
public:
    IndexWriter(int fd, const Mpeg4Layout& layout) : fd_(fd), layout_(layout), old_(layout.moov()) {}

    bool write(const QByteArray& index) {
        if (!removeLeftovers())
            return false;
        const auto room = std::ranges::find_if(layout_.boxes, [&](const Mpeg4Box& box) {
            const std::int64_t rest = box.length - index.size();
            return isFree(box) && box.header == header && box.end() <= layout_.end && (rest == 0 || rest >= header);
        });
        if (room == layout_.boxes.end())
            return append(index) && retire();
        if (!fill(*room, index))
            return false;
        return room->offset < old_.offset ? cutOff(*room, index.size()) : retire();
    }

private:
    bool put(QByteArrayView bytes, std::int64_t offset) const { return writeAllAt(fd_, bytes, offset); }
    bool sync() const { return ::fdatasync(fd_) == 0 || errno == EINVAL; }

    /// Removes the rest of an interrupted save, so that no stale index can become the first one.
    bool removeLeftovers() {
        if (FileBytes(fd_).size() > layout_.end && ::ftruncate(fd_, layout_.end) != 0)
            return false;
        bool changed = false;
        for (const Mpeg4Box& box : layout_.boxes) {
            if (box.type == old_.type && box.offset > old_.offset && box.end() <= layout_.end) {
                changed = true;
                if (!put("free", box.offset + 4))
                    return false;
            }
        }
        if (const Mpeg4Box& last = layout_.boxes.back(); last.openEnded && last.end() <= layout_.end) {
            changed = true;
            if (!put(boxHeader(last.length, "free").first(4), last.offset))
                return false;
        }
        return !changed || sync();
    }

    bool append(const QByteArray& index) {
        QByteArray headers = boxHeader(index.size(), "free");
        Mpeg4Box room{.offset = layout_.end, .length = index.size()};
        if (!isInOneSector(room.offset, header)) {
            room.offset += 2 * header;
            headers.prepend(boxHeader(2 * header, "free") + QByteArray(header, '\0'));
        }
        // Extends the file first, in one step: some readers reject a file that ends within a box header.
        if (::ftruncate(fd_, room.end()) == 0 && put(headers, layout_.end) && fill(room, index))
            return true;
        const int error = errno;
        [[maybe_unused]] const int cutBack = ::ftruncate(fd_, layout_.end); // else the next save does it
        errno = error;
        return false;
    }

    /// Makes an empty box the index. The rest of the room is first a free box inside the index, and a box of its own
    /// once the index gets its true size.
    bool fill(const Mpeg4Box& room, QByteArrayView index) {
        const std::int64_t rest = room.length - index.size();
        if (!put(index.sliced(header), room.offset + header) ||
            (rest > 0 && !put(boxHeader(rest, "free"), room.offset + index.size())))
            return false;
        if (!sync() || !put("moov", room.offset + 4))
            return false;
        isSplit_ = rest > 0 && isInOneSector(room.offset, 4);
        return (!isSplit_ || put(index.first(4), room.offset)) && sync();
    }

    /// Removes the old index when the new one stands in front of it and is already in use.
    bool cutOff(const Mpeg4Box& room, std::int64_t length) {
        std::int64_t end = room.offset + (isSplit_ ? length : room.length);
        for (const Mpeg4Box& box : layout_.boxes)
            if (&box != &old_ && !isFree(box) && box.end() <= layout_.end)
                end = std::max(end, box.end());
        return end < old_.end() ? ::ftruncate(fd_, end) == 0 : put("free", old_.offset + 4);
    }

    /// Removes the old index when the new one stands behind it. The old one is merged into the empty box in front of
    /// it, so that the next save finds one large room; without such a box it becomes an empty box.
    bool retire() {
        const Mpeg4Box* const before = layout_.index > 0 ? &layout_.boxes[layout_.index - 1] : nullptr;
        const bool joins = before && isFree(*before) && before->header == header && isInOneSector(before->offset, 4) &&
                           before->length + old_.length <= std::numeric_limits<std::uint32_t>::max();
        return (joins ? put(boxHeader(before->length + old_.length, "free").first(4), before->offset)
                      : put("free", old_.offset + 4)) &&
               sync();
    }

    const int fd_;
    const Mpeg4Layout& layout_;
    const Mpeg4Box& old_;
    bool isSplit_ = false;
};

} // namespace

bool canReplaceIndex(const Mpeg4Layout& layout) {
    const Mpeg4Box& last = layout.boxes.back();
    const bool canGetASize = last.length <= std::numeric_limits<std::uint32_t>::max() && isInOneSector(last.offset, 4);
    return !layout.fragmented && (!last.openEnded || canGetASize);
}

bool replaceIndex(int fd, const Mpeg4Layout& layout, const QByteArray& index) {
    return IndexWriter(fd, layout).write(index);
}

} // namespace Platform
