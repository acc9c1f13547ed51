// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Audio/AudioTypes.h"

#include <QByteArrayView>
#include <QString>

#include <cstdint>
#include <functional>
#include <initializer_list>
#include <optional>
#include <span>
#include <vector>

// The reader of MPEG-4 boxes. Any size and any table in a file may be wrong: nothing here reads outside a box, and
// memory use is limited. ByteWriter.h is the writer.

namespace Platform {

/// Random access to the bytes of a file or of memory.
class ByteSource {
public:
    virtual ~ByteSource() = default;
    [[nodiscard]] virtual std::int64_t size() const = 0;
    /// Reads all of @p out, or returns false.
    [[nodiscard]] virtual bool readAll(std::int64_t offset, std::span<std::uint8_t> out) const = 0;
};

/// An open file, which the caller owns, with its size at construction.
class FileBytes final : public ByteSource {
public:
    explicit FileBytes(int fd);
    [[nodiscard]] std::int64_t size() const override { return size_; }
    [[nodiscard]] bool readAll(std::int64_t offset, std::span<std::uint8_t> out) const override;

private:
    int fd_;
    std::int64_t size_ = 0;
};

/// Memory that the caller owns.
class MemoryBytes final : public ByteSource {
public:
    explicit MemoryBytes(QByteArrayView bytes) : bytes_(bytes) {}
    [[nodiscard]] std::int64_t size() const override { return bytes_.size(); }
    [[nodiscard]] bool readAll(std::int64_t offset, std::span<std::uint8_t> out) const override;

private:
    QByteArrayView bytes_;
};

/// A big-endian number of @p size bytes.
[[nodiscard]] std::uint64_t bigEndian(const void* bytes, int size);
/// The number at an offset; 0 when it cannot be read.
[[nodiscard]] std::uint64_t numberAt(const ByteSource& source, std::int64_t offset, int size);

struct Mpeg4Box {
    std::uint32_t type = 0; ///< four letters, see fourCharCode()
    std::int64_t offset = 0;
    std::int64_t header = 8;          ///< length of the header, 8 or 16
    std::int64_t length = 0;          ///< including the header
    bool openEnded = false;           ///< its size field says "up to the end"
    std::int64_t inner = 0;           ///< offset of its first child
    std::vector<Mpeg4Box> children{}; ///< see readBoxTree()

    [[nodiscard]] std::int64_t content() const { return offset + header; }
    [[nodiscard]] std::int64_t end() const { return offset + length; }
    [[nodiscard]] const Mpeg4Box* child(std::uint32_t wanted) const;
};

/// Reads the header of the box at @p at, inside a range that ends at @p end. Nothing when there is no box, or when its
/// size is impossible. The caller must check whether the length goes beyond @p end.
[[nodiscard]] std::optional<Mpeg4Box> readBoxHeader(const ByteSource& source, std::int64_t at, std::int64_t end);

/// Reads the boxes inside @p box, and inside those, as far as they can contain tags or tables of chunk offsets. False,
/// with @p why, when a box does not fit into its parent or when a table claims more entries than it has.
[[nodiscard]] bool readBoxTree(const ByteSource& source, Mpeg4Box& box, QString& why);

/// A part of a source: the content of a box, or everything.
struct ByteRange {
    std::int64_t from = 0;
    std::int64_t to = 0;
};
/// Calls @p visit with the type and the content of each box in a part, until it returns false or a box is invalid.
void eachBox(const ByteSource& source, ByteRange part, const std::function<bool(std::uint32_t, ByteRange)>& visit);
/// The content of the first box along a path of types.
[[nodiscard]] std::optional<ByteRange> findBox(const ByteSource& source, ByteRange part,
                                               std::initializer_list<std::uint32_t> path);
/// The content of the first box along the path; empty when the box is missing or longer than 4 MiB.
[[nodiscard]] std::vector<std::uint8_t> boxBytes(const ByteSource& source, ByteRange part,
                                                 std::initializer_list<std::uint32_t> path);

} // namespace Platform
