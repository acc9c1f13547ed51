// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

#include <taglib/tiostream.h>

#include <vector>

namespace Platform::Media {

/// A file as it would be after a number of edits, none of which reach the disk: what is unchanged stays in the file and
/// costs nothing, what is new is held in memory. TagLib edits it like any stream; whoever made it then sees what is to
/// be written, and where.
class PatchedFile final : public TagLib::IOStream {
public:
    /// A stretch of the edited content: bytes of the file from an offset on, or new bytes.
    struct Piece {
        qint64 fileOffset = -1; ///< -1: the bytes are in memory
        qint64 length = 0;
        QByteArray bytes;
    };
    /// What differs: the bytes from @c begin to @c oldEnd of the file become those from @c begin to @c newEnd.
    struct Change {
        qint64 begin = 0, oldEnd = 0, newEnd = 0;
    };

    /// Reads from @p fd, which stays the caller's, as long as it lives.
    PatchedFile(int fd, qint64 size);

    /// At most @p length bytes from @p offset on; fewer at the end or when the disk fails (see failed()).
    [[nodiscard]] QByteArray read(qint64 offset, qint64 length) const;
    [[nodiscard]] Change change() const;
    [[nodiscard]] const std::vector<Piece>& pieces() const { return pieces_; }
    [[nodiscard]] qint64 size() const;
    [[nodiscard]] bool failed() const { return failed_; }
    /// Puts @p data in the place of @p replace bytes.
    void replace(qint64 start, qint64 replace, const QByteArray& data);
    void overwrite(qint64 start, const QByteArray& data);

    TagLib::FileName name() const override { return ""; }
    TagLib::ByteVector readBlock(unsigned long length) override;
    void writeBlock(const TagLib::ByteVector& data) override;
    void insert(const TagLib::ByteVector& data, unsigned long start = 0, unsigned long replace = 0) override;
    void removeBlock(unsigned long start = 0, unsigned long length = 0) override;
    bool readOnly() const override { return false; }
    bool isOpen() const override { return true; }
    void seek(long offset, Position position = Beginning) override;
    long tell() const override { return position_; }
    long length() override { return size(); }
    void truncate(long length) override;

private:
    /// Makes a piece begin at @p offset and answers its index.
    std::size_t split(qint64 offset);
    void bringIntoMemory(qint64 begin, qint64 end);

    int fd_;
    qint64 fileSize_;
    qint64 position_ = 0;
    std::vector<Piece> pieces_;
    mutable bool failed_ = false;
};

} // namespace Platform::Media
