// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Media/linux/decode/InputFile.h"

#include <algorithm>
#include <cstring>
#include <thread>

namespace Platform {

namespace {

constexpr int mostPacketBytes = 1 << 14; // a packet of two channels has 1536 at most

struct Place {
    std::int64_t offset;
    int size;
};

/// Reads packets in the order of the file, many with one system call: half of an outline's packets are wanted, and they
/// are so small that every page of the file is read anyway. One thread.
class PacketBytes {
public:
    explicit PacketBytes(const SourceFile& file) : file_(file), bytes_(windowBytes) {}

    /// Copies one packet of at most mostPacketBytes. False when the file does not contain all of it.
    bool copy(const Place& place, std::uint8_t* out) {
        if (place.offset < begin_ || place.offset > end_ - place.size) {
            begin_ = place.offset;
            end_ = begin_ + std::max<std::int64_t>(0, file_.read(begin_, bytes_));
        }
        if (place.offset > end_ - place.size)
            return false;
        std::memcpy(out, bytes_.data() + (place.offset - begin_), std::size_t(place.size));
        return true;
    }

private:
    static constexpr std::size_t windowBytes = 1 << 16;
    static_assert(windowBytes >= mostPacketBytes);

    const SourceFile& file_;
    std::vector<std::uint8_t> bytes_;
    std::int64_t begin_ = 0; // of the part of the file in bytes_
    std::int64_t end_ = 0;
};

} // namespace

bool InputFile::packetsStandAlone() const {
    return facts_.ownEncoder && !facts_.fragmented && facts_.validFrames &&
           stream_->codecpar->codec_id == AV_CODEC_ID_AAC;
}

bool InputFile::sparseSamples(std::span<const std::int64_t> frames, std::span<float> out) {
    constexpr std::int64_t packetFrames = 1024;
    if (!packetsStandAlone() || out.size() < frames.size())
        return false;
    const std::int64_t entries = av_->indexEntriesCount(stream_);
    const AVIndexEntry* first = entries > 0 ? av_->indexEntry(stream_, 0) : nullptr;
    if (!first || inFrames(first->timestamp) != -packetFrames)
        return false;
    for (std::size_t i = 0; i < frames.size(); ++i) {
        if (frames[i] < 0 || frames[i] >= *facts_.validFrames || (i > 0 && frames[i] < frames[i - 1]) ||
            frames[i] / packetFrames + 1 >= entries)
            return false;
    }
    if (frames.empty())
        return true;
    // The packets from the predecessor of the first wanted one to the last wanted one.
    const std::int64_t firstPacket = frames.front() / packetFrames;
    std::vector<Place> places(static_cast<std::size_t>(frames.back() / packetFrames + 2 - firstPacket));
    for (std::size_t i = 0; i < places.size(); ++i) {
        const AVIndexEntry* entry = av_->indexEntry(stream_, int(firstPacket) + int(i));
        places[i] = {entry->pos, entry->size};
    }
    // AAC overlap-add: decoding a packet needs only its predecessor.
    const auto part = [&](std::size_t from, std::size_t to) {
        Av::CodecPtr codec = Av::createDecoder(*stream_);
        const Av::FramePtr frame(av_frame_alloc());
        const Av::PacketPtr packet(Av::codecs().allocPacket());
        if (!codec || !frame || !packet)
            return false;
        codec->flags2 |= AV_CODEC_FLAG2_SKIP_MANUAL;
        if (Av::codecs().open(codec.get(), nullptr, nullptr) < 0)
            return false;
        // One buffer for all packets: the decoder has consumed one before the next is read.
        if (Av::codecs().newPacket(packet.get(), mostPacketBytes) < 0)
            return false;
        PacketBytes bytes(file_);
        std::int64_t decoded = -2;
        for (std::size_t i = from; i < to; ++i) {
            const std::int64_t wanted = frames[i] / packetFrames + 1;
            for (std::int64_t p = decoded == wanted       ? wanted + 1
                                  : decoded == wanted - 1 ? wanted
                                                          : wanted - 1;
                 p <= wanted; ++p) {
                const Place& place = places[std::size_t(p - firstPacket)];
                if (place.size <= 0 || place.size > mostPacketBytes)
                    return false;
                packet->size = place.size;
                std::memset(packet->data + place.size, 0, AV_INPUT_BUFFER_PADDING_SIZE);
                if (!bytes.copy(place, packet->data) || Av::codecs().sendPacket(codec.get(), packet.get()) < 0 ||
                    Av::codecs().receiveFrame(codec.get(), frame.get()) < 0 || frame->format != AV_SAMPLE_FMT_FLTP ||
                    frame->nb_samples != packetFrames)
                    return false;
                decoded = p;
            }
            out[i] = reinterpret_cast<const float*>(frame->extended_data[0])[frames[i] % packetFrames];
        }
        return true;
    };
    const std::size_t count = frames.size();
    const auto threads = std::size_t(std::max(1u, std::min(4u, std::thread::hardware_concurrency())));
    std::vector<char> good(threads, 0);
    std::vector<std::jthread> workers;
    for (std::size_t t = 1; t < threads; ++t)
        workers.emplace_back([&, t] { good[t] = char(part(count * t / threads, count * (t + 1) / threads)); });
    good[0] = char(part(0, count / threads));
    workers.clear();
    return std::ranges::all_of(good, [](char done) { return done != 0; });
}

} // namespace Platform
