// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Media/linux/tags/InPlaceSave.h"

#include "Platform/Foundation/ReplacementFile.h"
#include "Platform/Foundation/linux/LockedFile.h"
#include "Platform/Foundation/linux/OpenFile.h"
#include "Platform/Media/linux/mpeg4/Mpeg4IndexWriter.h"
#include "Platform/Media/linux/mpeg4/Mpeg4Offsets.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <algorithm>
#include <cerrno>

using namespace Qt::StringLiterals;

namespace Platform::Media {
namespace {

constexpr auto savePatience = std::chrono::seconds(10);
constexpr auto readPatience = std::chrono::seconds(2);
constexpr std::int64_t largestIndex = std::int64_t(256) << 20; // two weeks of audio with a cover

/// Opens and locks a file. False, with @p why; also false when another process holds the lock for longer than the
/// patience, but then the file is open.
bool openLockedFile(const QString& path, bool writable, LockKind kind, std::chrono::milliseconds patience,
                    Descriptor& file, QString& why) {
    const auto open = [&] {
        OpenedFile opened = openFile(path, {.writable = writable});
        why = opened.error.text;
        errno = opened.code;
        return std::move(opened.file);
    };
    const auto locked = openLocked(path, open, kind, patience, file);
    if (locked)
        return true;
    if (locked.error().kind == Error::Kind::Busy) {
        why = QCoreApplication::translate("Media", "another program is changing it");
        return false;
    }
    if (file) // a file system that does not support locks
        return true;
    if (why.isEmpty())
        why = locked.error().text;
    return false;
}

/// Writes a copy of the file with the new index beside @p path, then replaces the file.
bool makeAnew(const QString& path, int source, const Mpeg4Layout& layout, QByteArray index, QString& why) {
    const Mpeg4Box& old = layout.moov();
    const std::int64_t rest = std::max<std::int64_t>(0, layout.end - old.end());
    const std::int64_t delta = index.size() - old.length;
    if (rest > 0 && delta != 0) {
        if (!moveChunkOffsets(index, old.end(), delta)) {
            why = QCoreApplication::translate("Media", "its index cannot hold more");
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

/// The layout of an open file and the items of its new tag list.
struct Edited {
    Mpeg4Layout layout;
    QByteArray items;
    bool isChanged = true;
};

std::optional<Edited> editTags(int fd, const TagsEdit& edit, QString& why) {
    const FileBytes file(fd);
    auto layout = readLayout(file, why);
    if (!layout)
        return std::nullopt;
    if (!layout->complete)
        why = QCoreApplication::translate("Media", "the file is cut off");
    else if (layout->moov().length > largestIndex)
        why = QCoreApplication::translate("Media", "its index is too large");
    if (!why.isEmpty())
        return std::nullopt;
    const auto old = tagItems(file, layout->moov());
    auto items = edit(old, why);
    if (!items)
        return std::nullopt;
    QByteArray before;
    for (const TagItem& item : old)
        before += item.bytes;
    const bool isChanged = *items != before;
    return Edited{std::move(*layout), std::move(*items), isChanged};
}

/// The index of an open file with the new tag list.
std::optional<QByteArray> newIndex(int fd, const Edited& edited, QString& why) {
    const Mpeg4Box& old = edited.layout.moov();
    QByteArray index(qsizetype(old.length), Qt::Uninitialized);
    if (!FileBytes(fd).readAll(old.offset,
                               {reinterpret_cast<std::uint8_t*>(index.data()), std::size_t(index.size())})) {
        why = QCoreApplication::translate("Media", "it cannot be read");
        return std::nullopt;
    }
    return withTagItems(std::move(index), edited.items, why);
}

} // namespace

bool saveInPlace(const QString& givenPath, const TagsEdit& edit, QString& why) {
    // Changes the target of a symbolic link, not the link.
    const QString real = QFileInfo(givenPath).canonicalFilePath();
    const QString path = real.isEmpty() ? givenPath : real;
    Descriptor file;
    if (!openLockedFile(path, true, LockKind::Exclusive, savePatience, file, why))
        return false;
    const auto edited = editTags(file.get(), edit, why);
    if (!edited)
        return false;
    if (!edited->isChanged)
        return true;
    const auto index = newIndex(file.get(), *edited, why);
    if (!index)
        return false;
    if (!canReplaceIndex(edited->layout))
        return makeAnew(path, file.get(), edited->layout, *index, why);
    if (replaceIndex(file.get(), edited->layout, *index))
        return true;
    why = qt_error_string(errno);
    return false;
}

bool saveCopy(const QString& source, const QString& destination, const TagsEdit& edit, QString& why) {
    // A read needs the lock too: a save of another process would change the file meanwhile.
    Descriptor file;
    if (!openLockedFile(source, false, LockKind::Exclusive, savePatience, file, why))
        return false;
    const auto edited = editTags(file.get(), edit, why);
    if (!edited)
        return false;
    const auto index = newIndex(file.get(), *edited, why);
    if (!index)
        return false;
    if (QFileInfo::exists(destination) && !QFileInfo(destination).isFile()) {
        why = QCoreApplication::translate("Media", "that path is not a regular file"); // a device, a pipe, a folder
        return false;
    }
    return makeAnew(destination, file.get(), edited->layout, *index, why);
}

bool openForReading(const QString& path, Descriptor& file, QString& why) {
    // The lock may belong to another program: reading without it is better than failing.
    return openLockedFile(path, false, LockKind::Shared, readPatience, file, why) || file;
}

} // namespace Platform::Media
