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

bool InputFile::seeksExactly() const {
    return facts_.ownEncoder && !facts_.fragmented && facts_.validFrames &&
           stream_->codecpar->codec_id == AV_CODEC_ID_AAC;
}

bool InputFile::packetsDecodeApart() const {
    constexpr int lowComplexity = 2; // object type: Main and LTP predict from earlier packets
    const AVCodecParameters& parameters = *stream_->codecpar;
    return formatIs("mp4") && !facts_.fragmented && facts_.descriptions == 1 &&
           parameters.codec_id == AV_CODEC_ID_AAC && parameters.extradata_size >= 2 &&
           parameters.extradata[0] >> 3 == lowComplexity && stream_->time_base.num == 1 &&
           stream_->time_base.den == rate_;
}

bool InputFile::sparseSamples(std::span<const std::int64_t> frames, std::span<float> out, unsigned threads) {
    constexpr std::int64_t packetFrames = 1024;
    if (!packetsDecodeApart() || out.size() < frames.size())
        return false;
    const std::int64_t entries = av_->indexEntriesCount(stream_);
    const AVIndexEntry* first = entries > 0 ? av_->indexEntry(stream_, 0) : nullptr;
    // libavformat keeps up to a second of packets before the begin of an edit.
    if (!first || origin_ != 0 || first->timestamp > 0 || first->timestamp < -std::int64_t(2) * rate_)
        return false;
    const std::int64_t begin = first->timestamp; // of the priming, as a frame
    const std::int64_t end = begin + entries * packetFrames;
    // Without an edit list, a read gives all frames of all packets. With several edits, some packets are left out.
    if (facts_.validFrames ? *facts_.validFrames > end : lengthFrames() != end)
        return false;
    for (std::size_t i = 0; i < frames.size(); ++i) {
        if (frames[i] < 0 || frames[i] >= lengthFrames() || (i > 0 && frames[i] < frames[i - 1]))
            return false;
    }
    if (frames.empty())
        return true;
    // The packets from the predecessor of the first wanted one to the last wanted one.
    const auto packetOf = [&](std::int64_t frame) { return (frame - begin) / packetFrames; };
    const std::int64_t firstPacket = std::max<std::int64_t>(0, packetOf(frames.front()) - 1);
    std::vector<Place> places(static_cast<std::size_t>(packetOf(frames.back()) + 1 - firstPacket));
    for (std::size_t i = 0; i < places.size(); ++i) {
        const std::int64_t number = firstPacket + std::int64_t(i);
        const AVIndexEntry* entry = av_->indexEntry(stream_, int(number));
        if (entry->timestamp != begin + number * packetFrames)
            return false;
        places[i] = {entry->pos, entry->size};
    }
    // AAC overlap-add: decoding a packet needs only its predecessor.
    const auto decode = [&](std::size_t from, std::size_t to) {
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
        std::int64_t decoded = firstPacket - 1;
        for (std::size_t i = from; i < to; ++i) {
            const std::int64_t wanted = packetOf(frames[i]);
            // Packet 0 has no predecessor. A wanted packet may be decoded already, or its predecessor may.
            for (std::int64_t p = std::max(decoded, wanted - 2) + 1; p <= wanted; ++p) {
                const Place& place = places[std::size_t(p - firstPacket)];
                if (place.size <= 0 || place.size > mostPacketBytes)
                    return false;
                packet->size = place.size;
                std::memset(packet->data + place.size, 0, AV_INPUT_BUFFER_PADDING_SIZE);
                // Packets with another number of frames are of another kind of AAC, which a first packet may not tell.
                if (!bytes.copy(place, packet->data) || Av::codecs().sendPacket(codec.get(), packet.get()) < 0 ||
                    Av::codecs().receiveFrame(codec.get(), frame.get()) < 0 || frame->format != AV_SAMPLE_FMT_FLTP ||
                    frame->nb_samples != packetFrames || frame->sample_rate != rate_ ||
                    frame->ch_layout.nb_channels != channels_)
                    return false;
                decoded = p;
            }
            out[i] = reinterpret_cast<const float*>(frame->extended_data[0])[(frames[i] - begin) % packetFrames];
        }
        return true;
    };
    // The noise of a decoder depends on all packets that it has decoded. Each part has a decoder of its own, and their
    // number is fixed, so that the values do not depend on the machine.
    constexpr unsigned parts = 4;
    const std::size_t count = frames.size();
    if (threads == 0)
        threads = std::max(1U, std::thread::hardware_concurrency());
    std::vector<char> good(parts, 0);
    const auto work = [&](unsigned first) {
        for (unsigned part = first; part < parts; part += threads)
            good[part] = char(decode(count * part / parts, count * (part + 1) / parts));
    };
    std::vector<std::jthread> workers;
    for (unsigned thread = 1; thread < std::min(threads, parts); ++thread)
        workers.emplace_back(work, thread);
    work(0);
    workers.clear();
    return std::ranges::all_of(good, [](char done) { return done != 0; });
}

} // namespace Platform
