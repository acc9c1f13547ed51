// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Media/linux/tags/PatchedFile.h"

#include "Platform/Foundation/linux/Descriptor.h"

#include <algorithm>
#include <cerrno>
#include <unistd.h>

namespace Platform::Media {
namespace {

// Chunk offsets are rewritten four bytes at a time; a piece for each of them would be slow.
constexpr qint64 grain = 65536;

QByteArray bytesOf(const TagLib::ByteVector& data) {
    return {data.data(), static_cast<qsizetype>(data.size())};
}

} // namespace

PatchedFile::PatchedFile(int fd, qint64 size) : fd_(fd), fileSize_(size) {
    if (size > 0)
        pieces_.push_back({0, size, {}});
}

qint64 PatchedFile::size() const {
    qint64 sum = 0;
    for (const Piece& piece : pieces_)
        sum += piece.length;
    return sum;
}

QByteArray PatchedFile::read(qint64 offset, qint64 length) const {
    QByteArray result;
    if (offset < 0 || length <= 0)
        return result;
    length = std::min(length, size() - offset);
    if (length <= 0)
        return result;
    result.resize(length);
    qint64 filled = 0;
    qint64 pieceBegin = 0;
    for (const Piece& piece : pieces_) {
        const qint64 begin = std::max(offset, pieceBegin);
        const qint64 end = std::min(offset + length, pieceBegin + piece.length);
        if (begin < end) {
            char* const to = result.data() + (begin - offset);
            const qint64 within = begin - pieceBegin;
            if (piece.fileOffset < 0) {
                std::copy_n(piece.bytes.constData() + within, end - begin, to);
            } else {
                const std::int64_t count =
                    readAllAt(fd_, to, static_cast<std::size_t>(end - begin), piece.fileOffset + within);
                if (count < end - begin) {
                    failed_ = true;
                    result.resize(filled + std::max<std::int64_t>(count, 0));
                    return result;
                }
            }
            filled += end - begin;
        }
        pieceBegin += piece.length;
    }
    return result;
}

PatchedFile::Change PatchedFile::change() const {
    Change result;
    const auto isUntouched = [](const Piece& piece, qint64 at) { return piece.fileOffset == at; };
    std::size_t first = 0;
    while (first < pieces_.size() && isUntouched(pieces_[first], result.begin))
        result.begin += pieces_[first++].length;
    result.newEnd = size();
    result.oldEnd = fileSize_;
    if (result.newEnd != result.oldEnd)
        return result;
    for (std::size_t last = pieces_.size(); last > first; --last) {
        const qint64 at = result.newEnd - pieces_[last - 1].length;
        if (!isUntouched(pieces_[last - 1], at))
            break;
        result.newEnd = result.oldEnd = at;
    }
    return result;
}

std::size_t PatchedFile::split(qint64 offset) {
    qint64 begin = 0;
    for (std::size_t i = 0; i < pieces_.size(); ++i) {
        if (begin == offset)
            return i;
        Piece& piece = pieces_[i];
        if (offset < begin + piece.length) {
            const qint64 left = offset - begin;
            Piece right{piece.fileOffset < 0 ? -1 : piece.fileOffset + left, piece.length - left,
                        piece.bytes.mid(left)};
            piece.length = left;
            piece.bytes.truncate(left);
            pieces_.insert(pieces_.begin() + static_cast<std::ptrdiff_t>(i) + 1, std::move(right));
            return i + 1;
        }
        begin += piece.length;
    }
    return pieces_.size();
}

void PatchedFile::replace(qint64 start, qint64 replace, const QByteArray& data) {
    const qint64 all = size();
    start = std::clamp<qint64>(start, 0, all);
    const qint64 end = std::clamp<qint64>(start + replace, start, all);
    const auto first = static_cast<std::ptrdiff_t>(split(start));
    const auto last = static_cast<std::ptrdiff_t>(split(end));
    pieces_.erase(pieces_.begin() + first, pieces_.begin() + last);
    if (!data.isEmpty())
        pieces_.insert(pieces_.begin() + first, {-1, data.size(), data});
}

void PatchedFile::bringIntoMemory(qint64 begin, qint64 end) {
    for (;;) {
        qint64 at = 0;
        std::size_t index = 0;
        const auto isWanted = [&] {
            const Piece& piece = pieces_[index];
            return piece.fileOffset >= 0 && at < end && begin < at + piece.length;
        };
        while (index < pieces_.size() && !isWanted())
            at += pieces_[index++].length;
        if (index == pieces_.size())
            return;
        const qint64 from = std::max(at, begin / grain * grain);
        const qint64 to = std::min(at + pieces_[index].length, (end + grain - 1) / grain * grain);
        QByteArray bytes = read(from, to - from);
        bytes.resize(to - from); // a disk that fails is told by failed()
        replace(from, to - from, bytes);
    }
}

void PatchedFile::overwrite(qint64 start, const QByteArray& data) {
    const qint64 all = size();
    if (start > all)
        replace(all, 0, QByteArray(start - all, '\0'));
    const qint64 end = std::min(start + data.size(), size());
    bringIntoMemory(start, end);
    qint64 at = 0;
    for (Piece& piece : pieces_) {
        const qint64 from = std::max(at, start);
        const qint64 to = std::min(at + piece.length, end);
        if (from < to)
            std::copy_n(data.constData() + (from - start), to - from, piece.bytes.data() + (from - at));
        at += piece.length;
    }
    if (start + data.size() > end)
        replace(end, 0, data.mid(end - start));
}

TagLib::ByteVector PatchedFile::readBlock(unsigned long length) {
    const QByteArray bytes = read(position_, static_cast<qint64>(std::min<unsigned long>(length, 1UL << 40)));
    position_ += bytes.size();
    return {bytes.constData(), static_cast<unsigned int>(bytes.size())};
}

void PatchedFile::writeBlock(const TagLib::ByteVector& data) {
    overwrite(position_, bytesOf(data));
    position_ += data.size();
}

void PatchedFile::insert(const TagLib::ByteVector& data, unsigned long start, unsigned long replaced) {
    replace(static_cast<qint64>(start), static_cast<qint64>(replaced), bytesOf(data));
    position_ = static_cast<qint64>(start + data.size());
}

void PatchedFile::removeBlock(unsigned long start, unsigned long length) {
    replace(static_cast<qint64>(start), static_cast<qint64>(length), {});
}

void PatchedFile::seek(long offset, Position position) {
    const qint64 base = position == Beginning ? 0 : position == Current ? position_ : size();
    position_ = std::max<qint64>(0, base + offset);
}

void PatchedFile::truncate(long length) {
    const qint64 all = size();
    if (length < all)
        replace(length, all - length, {});
}

} // namespace Platform::Media
