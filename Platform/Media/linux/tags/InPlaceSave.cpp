// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// How a file gets a new index without a moment at which it has none:
//
//   ... [moov: old]                    before
//   ... [moov: old][free: new]         appended and synced; nobody reads it
//   ... [moov: old][moov: new]         four bytes of its type are overwritten; of two indexes the first one counts
//   ... [free     ][moov: new]         four bytes of the old one's type are overwritten
//
// The next save uses the room that is free now:
//
//   ... [free: newer][moov: new]       written and synced
//   ... [moov: newer][moov: new]       it is the first now, so it counts
//   ... [moov: newer]                  the file is cut behind it
//
// A size field is only overwritten where it lies in one sector, so that a power cut leaves the old or the new value. A
// type that is torn is an unknown box, which readers skip.
#include "Platform/Media/linux/tags/InPlaceSave.h"

#include "Platform/Foundation/ReplacementFile.h"
#include "Platform/Foundation/linux/LockedFile.h"
#include "Platform/Foundation/linux/OpenFile.h"
#include "Platform/Media/linux/mpeg4/ByteWriter.h"
#include "Platform/Media/linux/mpeg4/Mpeg4Layout.h"
#include "Platform/Media/linux/mpeg4/Mpeg4Offsets.h"

#include <QFileInfo>

#include <algorithm>
#include <cerrno>
#include <limits>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace Platform::Media {
namespace {

constexpr auto savePatience = std::chrono::seconds(10);
constexpr auto readPatience = std::chrono::seconds(2);
constexpr std::int64_t largestIndex = std::int64_t(256) << 20; // two weeks of audio with a cover
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

/// Opens and locks a file. False, with @p why, also when it is in use for longer than the patience; it is then open.
bool openLockedFile(const QString& path, bool writable, LockKind kind, std::chrono::milliseconds patience,
                    Descriptor& file, QString& why) {
    const auto open = [&] {
        OpenedFile opened = openFile(path, {.writable = writable});
        why = opened.why;
        errno = opened.error;
        return std::move(opened.file);
    };
    switch (openLocked(path, open, kind, patience, file)) {
    case FileLock::Result::Held:
        return true;
    case FileLock::Result::Elsewhere:
        why = u"another program is changing it"_s;
        return false;
    case FileLock::Result::Failed:
        break;
    }
    if (file) // a file system without locks
        return true;
    if (why.isEmpty())
        why = qt_error_string(errno);
    return false;
}

/// Changes the index of an open file in place.
class IndexWriter {
public:
    IndexWriter(int fd, const Mpeg4Layout& layout) : fd_(fd), layout_(layout), old_(layout.moov()) {}

    /// Whether something can stand behind the last box.
    [[nodiscard]] bool canAppend() const {
        const Mpeg4Box& last = layout_.boxes.back();
        return !last.openEnded || (last.length <= std::numeric_limits<std::uint32_t>::max() && last.header == header &&
                                   isInOneSector(last.offset, 4));
    }

    /// @p index has a header of eight bytes. @return false with errno; the file then has the old index.
    bool write(const QByteArray& index) {
        if (!tidyUp())
            return false;
        const auto room = std::ranges::find_if(layout_.boxes, [&](const Mpeg4Box& box) {
            const std::int64_t rest = box.length - index.size();
            return isFree(box) && box.header == header && box.end() <= layout_.end && (rest == 0 || rest >= header);
        });
        if (room == layout_.boxes.end())
            return append(index) && retire();
        if (!fill(*room, index.mid(header), room->offset + header, index.first(4)))
            return false;
        return room->offset < old_.offset ? cutOff(*room, index.size()) : retire();
    }

private:
    bool put(QByteArrayView bytes, std::int64_t offset) const { return writeAllAt(fd_, bytes, offset); }
    bool sync() const { return ::fdatasync(fd_) == 0 || errno == EINVAL; }

    /// Takes away what an interrupted save left, so that no stale index ever becomes the first one.
    bool tidyUp() {
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
        if (const Mpeg4Box& last = layout_.boxes.back(); last.openEnded) {
            changed = true;
            if (!put(boxHeader(last.length, "free").first(4), last.offset))
                return false;
        }
        return !changed || sync();
    }

    bool append(const QByteArray& index) {
        QByteArray bytes = boxHeader(index.size(), "free") + index.mid(header);
        Mpeg4Box room{.offset = layout_.end, .length = index.size()};
        if (!isInOneSector(room.offset, header)) {
            room.offset += 2 * header;
            bytes.prepend(boxHeader(2 * header, "free") + QByteArray(header, '\0'));
        }
        // The file grows first, in one step: some readers do not take a file that ends within the header of a box.
        if (::ftruncate(fd_, room.end()) == 0 && fill(room, bytes, layout_.end, index.first(4)))
            return true;
        const int error = errno;
        (void)::ftruncate(fd_, layout_.end);
        errno = error;
        return false;
    }

