// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Media/linux/mpeg4/Mpeg4Boxes.h"

#include "Platform/Foundation/linux/Descriptor.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace Platform {
namespace {

constexpr int deepestTree = 16;
constexpr int mostBoxes = 1'000'000; // about a day of fragments; limits the time that a damaged file can take

constexpr bool isOneOf(std::uint32_t type, std::span<const std::uint32_t> types) {
    return std::ranges::find(types, type) != types.end();
}

class TreeReader {
public:
    TreeReader(const ByteSource& source, QString& why) : source_(source), why_(why) {}

    bool read(Mpeg4Box& box, int depth) {
        static constexpr std::array containers{fourCharCode("moov"), fourCharCode("udta"), fourCharCode("mdia"),
                                               fourCharCode("meta"), fourCharCode("ilst"), fourCharCode("stbl"),
                                               fourCharCode("minf"), fourCharCode("moof"), fourCharCode("traf"),
                                               fourCharCode("trak")};
        if (!isOneOf(box.type, containers))
            return tableFits(box);
        if (depth > deepestTree)
            return refuse(QCoreApplication::translate("Media", "too deeply nested"));
        const bool hasVersion = box.type == fourCharCode("meta") && isFullBox(box.content());
        box.inner = box.content() + (hasVersion ? 4 : 0);
        if (box.inner > box.end())
            return refuse(QCoreApplication::translate("Media", "a box of impossible size"));
        for (std::int64_t at = box.inner; at < box.end(); at = box.children.back().end()) {
            if (box.end() - at == 4)
                return true; // some writers end a list of boxes with four zero bytes
            if (++count_ > mostBoxes)
                return refuse(QCoreApplication::translate("Media", "too many boxes"));
            auto child = readBoxHeader(source_, at, box.end());
            if (!child)
                return refuse(QCoreApplication::translate("Media", "a box of impossible size"));
            if (child->end() > box.end())
                return refuse(QCoreApplication::translate("Media", "a box larger than the one around it"));
            if (!read(*child, depth + 1))
                return false;
            box.children.push_back(std::move(*child));
        }
        return true;
    }

private:
    bool refuse(const QString& why) {
        why_ = why;
        return false;
    }

    /// Tables that are rewritten when audio moves: with a wrong count the rewrite would go beyond the box.
    bool tableFits(const Mpeg4Box& box) {
        const std::int64_t length = box.length - box.header;
        const std::int64_t entry = box.type == fourCharCode("stco") ? 4 : box.type == fourCharCode("co64") ? 8 : 0;
        if (entry > 0 && (length < 8 || std::int64_t(numberAt(source_, box.content() + 4, 4)) * entry > length - 8))
            return refuse(QCoreApplication::translate("Media", "a table that is larger than its box"));
        if (box.type == fourCharCode("tfhd") &&
            (length < 8 || ((numberAt(source_, box.content(), 4) & 1) != 0 && length < 16)))
            return refuse(QCoreApplication::translate("Media", "a box of impossible size"));
        return true;
    }

    /// Some "meta" boxes have version and flags before their first child, others do not.
    [[nodiscard]] bool isFullBox(std::int64_t at) const {
        static constexpr std::array children{fourCharCode("hdlr"), fourCharCode("ilst"), fourCharCode("mhdr"),
                                             fourCharCode("ctry"), fourCharCode("lang")};
        return !isOneOf(std::uint32_t(numberAt(source_, at + 4, 4)), children);
    }

    const ByteSource& source_;
    QString& why_;
    int count_ = 0;
};

} // namespace

FileBytes::FileBytes(int fd) : fd_(fd) {
    struct stat status {};
    if (::fstat(fd, &status) == 0)
        size_ = status.st_size;
}

bool FileBytes::readAll(std::int64_t offset, std::span<std::uint8_t> out) const {
    return offset >= 0 &&
           Platform::readAllAt(fd_, out.data(), out.size(), offset) == static_cast<std::int64_t>(out.size());
}

bool MemoryBytes::readAll(std::int64_t offset, std::span<std::uint8_t> out) const {
    if (offset < 0 || offset > bytes_.size() || std::int64_t(out.size()) > bytes_.size() - offset)
        return false;
    std::copy_n(bytes_.data() + offset, out.size(), out.begin());
    return true;
}

std::uint64_t bigEndian(const void* bytes, int size) {
    std::uint64_t value = 0;
    for (int i = 0; i < size; ++i)
        value = (value << 8) | static_cast<const std::uint8_t*>(bytes)[i];
    return value;
}

std::uint64_t numberAt(const ByteSource& source, std::int64_t offset, int size) {
    std::uint8_t bytes[8];
    return source.readAll(offset, std::span(bytes, std::size_t(size))) ? bigEndian(bytes, size) : 0;
}

const Mpeg4Box* Mpeg4Box::child(std::uint32_t wanted) const {
    const auto found = std::ranges::find(children, wanted, &Mpeg4Box::type);
    return found == children.end() ? nullptr : &*found;
}

std::optional<Mpeg4Box> readBoxHeader(const ByteSource& source, std::int64_t at, std::int64_t end) {
    std::uint8_t head[16];
    if (end - at < 8 || !source.readAll(at, std::span(head, 8)))
        return std::nullopt;
    Mpeg4Box box;
    box.offset = at;
    box.type = std::uint32_t(bigEndian(head + 4, 4));
    box.length = std::int64_t(bigEndian(head, 4));
    if (box.length == 0) {
        box.openEnded = true;
        box.length = end - at;
    } else if (box.length == 1) {
        constexpr std::uint64_t largest = std::uint64_t(1) << 62;
        if (end - at < 16 || !source.readAll(at, head) || bigEndian(head + 8, 8) > largest)
            return std::nullopt;
        box.header = 16;
        box.length = std::int64_t(bigEndian(head + 8, 8));
    }
    box.inner = box.content();
    return box.length < box.header ? std::nullopt : std::optional(box);
}

bool readBoxTree(const ByteSource& source, Mpeg4Box& box, QString& why) {
    return TreeReader(source, why).read(box, 0);
}

void eachBox(const ByteSource& source, ByteRange part, const std::function<bool(std::uint32_t, ByteRange)>& visit) {
    std::int64_t at = part.from;
    for (int i = 0; i < mostBoxes; ++i) {
        const auto box = readBoxHeader(source, at, part.to);
        if (!box || box->end() > part.to || !visit(box->type, {box->content(), box->end()}))
            return;
        at = box->end();
    }
}

std::optional<ByteRange> findBox(const ByteSource& source, ByteRange part, std::initializer_list<std::uint32_t> path) {
    for (const std::uint32_t wanted : path) {
        std::optional<ByteRange> found;
        eachBox(source, part, [&](std::uint32_t type, ByteRange content) {
            if (type == wanted)
                found = content;
            return !found;
        });
        if (!found)
            return std::nullopt;
        part = *found;
    }
    return part;
}

std::vector<std::uint8_t> boxBytes(const ByteSource& source, ByteRange part,
                                   std::initializer_list<std::uint32_t> path) {
    constexpr std::int64_t longest = 1 << 22;
    const auto box = findBox(source, part, path);
    if (!box || box->to - box->from > longest)
        return {};
    std::vector<std::uint8_t> bytes(std::size_t(box->to - box->from));
    if (!source.readAll(box->from, bytes))
        bytes.clear();
    return bytes;
}

} // namespace Platform
