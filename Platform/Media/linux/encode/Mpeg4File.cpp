// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Media/linux/encode/PacketFile.h"
#include "Platform/Media/linux/mpeg4/ByteWriter.h"

#include <ctime>

namespace Platform {

namespace {

constexpr std::uint64_t shortBox = 0xffffffff; // largest box whose size fits in 32 bits
constexpr std::size_t copyAtOnce = 1 << 20;

/// MPEG-4 times count from 1904.
constexpr std::uint64_t secondsFrom1904To1970 = 2082844800;

class Mpeg4File final : public PacketFile {
public:
    explicit Mpeg4File(OutputFile& file) : file_(file) {}

    bool begin(const AacStreamInfo& info) override {
        info_ = info;
        created_ = std::uint64_t(std::time(nullptr)) + secondsFrom1904To1970;
        packetsPerFragment_ = std::size_t(std::max(1, info.sampleRate * 3 / 5 / info.framesPerPacket)); // below 0.6 s
        writeFileType();
        growingStart_ = std::int64_t(out_.size());
        writeIndex(0, true);
        const bool written = file_.append(out_.data());
        out_.clear();
        return written;
    }

    bool add(std::span<const std::uint8_t> packet) override {
        sizes_.push_back(std::uint32_t(packet.size()));
        media_.insert(media_.end(), packet.begin(), packet.end());
        return sizes_.size() - packetsWritten_ < packetsPerFragment_ || writeFragment();
    }

    void finish(std::int64_t validFrames) override {
        if (sizes_.size() > packetsWritten_)
            writeFragment();
        if (file_.failed())
            return; // on a full disk the fragments stay; the file plays
        OutputFile plain;
        if (file_.beginReplacement(plain))
            writePlain(plain, validFrames);
        else
            plain.fail({Error::Kind::Other, {}});
        if (!file_.replaceWith(plain))
            indexInPlace(validFrames);
    }

private:
    struct Chunk {
        std::int64_t offset;
        std::uint32_t packets;
    };

    /// Writes the packets without fragments, a layout that every reader supports.
    void writePlain(OutputFile& plain, std::int64_t validFrames) {
        std::uint64_t mediaBytes = 0;
        for (const std::uint32_t size : sizes_)
            mediaBytes += size;
        out_.clear();
        writeFileType();
        writeMediaHeader(mediaBytes);
        plain.append(out_.data());
        out_.clear();
        std::vector<Chunk> chunks;
        std::vector<std::uint8_t> buffer;
        std::size_t packet = 0;
        for (const Chunk& chunk : chunks_) {
            const std::size_t at = buffer.size();
            std::size_t bytes = 0;
            for (std::uint32_t i = 0; i < chunk.packets; ++i)
                bytes += sizes_[packet++];
            chunks.push_back({plain.size() + std::int64_t(at), chunk.packets});
            buffer.resize(at + bytes);
            if (!file_.readBack(chunk.offset, std::span(buffer).subspan(at)))
                plain.fail({Error::Kind::Other, {}});
            if (buffer.size() >= copyAtOnce) {
                plain.append(buffer);
                buffer.clear();
            }
        }
        plain.append(buffer);
        std::swap(chunks_, chunks);
        writeIndex(validFrames, false);
        std::swap(chunks_, chunks);
        plain.append(out_.data());
        out_.clear();
    }

    /// When the disk has no room for a second copy: puts one media box around all fragments.
    void indexInPlace(std::int64_t validFrames) {
        const std::int64_t end = file_.size();
        writeIndex(validFrames, false);
        const bool indexed = file_.append(out_.data());
        out_.clear();
        if (!indexed)
            return;
        const auto size = std::uint64_t(end - growingStart_);
        writeMediaHeader(size - (size <= shortBox ? 8 : 16));
        file_.patch(growingStart_, out_.data());
    }

    void writeFileType() {
        out_.box("ftyp", [&] { out_.code("M4A ").u32(512).code("M4A ").code("isom").code("iso5").code("mp42"); });
    }

    void writeMediaHeader(std::uint64_t bytes) {
        if (bytes + 8 <= shortBox)
            out_.u32(bytes + 8).code("mdat");
        else
            out_.u32(1).code("mdat").u64(bytes + 16);
    }

