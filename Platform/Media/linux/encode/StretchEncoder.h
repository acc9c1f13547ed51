// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Media/linux/encode/AacEncoder.h"
#include "Platform/Media/linux/encode/FrameSink.h"

#include <array>
#include <atomic>
#include <condition_variable>
#include <deque>
#include <mutex>
#include <optional>
#include <thread>

namespace Platform {

/// AAC encoding of a file whose audio is complete, in stretches on several threads. A stretch is a run of packets that
/// one encoder makes. SerialEncoder is for a file that is written while its audio arrives.
///
/// A stretch begins on a packet boundary. Its encoder first encodes the packets before it, until its rate control has
/// settled, and continues into the next stretch, so that the last packet it keeps overlaps with the following one as in
/// a single run. The seam is placed where both encoders chose the same window, so that the overlap fits. The number of
/// waiting samples is bounded: they fill the stretches of all threads but one. A single stretch gives the same bytes as
/// one run. One thread calls.
class StretchEncoder {
public:
    using Packet = AacEncoder::Packet;
    static constexpr std::int64_t warmUpPackets = 256;
    static constexpr std::int64_t seamPackets = 16; // how far a seam may move

    explicit StretchEncoder(const AacSettings& settings);
    ~StretchEncoder();
    StretchEncoder(const StretchEncoder&) = delete;
    StretchEncoder& operator=(const StretchEncoder&) = delete;

    [[nodiscard]] bool valid() const { return info_ && !failed_.load(std::memory_order_relaxed); }
    /// Only while valid().
    [[nodiscard]] const AacStreamInfo& streamInfo() const { return *info_; }

    /// Appends to @p out the packets that are ready, in order. Blocks while too many samples wait.
    void append(const float* const* channels, std::size_t frames, std::vector<Packet>& out);
    void finish(std::vector<Packet>& out);

private:
    /// 1024 frames of the distinct rows; counts the blocks in memory.
    struct Block {
        Block(std::atomic<std::int64_t>& counter, std::size_t rows) : live(counter), samples(rows) { ++live; }
        ~Block() { --live; }
        std::atomic<std::int64_t>& live;
        std::vector<std::array<float, AacEncoder::packetFrames>> samples;
        int frames = 0;
    };
    using BlockPtr = std::shared_ptr<Block>;

    struct Stretch {
        std::int64_t fedFrom = 0;  // packet number of the first block
        std::int64_t keepFrom = 0; // first packet to keep, before the seam is placed
        std::int64_t keepTo = 0;   // packet after the last one
        std::deque<BlockPtr> blocks;
        bool complete = false;  // no more blocks follow
        bool last = false;      // the stretch ends with the file: flush the encoder
        bool taken = false;     // a thread works on it
        bool done = false;      // all packets are encoded
        bool cancelled = false; // the file ended before the stretch began
        std::deque<Packet> packets;
        std::int64_t packetsFrom = 0; // packet number of packets.front()
    };

    void pushBlock();
    void collect(std::vector<Packet>& out); // needs the mutex
    bool laySeam(Stretch& before, Stretch& after);
    void work();
    std::vector<const float*> rowsOf(const Block& block) const;

    AacSettings settings_;
    std::size_t distinctRows_ = 1;
    std::int64_t budget_ = 0;
    std::optional<AacStreamInfo> info_; // nothing when this rate or channel count cannot be encoded
    std::atomic<bool> failed_{false};

    BlockPtr filling_;
    std::int64_t blocks_ = 0; // number of blocks so far
    std::atomic<std::int64_t> live_{0};

    std::mutex mutex_;                               // guards the members below
    std::condition_variable changed_;                // wakes the threads: blocks, stretches, the end
    std::condition_variable progress_;               // wakes the caller: room, packets
    std::deque<std::unique_ptr<Stretch>> stretches_; // stretches with packets that were not collected yet
    std::int64_t stretchesMade_ = 0;
    bool stopping_ = false;
    std::vector<std::thread> threads_;
};

} // namespace Platform
