// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Media/linux/tags/Mpeg4TagList.h"

#include "Platform/Media/linux/tags/PatchedFile.h"

#include <QtEndian>

#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;

namespace Platform::Media {
namespace {

// Room behind a list that had to grow, so that the next texts fit without anything else being moved.
constexpr qint64 room = 1024;
// What a list that shrank may leave empty behind it; a large cover that went is not kept as zeros.
constexpr qint64 mostEmpty = qint64(1) << 20;
constexpr qint64 headerSize = 8;
constexpr qint64 largestShortSize = std::numeric_limits<quint32>::max();

QByteArray bigEndian(quint32 number) {
    QByteArray bytes(4, '\0');
    qToBigEndian(number, bytes.data());
    return bytes;
}

QByteArray box(const char* name, const QByteArray& body) {
    return bigEndian(static_cast<quint32>(headerSize + body.size())) + QByteArray(name, 4) + body;
}

QByteArray emptyBox(qint64 length) {
    return box("free", QByteArray(length - headerSize, '\0'));
}

/// What must stand around the boxes of a tag list when only the first @p depth of "moov", "udta", "meta" are there.
QByteArray surrounded(QByteArray boxes, std::size_t depth) {
    const QByteArray version(4, '\0');
    const QByteArray handler = version + QByteArray(4, '\0') + "mdirappl" + QByteArray(9, '\0');
    if (depth < 3)
        boxes = box("meta", version + box("hdlr", handler) + boxes);
    if (depth < 2)
        boxes = box("udta", boxes);
    return boxes;
}

/// Writes that a box is longer by @p more bytes. False: its size has no room for that.
bool grow(PatchedFile& content, const Mpeg4Atom& atom, qint64 more) {
    constexpr quint32 sizeIsBehindTheName = 1;
    if (content.read(atom.offset, 4) == bigEndian(sizeIsBehindTheName)) {
        QByteArray size(8, '\0');
        qToBigEndian(static_cast<quint64>(atom.length + more), size.data());
        content.overwrite(atom.offset + headerSize, size);
        return true;
    }
    // Also in the place of a zero, which stands for "up to the end".
    if (atom.length + more > largestShortSize)
        return false;
    content.overwrite(atom.offset, bigEndian(static_cast<quint32>(atom.length + more)));
    return true;
}

/// Adds @p delta to those of @p count numbers that name a place from @p from on. False: one of them has no room for it.
template <typename Number>
bool moveNumbers(PatchedFile& content, qint64 at, qint64 count, qint64 from, qint64 delta) {
    constexpr auto size = static_cast<qint64>(sizeof(Number));
    QByteArray numbers = content.read(at, count * size);
    bool changed = false;
    for (qsizetype i = 0; i + size <= numbers.size(); i += size) {
        const auto place = qFromBigEndian<Number>(numbers.constData() + i);
        if (place < static_cast<quint64>(from))
            continue;
        const auto moved = static_cast<Number>(place + static_cast<Number>(delta));
        if (delta > 0 && moved < place)
            return false;
        qToBigEndian(moved, numbers.data() + i);
        changed = true;
    }
    if (changed)
        content.overwrite(at, numbers);
    return true;
}

/// Corrects where the file says that its audio is, before what stands from @p from on moves by @p delta bytes.
bool moveOffsets(PatchedFile& content, const std::vector<Mpeg4Atom>& atoms, qint64 from, qint64 delta) {
    for (const Mpeg4Atom& atom : atoms) {
        const auto count = [&] { return qFromBigEndian<quint32>(content.read(atom.content + 4, 4).constData()); };
        bool good = true;
        if (atom.name == "stco")
            good = moveNumbers<quint32>(content, atom.content + 8, count(), from, delta);
        else if (atom.name == "co64")
            good = moveNumbers<quint64>(content, atom.content + 8, count(), from, delta);
        else if (atom.name == "tfhd" && (content.read(atom.content, 4).at(3) & 1)) // it names the base of its runs
            good = moveNumbers<quint64>(content, atom.content + 8, 1, from, delta);
        if (!good || !moveOffsets(content, atom.children, from, delta))
            return false;
    }
    return true;
}

} // namespace

std::vector<TagItem> tagItems(const PatchedFile& content, const Mpeg4Atoms& atoms) {
    std::vector<TagItem> items;
    if (const Mpeg4Atom* list = atoms.tagList())
        for (const Mpeg4Atom& item : list->children)
            items.push_back({item.name, content.read(item.offset, item.length)});
    return items;
}

bool replaceTagItems(PatchedFile& content, const Mpeg4Atoms& atoms, const QByteArray& items, QString& why) {
    std::vector<const Mpeg4Atom*> parents = atoms.tagPath();
    const std::size_t depth = parents.size();
    const QByteArray list = box("ilst", items);
    qint64 at = 0;
    qint64 oldLength = 0; // the list and what is empty behind it
    if (depth == 4) {
        at = parents.back()->offset;
        oldLength = parents.back()->length;
        parents.pop_back();
        for (const Mpeg4Atom& next : parents.back()->children)
            if (next.name == "free" && next.offset == at + oldLength)
                oldLength += next.length;
    } else {
        const Mpeg4Atom& inner = *parents.back();
        at = inner.children.empty() ? inner.content : inner.children.back().offset + inner.children.back().length;
    }

    QByteArray boxes = list;
    if (const qint64 rest = oldLength - list.size(); rest >= headerSize && rest <= mostEmpty)
        boxes += emptyBox(rest);
    else if (rest != 0)
        boxes += emptyBox(headerSize + room);
    boxes = surrounded(boxes, depth);

    if (const qint64 delta = boxes.size() - oldLength; delta != 0) {
        const Mpeg4Atom& moov = *parents.front();
        const qint64 behind = moov.offset + moov.length;
        bool good = moveOffsets(content, atoms.top, behind, delta);
        for (const Mpeg4Atom* parent : parents)
            good = good && grow(content, *parent, delta);
        if (!good) {
            why = u"its index cannot hold more"_s;
            return false;
        }
        // This table of where fragments begin is a mere help for seeking: players do without.
        for (const Mpeg4Atom& atom : atoms.top)
            if (atom.name == "mfra" && atom.offset >= behind)
                content.overwrite(atom.offset + 4, "free");
    }
    if (content.read(at, oldLength) != boxes)
        content.replace(at, oldLength, boxes);
    return true;
}

QByteArray fileOfTags(const QByteArray& items) {
    return box("ftyp", QByteArray("M4A ") + QByteArray(4, '\0')) + box("moov", surrounded(box("ilst", items), 1));
}

} // namespace Platform::Media