    bool writeFragment() {
        const std::size_t count = sizes_.size() - packetsWritten_;
        std::size_t dataOffsetAt = 0;
        out_.clear();
        out_.box("moof", [&] {
            out_.fullBox("mfhd", 0, 0, [&] { out_.u32(chunks_.size() + 1); });
            out_.box("traf", [&] {
                // 0x020000: offsets are relative to this moof; 0x28: duration and flags apply to all packets.
                out_.fullBox("tfhd", 0, 0x020028,
                             [&] { out_.u32(1).u32(std::uint32_t(info_.framesPerPacket)).u32(0x02000000); });
                out_.fullBox("tfdt", 1, 0, [&] { out_.u64(packetsWritten_ * std::uint64_t(info_.framesPerPacket)); });
                out_.fullBox("trun", 0, 0x201, [&] {
                    out_.u32(count);
                    dataOffsetAt = out_.size();
                    out_.u32(0);
                    for (std::size_t i = packetsWritten_; i < sizes_.size(); ++i)
                        out_.u32(sizes_[i]);
                });
            });
        });
        const std::size_t mediaStart = out_.size() + 8;
        out_.setU32(dataOffsetAt, std::uint32_t(mediaStart));
        out_.box("mdat", [&] { out_.bytes(media_); });
        media_.clear();
        const std::int64_t fileStart = file_.size();
        const bool written = file_.append(out_.data());
        out_.clear();
        if (written) {
            chunks_.push_back({fileStart + std::int64_t(mediaStart), std::uint32_t(count)});
            packetsWritten_ = sizes_.size();
        } else {
            sizes_.resize(packetsWritten_);
        }
        return written;
    }

    /// Writes the movie box: without packets and with "mvex" while the file grows, else complete.
    void writeIndex(std::int64_t validFrames, bool growing) {
        const auto rate = std::uint32_t(info_.sampleRate);
        const auto mediaFrames = std::uint64_t(packetsWritten_) * std::uint64_t(info_.framesPerPacket);
        const auto heard = std::uint64_t(validFrames);
        // 64-bit numbers only where they are needed: some readers support only the 32-bit form.
        const std::uint32_t version = std::max({mediaFrames, heard, created_}) > 0xffffffff ? 1 : 0;
        const auto number = [&](std::uint64_t value) { version ? out_.u64(value) : out_.u32(value); };
        out_.box("moov", [&] {
            // The movie time scale is the sample rate: with a coarser one the edit list could not hold the exact
            // length.
            out_.fullBox("mvhd", version, 0, [&] {
                number(created_);
                number(created_);
                out_.u32(rate);
                number(heard);
                out_.u32(0x00010000).u16(0x0100).zeros(10);
                matrix();
                out_.zeros(24).u32(2);
            });
            out_.box("trak", [&] {
                out_.fullBox("tkhd", version, 7, [&] {
                    number(created_);
                    number(created_);
                    out_.u32(1).zeros(4);
                    number(heard);
                    out_.zeros(8);
                    out_.u16(0).u16(0).u16(0x0100).u16(0);
                    matrix();
                    out_.zeros(8);
                });
                out_.box("edts", [&] {
                    out_.fullBox("elst", version, 0, [&] {
                        out_.u32(1);
                        number(heard);
                        number(std::uint64_t(info_.primingFrames));
                        out_.u32(0x00010000);
                    });
                });
                out_.box("mdia", [&] {
                    out_.fullBox("mdhd", version, 0, [&] {
                        number(created_);
                        number(created_);
                        out_.u32(rate);
                        number(mediaFrames);
                        out_.u16(0x55c4).u16(0);
                    });
                    out_.fullBox("hdlr", 0, 0, [&] { out_.zeros(4).code("soun").zeros(12).text(mpeg4HandlerName); });
                    out_.box("minf", [&] {
                        out_.fullBox("smhd", 0, 0, [&] { out_.zeros(4); });
                        out_.box("dinf", [&] {
                            out_.fullBox("dref", 0, 0, [&] {
                                out_.u32(1);
                                out_.fullBox("url ", 0, 1, [] {});
                            });
                        });
                        out_.box("stbl", [&] { writeSampleTable(growing); });
                    });
                });
            });
            if (growing) {
                out_.box("mvex", [&] {
                    out_.fullBox("trex", 0, 0,
                                 [&] { out_.u32(1).u32(1).u32(std::uint32_t(info_.framesPerPacket)).u32(0).u32(0); });
                });
            }
        });
    }

