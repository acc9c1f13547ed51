// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Media/linux/encode/PacketFile.h"
#include "Platform/Media/linux/mpeg4/ByteWriter.h"

namespace Platform {

namespace {

class CafFile final : public PacketFile {
public:
    explicit CafFile(OutputFile& file) : file_(file) {}

    [[nodiscard]] bool mayBeEmpty() const override { return false; }

    bool begin(const AacStreamInfo& info) override {
        info_ = info;
        ByteWriter out;
        out.code("caff").u16(1).u16(0);
        out.code("desc").u64(32).f64(info.sampleRate).code("aac ").u32(0).u32(0);
        out.u32(std::uint32_t(info.framesPerPacket)).u32(std::uint32_t(info.channels)).u32(0);
        const auto cookie = elementaryStreamDescriptor(info);
        out.code("kuki").u64(cookie.size()).bytes(cookie);
        // A size of -1 means "up to the end of the file", which is right until the file is closed.
        out.code("data");
        dataSizeAt_ = std::int64_t(out.size());
        out.u64(~std::uint64_t(0)).u32(0);
        dataStart_ = dataSizeAt_ + 8;
        return file_.append(out.data());
    }

    bool add(std::span<const std::uint8_t> packet) override {
        pending_.insert(pending_.end(), packet.begin(), packet.end());
        if (pending_.size() >= pendingLimit && !flush())
            return false;
        // Seven bits per byte; the high bit is set in all but the last.
        const auto size = std::uint32_t(packet.size());
        for (int shift = 28; shift > 0; shift -= 7) {
            if (size >> shift)
                table_.u8(((size >> shift) & 0x7f) | 0x80);
        }
        table_.u8(size & 0x7f);
        ++packets_;
        return true;
    }

    void finish(std::int64_t validFrames) override {
        if (!flush())
            return;
        const std::int64_t dataSize = file_.size() - dataStart_;
        const std::int64_t all = packets_ * info_.framesPerPacket;
        ByteWriter out;
        out.code("pakt").u64(24 + table_.size()).u64(std::uint64_t(packets_)).u64(std::uint64_t(validFrames));
        out.u32(std::uint32_t(info_.primingFrames));
        out.u32(std::uint32_t(std::max<std::int64_t>(0, all - info_.primingFrames - validFrames)));
        out.bytes(table_.data());
        if (!file_.append(out.data()))
            return;
        ByteWriter size;
        file_.patch(dataSizeAt_, size.u64(std::uint64_t(dataSize)).data());
    }

private:
    static constexpr std::size_t pendingLimit = 1 << 16;

    bool flush() {
        const bool written = file_.append(pending_);
        pending_.clear();
        return written;
    }

    OutputFile& file_;
    AacStreamInfo info_;
    ByteWriter table_; // sizes of all packets in the format of the packet table
    std::vector<std::uint8_t> pending_;
    std::int64_t packets_ = 0;
    std::int64_t dataSizeAt_ = 0;
    std::int64_t dataStart_ = 0;
};

} // namespace

std::unique_ptr<PacketFile> createCafFile(OutputFile& file) {
    return std::make_unique<CafFile>(file);
}

} // namespace Platform