    /// Writes @p content to an empty box and makes this an index of @p size. What is left of the room is a free box
    /// inside of the index at first, and a box of its own when the index gets its true size.
    bool fill(const Mpeg4Box& room, QByteArray content, std::int64_t at, const QByteArray& size) {
        const std::int64_t rest = room.end() - (at + content.size());
        if (rest > 0)
            content += boxHeader(rest, "free");
        if (!put(content, at) || !sync() || !put("moov", room.offset + 4))
            return false;
        isSplit_ = rest > 0 && isInOneSector(room.offset, 4);
        return (!isSplit_ || put(size, room.offset)) && sync();
    }

    /// The new index stands in front of the old one and counts already.
    bool cutOff(const Mpeg4Box& room, std::int64_t length) {
        std::int64_t end = room.offset + (isSplit_ ? length : room.length);
        for (const Mpeg4Box& box : layout_.boxes)
            if (&box != &old_ && !isFree(box))
                end = std::max(end, box.end());
        return end < old_.end() ? ::ftruncate(fd_, end) == 0 : put("free", old_.offset + 4);
    }

    /// The new index stands behind the old one and counts when the old one is gone: as part of the empty box in front
    /// of it, so that the next save finds one large room, or as an empty box.
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

/// Writes the file with another index in the old one's place, beside @p path first.
bool makeAnew(const QString& path, int source, const Mpeg4Layout& layout, QByteArray index, QString& why) {
    const Mpeg4Box& old = layout.moov();
    const std::int64_t rest = std::max<std::int64_t>(0, layout.end - old.end());
    const std::int64_t delta = index.size() - old.length;
    if (rest > 0 && delta != 0) {
        if (!moveChunkOffsets(index, old.end(), delta)) {
            why = u"its index cannot hold more"_s;
            return false;
        }
    }
    ReplacementFile out(path);
    int error = out.openLike(source);
    if (error == 0 &&
        !(copyBytes(source, 0, old.offset, out.descriptor(), 0) && writeAllAt(out.descriptor(), index, old.offset) &&
          copyBytes(source, old.end(), rest, out.descriptor(), old.offset + index.size())))
        error = errno;
    for (std::size_t i = layout.index + 1; error == 0 && delta != 0 && i < layout.boxes.size(); ++i)
        error = moveFragment(out.descriptor(), layout.boxes[i], old.end(), delta);
    if (error == 0)
        error = out.commit();
    if (error != 0)
        why = qt_error_string(error);
    return error == 0;
}

/// The layout of an open file and its index after an edit, without a change when they are the same.
struct Edited {
    Mpeg4Layout layout;
    QByteArray index;
    bool isChanged = true;
};

std::optional<Edited> editIndex(int fd, const IndexEdit& edit, QString& why) {
    const FileBytes file(fd);
    auto layout = readLayout(file, why);
    if (!layout)
        return std::nullopt;
    if (!layout->complete)
        why = u"the file is cut off"_s;
    else if (layout->moov().length > largestIndex)
        why = u"its index is too large"_s;
    if (!why.isEmpty())
        return std::nullopt;
    QByteArray index(qsizetype(layout->moov().length), Qt::Uninitialized);
    if (!file.readAll(layout->moov().offset,
                      {reinterpret_cast<std::uint8_t*>(index.data()), std::size_t(index.size())})) {
        why = u"it cannot be read"_s;
        return std::nullopt;
    }
    auto edited = edit(index, why);
    if (!edited)
        return std::nullopt;
    const bool isChanged = *edited != index;
    return Edited{std::move(*layout), std::move(*edited), isChanged};
}

} // namespace

bool saveInPlace(const QString& givenPath, const IndexEdit& edit, QString& why) {
    // Behind a link the file itself is changed.
    const QString real = QFileInfo(givenPath).canonicalFilePath();
    const QString path = real.isEmpty() ? givenPath : real;
    Descriptor file;
    if (!openLockedFile(path, true, LockKind::Exclusive, savePatience, file, why))
        return false;
    const auto edited = editIndex(file.get(), edit, why);
    if (!edited)
        return false;
    if (!edited->isChanged)
        return true;
    IndexWriter writer(file.get(), edited->layout);
    if (edited->layout.fragmented || !writer.canAppend())
        return makeAnew(path, file.get(), edited->layout, edited->index, why);
    if (writer.write(edited->index))
        return true;
    why = qt_error_string(errno);
    return false;
}

bool saveCopy(const QString& source, const QString& destination, const IndexEdit& edit, QString& why) {
    // Locked although it is only read: a save of another process would change it meanwhile.
    Descriptor file;
    if (!openLockedFile(source, false, LockKind::Exclusive, savePatience, file, why))
        return false;
    const auto edited = editIndex(file.get(), edit, why);
    if (!edited)
        return false;
    if (QFileInfo::exists(destination) && !QFileInfo(destination).isFile()) {
        why = u"something stands there that is no file"_s; // a device, a pipe, a folder
        return false;
    }
    return makeAnew(destination, file.get(), edited->layout, edited->index, why);
}

bool openForReading(const QString& path, Descriptor& file, QString& why) {
    // A program that holds the file for longer may be another one: reading beside it is better than not at all.
    return openLockedFile(path, false, LockKind::Shared, readPatience, file, why) || file;
}

} // namespace Platform::Media