    void writeSampleTable(bool growing) {
        out_.fullBox("stsd", 0, 0, [&] {
            out_.u32(1);
            out_.box("mp4a", [&] {
                out_.zeros(6).u16(1).zeros(8).u16(std::uint32_t(info_.channels)).u16(16).zeros(4);
                out_.u16(info_.sampleRate <= 0xffff ? std::uint32_t(info_.sampleRate) : 0).u16(0);
                out_.fullBox("esds", 0, 0, [&] { out_.bytes(elementaryStreamDescriptor(info_)); });
            });
        });
        const std::size_t packets = growing ? 0 : packetsWritten_;
        out_.fullBox("stts", 0, 0, [&] {
            out_.u32(packets ? 1 : 0);
            if (packets)
                out_.u32(packets).u32(std::uint32_t(info_.framesPerPacket));
        });
        out_.fullBox("stsc", 0, 0, [&] {
            const std::size_t countAt = out_.size();
            out_.u32(0);
            std::uint32_t runs = 0;
            for (std::size_t i = 0; !growing && i < chunks_.size(); ++i) {
                if (i > 0 && chunks_[i].packets == chunks_[i - 1].packets)
                    continue;
                out_.u32(i + 1).u32(chunks_[i].packets).u32(1);
                ++runs;
            }
            out_.setU32(countAt, runs);
        });
        out_.fullBox("stsz", 0, 0, [&] {
            out_.u32(0).u32(packets);
            for (std::size_t i = 0; i < packets; ++i)
                out_.u32(sizes_[i]);
        });
        const bool wide = !growing && !chunks_.empty() && chunks_.back().offset > 0xffffffffLL;
        const auto offsets = [&] {
            out_.u32(growing ? 0 : chunks_.size());
            for (std::size_t i = 0; !growing && i < chunks_.size(); ++i)
                wide ? out_.u64(std::uint64_t(chunks_[i].offset)) : out_.u32(std::uint64_t(chunks_[i].offset));
        };
        wide ? out_.fullBox("co64", 0, 0, offsets) : out_.fullBox("stco", 0, 0, offsets);
        if (packets) {
            // A decoder that starts in the middle needs one packet of preroll: roll distance -1 for all packets.
            out_.fullBox("sgpd", 1, 0, [&] { out_.code("roll").u32(2).u32(1).u16(0xffff); });
            out_.fullBox("sbgp", 0, 0, [&] { out_.code("roll").u32(1).u32(packets).u32(1); });
        }
    }

    void matrix() { out_.u32(0x00010000).zeros(12).u32(0x00010000).zeros(12).u32(0x40000000); }

    OutputFile& file_;
    AacStreamInfo info_;
    ByteWriter out_;
    std::vector<std::uint8_t> media_;  // packets of the current fragment
    std::vector<std::uint32_t> sizes_; // of all packets
    std::vector<Chunk> chunks_;
    std::size_t packetsWritten_ = 0;
    std::size_t packetsPerFragment_ = 40;
    std::int64_t growingStart_ = 0; // offset of the growing file's index, later of the media box
    std::uint64_t created_ = 0;
};

} // namespace

std::unique_ptr<PacketFile> createMpeg4File(OutputFile& file) {
    return std::make_unique<Mpeg4File>(file);
}

std::vector<std::uint8_t> elementaryStreamDescriptor(const AacStreamInfo& info) {
    ByteWriter out;
    // Lengths take four bytes: libavformat's CAF reader supports no other form.
    const auto descriptor = [&](std::uint32_t tag, std::size_t length) {
        out.u8(tag).u24(0x808080).u8(std::uint32_t(length));
    };
    const std::size_t config = info.config.size();
    descriptor(3, 3 + 5 + 13 + 5 + config + 5 + 1);
    out.u16(0).u8(0);
    descriptor(4, 13 + 5 + config);
    out.u8(0x40).u8(0x15).u24(0).u32(std::uint32_t(info.bitRate)).u32(std::uint32_t(info.bitRate));
    descriptor(5, config);
    out.bytes(info.config);
    descriptor(6, 1);
    out.u8(2);
    return {out.data().begin(), out.data().end()};
}

} // namespace Platform
