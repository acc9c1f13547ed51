// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Media/linux/encode/StretchEncoder.h"

#include <limits>

namespace Platform {

namespace {

/// Blocks: a waiting caller is woken when this much room is free, not for each block.
constexpr std::int64_t roomToWaitFor = 128;

/// The window of a packet (how its samples overlap with those of its neighbours), or -1 where only decoding would tell.
int windowOf(const AacEncoder::Packet& packet) {
    std::size_t position = 0;
    const auto bits = [&](int count) {
        int value = 0;
        for (; count > 0; --count, ++position) {
            const std::size_t byte = position / 8;
            value = value * 2 + (byte < packet.size() ? (packet[byte] >> (7 - position % 8)) & 1 : 0);
        }
        return value;
    };
    const int element = bits(3);
    bits(4);
    if (element == 0)
        bits(8);
    else if (element != 1 || bits(1) == 0)
        return -1;
    bits(1);
    return bits(3); // window_sequence and window_shape
}

} // namespace

StretchEncoder::StretchEncoder(const AacSettings& settings) : settings_(settings) {
    if (const AacEncoder describing(settings.rate, settings.channels, settings.hasEqualChannels()); describing.valid())
        info_ = describing.streamInfo();
    settings_.rowOf.resize(std::size_t(settings.channels), 0);
    for (const std::size_t row : settings_.rowOf)
        distinctRows_ = std::max(distinctRows_, row + 1);
    settings_.stretchPackets = std::max(settings_.stretchPackets, 2 * warmUpPackets);
    budget_ = (settings_.workers - 1) * settings_.stretchPackets + 256;
}

StretchEncoder::~StretchEncoder() {
    {
        const std::lock_guard lock(mutex_);
        stopping_ = true;
        changed_.notify_all();
    }
    for (auto& thread : threads_)
        thread.join();
    // The counter must outlive the blocks that decrement it.
    stretches_.clear();
    filling_.reset();
}

void StretchEncoder::append(const float* const* channels, std::size_t frames, std::vector<Packet>& out) {
    std::size_t done = 0;
    while (done < frames && !failed_) {
        if (!filling_)
            filling_ = std::make_shared<Block>(live_, distinctRows_);
        const auto at = std::size_t(filling_->frames);
        const std::size_t count = std::min(frames - done, std::size_t(AacEncoder::packetFrames) - at);
        for (std::size_t c = 0; c < settings_.rowOf.size(); ++c)
            std::copy_n(channels[c] + done, count, filling_->samples[settings_.rowOf[c]].data() + at);
        filling_->frames += int(count);
        done += count;
        if (filling_->frames < AacEncoder::packetFrames)
            continue;
        pushBlock();
        std::unique_lock lock(mutex_);
        collect(out);
        if (live_ >= budget_)
            progress_.wait(lock, [&] { return live_ < budget_ - roomToWaitFor || failed_; });
    }
}

void StretchEncoder::finish(std::vector<Packet>& out) {
    if (filling_ && filling_->frames > 0)
        pushBlock();
    std::unique_lock lock(mutex_);
    Stretch* final = nullptr;
    for (auto& stretch : stretches_) {
        stretch->cancelled = stretch->keepFrom > 0 && stretch->keepFrom >= blocks_;
        if (!stretch->cancelled)
            final = stretch.get();
    }
    std::erase_if(stretches_, [](const auto& stretch) { return stretch->cancelled && !stretch->taken; });
    if (final) {
        final->keepTo = std::numeric_limits<std::int64_t>::max();
        for (auto& stretch : stretches_) {
            stretch->last = stretch->last || !stretch->complete;
            stretch->complete = true;
        }
    }
    changed_.notify_all();
    progress_.wait(lock, [&] {
        collect(out);
        return stretches_.empty() || failed_;
    });
}

std::vector<const float*> StretchEncoder::rowsOf(const Block& block) const {
    std::vector<const float*> rows;
    rows.reserve(settings_.rowOf.size());
    for (const std::size_t row : settings_.rowOf)
        rows.push_back(block.samples[row].data());
    return rows;
}

void StretchEncoder::pushBlock() {
    const std::lock_guard lock(mutex_);
    const std::int64_t number = blocks_++;
    const std::int64_t length = settings_.stretchPackets;
    if (number == std::max<std::int64_t>(0, stretchesMade_ * length - warmUpPackets)) {
        auto stretch = std::make_unique<Stretch>();
        stretch->fedFrom = stretch->packetsFrom = number;
        stretch->keepFrom = stretchesMade_ * length;
        stretch->keepTo = stretch->keepFrom + length;
        stretches_.push_back(std::move(stretch));
        ++stretchesMade_;
        if (threads_.size() < std::size_t(settings_.workers))
            threads_.emplace_back([this] { work(); });
    }
    for (auto& stretch : stretches_) {
        if (stretch->complete || number < stretch->fedFrom)
            continue;
        stretch->blocks.push_back(filling_);
        // The encoder outputs a packet after it got the next one.
        stretch->complete = number >= stretch->keepTo + seamPackets + 1;
    }
    filling_.reset();
    changed_.notify_all();
}

void StretchEncoder::work() {
    std::unique_lock lock(mutex_);
    for (;;) {
        Stretch* stretch = nullptr;
        changed_.wait(lock, [&] {
            for (auto& candidate : stretches_) {
                if (!candidate->taken && !stretch)
                    stretch = candidate.get();
            }
            return stretch || stopping_;
        });
        if (stopping_)
            return;
        stretch->taken = true;
        lock.unlock();
        AacEncoder encoder(settings_.rate, settings_.channels, settings_.hasEqualChannels());
        std::vector<Packet> packets;
        bool good = encoder.valid();
        lock.lock();
        for (;;) {
            changed_.wait(
                lock, [&] { return !stretch->blocks.empty() || stretch->complete || stretch->cancelled || stopping_; });
            if (stopping_)
                return;
            if (stretch->cancelled || !good || (stretch->blocks.empty() && !stretch->last))
                break;
            const bool flush = stretch->blocks.empty();
            BlockPtr block;
            if (!flush) {
                block = std::move(stretch->blocks.front());
                stretch->blocks.pop_front();
            }
            lock.unlock();
            good = flush ? encoder.flush(packets) : encoder.encode(rowsOf(*block).data(), block->frames, packets);
            block.reset();
            lock.lock();
            std::move(packets.begin(), packets.end(), std::back_inserter(stretch->packets));
            packets.clear();
            if (live_ < budget_ - roomToWaitFor)
                progress_.notify_one();
            if (flush)
                break;
        }
        if (!good)
            failed_ = true;
        stretch->blocks.clear();
        stretch->done = true;
        progress_.notify_one();
    }
}

void StretchEncoder::collect(std::vector<Packet>& out) {
    while (!stretches_.empty()) {
        Stretch& front = *stretches_.front();
        while (!front.packets.empty() && front.packetsFrom < front.keepTo) {
            if (front.packetsFrom >= front.keepFrom)
                out.push_back(std::move(front.packets.front()));
            front.packets.pop_front();
            ++front.packetsFrom;
        }
        if (!front.done)
            return;
        // There is no seam towards a cancelled stretch.
        if (!front.cancelled && stretches_.size() > 1 && !stretches_[1]->cancelled && !laySeam(front, *stretches_[1]))
            return;
        while (!front.cancelled && !front.packets.empty() && front.packetsFrom < front.keepTo) {
            out.push_back(std::move(front.packets.front()));
            front.packets.pop_front();
            ++front.packetsFrom;
        }
        stretches_.pop_front();
    }
}

/// False while packets that it needs are missing.
bool StretchEncoder::laySeam(Stretch& before, Stretch& after) {
    const std::int64_t wanted = after.keepFrom;
    const auto packetOf = [](const Stretch& stretch, std::int64_t number) -> const Packet* {
        const std::int64_t index = number - stretch.packetsFrom;
        return index >= 0 && index < std::int64_t(stretch.packets.size()) ? &stretch.packets[std::size_t(index)]
                                                                          : nullptr;
    };
    if (!after.done && !packetOf(after, wanted + seamPackets))
        return false;
    for (std::int64_t seam = wanted + 1; seam <= wanted + seamPackets; ++seam) {
        const Packet* left = packetOf(before, seam - 1);
        const Packet* right = packetOf(after, seam - 1);
        if (!left || !right)
            break;
        const int window = windowOf(*left);
        if (window >= 0 && window == windowOf(*right)) {
            before.keepTo = after.keepFrom = seam;
            return true;
        }
    }
    return true;
}

} // namespace Platform
