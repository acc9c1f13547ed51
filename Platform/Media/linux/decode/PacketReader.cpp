// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Media/linux/decode/PacketReader.h"

#include <QCoreApplication>

#include <algorithm>
#include <span>

namespace Platform {
namespace {

/// A box with a table: version and flags, the number of entries, the entries. Nothing when the box is too short.
class Table {
public:
    /// @p headBytes: of the fields between the flags and the number of entries.
    Table(const ByteSource& source, ByteRange stbl, std::uint32_t type, std::size_t headBytes, std::size_t entryBytes)
        : headBytes_(headBytes), entryBytes_(entryBytes) {
        constexpr std::int64_t longest = 1 << 28; // sixty days of packets
        const auto box = findBox(source, stbl, {type});
        if (!box || box->to - box->from > longest)
            return;
        bytes_.resize(std::size_t(box->to - box->from));
        const std::size_t entriesAt = 8 + headBytes;
        if (bytes_.size() < entriesAt || !source.readAll(box->from, bytes_))
            return;
        const auto count = std::size_t(bigEndian(bytes_.data() + entriesAt - 4, 4));
        if (count <= (bytes_.size() - entriesAt) / std::max<std::size_t>(1, entryBytes)) {
            count_ = count;
            valid_ = true;
        }
    }
    [[nodiscard]] bool valid() const { return valid_; }
    [[nodiscard]] std::size_t count() const { return count_; }
    /// A number in the fields before the count, or in an entry, at a byte offset.
    [[nodiscard]] std::uint64_t head() const { return bigEndian(bytes_.data() + 4, 4); }
    [[nodiscard]] std::uint64_t entry(std::size_t index, std::size_t at, int size) const {
        return bigEndian(bytes_.data() + 8 + headBytes_ + index * entryBytes_ + at, size);
    }

private:
    std::size_t headBytes_;
    std::size_t entryBytes_;
    std::vector<std::uint8_t> bytes_;
    std::size_t count_ = 0;
    bool valid_ = false;
};

/// Reads the descriptors of ISO/IEC 14496-1: a tag, a length of up to four bytes with seven bits each, the content.
class Descriptors {
public:
    explicit Descriptors(std::span<const std::uint8_t> bytes) : bytes_(bytes) {}
    /// Enters the next descriptor, which must have this tag, and skips @p fields bytes of its content.
    bool enter(std::uint8_t tag, std::size_t fields) {
        if (at_ >= bytes_.size() || bytes_[at_++] != tag)
            return false;
        length_ = 0;
        for (int i = 0; i < 4 && at_ < bytes_.size(); ++i) {
            const std::uint8_t byte = bytes_[at_++];
            length_ = length_ << 7 | (byte & 0x7f);
            if ((byte & 0x80) == 0)
                break;
        }
        if (length_ < fields || length_ > bytes_.size() - at_)
            return false;
        content_ = bytes_.subspan(at_, length_);
        at_ += fields;
        return true;
    }
    [[nodiscard]] std::span<const std::uint8_t> content() const { return content_; }

private:
    std::span<const std::uint8_t> bytes_;
    std::span<const std::uint8_t> content_;
    std::size_t at_ = 0;
    std::size_t length_ = 0;
};

} // namespace

Result<std::shared_ptr<PacketReader>> PacketReader::open(const QString& path) {
    auto reader = std::make_shared<PacketReader>();
    if (const auto opened = reader->file_.open(path); !opened)
        return opened.error();
    const SourceFile& file = reader->file_;
    const auto own = readOwnRecording(file);
    const auto table = findBox(
        file, {0, file.size()},
        {fourCharCode("moov"), fourCharCode("trak"), fourCharCode("mdia"), fourCharCode("minf"), fourCharCode("stbl")});
    if (!own || !table)
        return makeError(Error::Kind::UnknownFormat, path,
                         QCoreApplication::translate("Media", "not a finished recording of Sonaphex"));
    reader->info_.sampleRate = int(own->dataFormat.mSampleRate);
    reader->info_.channels = int(own->dataFormat.mChannelsPerFrame);
    reader->info_.framesPerPacket = int(own->dataFormat.mFramesPerPacket);
    reader->info_.primingFrames = int(readMpeg4Facts(file, reader->info_.sampleRate).editStart);
    reader->validFrames_ = own->frameCount;
    if (!reader->readDescription(*table) || !reader->readPackets(*table))
        return makeError(Error::Kind::Damaged, path, QCoreApplication::translate("Media", "its index is damaged"));
    return reader;
}

bool PacketReader::readDescription(ByteRange table) {
    // The table's version, flags and count, then the sample entry with its fields for sound.
    constexpr std::int64_t entryHead = 8 + 8 + 28;
    const auto entries = findBox(file_, table, {fourCharCode("stsd")});
    if (!entries || entries->to - entries->from < entryHead)
        return false;
    const auto stream = boxBytes(file_, {entries->from + entryHead, entries->to}, {fourCharCode("esds")});
    if (stream.size() < 4)
        return false;
    const std::span<const std::uint8_t> bytes(stream);
    Descriptors descriptors(bytes.subspan(4)); // behind version and flags
    if (!descriptors.enter(3, 3) || !descriptors.enter(4, 13))
        return false;
    info_.bitRate = int(bigEndian(descriptors.content().data() + 9, 4)); // the average
    if (!descriptors.enter(5, 0))
        return false;
    info_.config.assign(descriptors.content().begin(), descriptors.content().end());
    return true;
}

bool PacketReader::readPackets(ByteRange table) {
    const Table sizes(file_, table, fourCharCode("stsz"), 4, 4);
    const Table runs(file_, table, fourCharCode("stsc"), 0, 12);
    const Table narrow(file_, table, fourCharCode("stco"), 0, 4);
    const Table wide(file_, table, fourCharCode("co64"), 0, 8);
    const Table& chunks = narrow.valid() ? narrow : wide;
    const int offsetBytes = narrow.valid() ? 4 : 8;
    if (!sizes.valid() || sizes.head() != 0 || !runs.valid() || !chunks.valid())
        return false;
    packets_.reserve(sizes.count());
    const std::int64_t fileEnd = file_.size();
    for (std::size_t chunk = 0, run = 0; chunk < chunks.count(); ++chunk) {
        while (run + 1 < runs.count() && runs.entry(run + 1, 0, 4) <= chunk + 1)
            ++run;
        if (run >= runs.count())
            return false;
        auto offset = std::int64_t(chunks.entry(chunk, 0, offsetBytes));
        for (auto left = runs.entry(run, 4, 4); left > 0 && packets_.size() < sizes.count(); --left) {
            const auto size = std::uint32_t(sizes.entry(packets_.size(), 0, 4));
            if (offset < 0 || offset > fileEnd - std::int64_t(size))
                return false;
            packets_.push_back({offset, size});
            offset += size;
        }
    }
    return packets_.size() == sizes.count();
}

std::vector<std::uint8_t> PacketReader::packet(std::int64_t index) const {
    const Packet& packet = packets_[std::size_t(index)];
    std::vector<std::uint8_t> bytes(packet.size);
    if (!file_.readAll(packet.offset, bytes))
        bytes.clear();
    return bytes;
}

} // namespace Platform
