// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Media/linux/PacketCopy.h"

#include <QCoreApplication>

#include <algorithm>

namespace Platform {

PacketCopy::PacketCopy(std::shared_ptr<const PacketReader> file)
    : info_(file->info()), frames_(file->validFrames()), runs_{{file, 0, file->count()}} {
}

std::int64_t PacketCopy::packetCount() const {
    std::int64_t count = 0;
    for (const Run& run : runs_)
        count += run.count();
    return count;
}

std::vector<std::uint8_t> PacketCopy::packet(std::int64_t index) const {
    for (const Run& run : runs_) {
        if (index < run.count())
            return run.file->packet(run.first + index);
        index -= run.count();
    }
    return {};
}

void PacketCopy::shorten(std::int64_t count) {
    for (Run& run : runs_) {
        run.end = std::min(run.end, run.first + count);
        count -= run.count();
    }
    std::erase_if(runs_, [](const Run& run) { return run.count() == 0; });
}

Result<> PacketCopy::copy(const QString& path, std::int64_t first, std::int64_t end,
                          const std::function<bool(double)>& progress) const {
    const std::int64_t packetFrames = info_.framesPerPacket;
    // A packet overlaps with the one before it, so a decoder's first packet is never right. It is left out by the edit
    // list, like the priming of an encoder.
    const std::int64_t firstPacket = std::max<std::int64_t>(0, (info_.primingFrames + first) / packetFrames - 1);
    const std::int64_t endPacket =
        std::min(packetCount(), (info_.primingFrames + end + packetFrames - 1) / packetFrames);
    AacStreamInfo info = info_;
    info.primingFrames = int(info_.primingFrames + first - firstPacket * packetFrames);

    OutputFile file;
    if (const auto created = file.create(path, true); !created)
        return created;
    const auto container = createMpeg4File(file);
    bool goesOn = container->begin(info);
    for (std::int64_t i = firstPacket; goesOn && i < endPacket; ++i) {
        const auto bytes = packet(i);
        if (bytes.empty())
            return makeError(Error::Kind::Damaged, path,
                             QCoreApplication::translate("Media", "a packet of the recording cannot be read"));
        goesOn = container->add(bytes);
        if (progress && !progress(double(i - firstPacket) / double(endPacket - firstPacket)))
            return makeError(Error::Kind::Cancelled, path,
                             QCoreApplication::translate("Media", "stopped before the end"));
    }
    container->finish(end - first);
    file.sync();
    file.close();
    if (const Error error = file.firstError())
        return error;
    return {};
}

Result<std::unique_ptr<EncodedAudio>> openEncodedAudio(const QString& path) {
    auto file = PacketReader::open(path);
    if (!file)
        return file.error();
    return std::make_unique<PacketCopy>(*std::move(file));
}

bool PacketCopy::append(const EncodedAudio& next) {
    const auto* other = dynamic_cast<const PacketCopy*>(&next);
    const std::int64_t packetFrames = info_.framesPerPacket;
    const std::int64_t cut = info_.primingFrames + frames_;
    const std::int64_t cutPacket = cut / packetFrames; // the one that contains the first frame behind the cut
    // See copy(): the first packet of the next part is the one before the cut.
    if (!other || other->info_.config != info_.config || other->info_.sampleRate != info_.sampleRate ||
        other->info_.primingFrames != cut % packetFrames + packetFrames || cutPacket < 1 ||
        packet(cutPacket - 1) != other->packet(0))
        return false;
    const bool isInsidePacket = cutPacket < packetCount();
    if (isInsidePacket && other->packetCount() > 1 && packet(cutPacket) != other->packet(1))
        return false;
    shorten(cutPacket);
    for (Run run : other->runs_)
        runs_.push_back(std::move(run));
    // The packet before the cut is there already.
    auto& begin = runs_[runs_.size() - other->runs_.size()];
    ++begin.first;
    std::erase_if(runs_, [](const Run& run) { return run.count() == 0; });
    frames_ += other->frames_;
    return true;
}

} // namespace Platform
