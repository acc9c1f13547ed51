// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/Control/SilenceMap.h"

#include "Platform/Audio/ClientFormat.h"
#include "Platform/Foundation/Services.h"
#include "Platform/Media/ExtAudioFile.h"
#include "Source/Control/LevelScan.h"

#include <QCoreApplication>

#include <algorithm>
#include <atomic>
#include <cmath>
#include <limits>
#include <span>
#include <thread>
#include <utility>

using namespace Qt::StringLiterals;
using Platform::Error;
using Platform::Result;

namespace {

constexpr int kBlocksPerReport = 256;
constexpr std::int64_t kLeastPerThread = 60 * 44100; ///< frames: less is not worth a second thread

/// "<path>: <what>"
Error mapFailure(Error::Kind kind, const QString& path, const QString& what, const QString& detail = {}) {
    return {kind, u"%1: %2"_s.arg(path, what), detail};
}

/// Reads frames from the begin of @p scan to @p end, or to the end of the file, into it. @p goesOn receives the frames
/// read so far.
template <typename GoesOn>
Error scanRange(const QString& path, LevelScan& scan, std::int64_t end, const GoesOn& goesOn) {
    auto opened = Platform::services().mediaFiles->openReader(path);
    if (!opened)
        return opened.error();
    auto& reader = **opened;
    const auto format = planarFloatFormat(reader.fileDataFormat().mSampleRate, 2);
    if (reader.setClientDataFormat(format) != noErr || (scan.first() > 0 && reader.seek(scan.first()) != noErr))
        return reader.firstError();
    ClientBlock block;
    for (int blocks = 1; scan.end() < end; ++blocks) {
        std::uint32_t frames = block.prepare(format);
        frames = std::uint32_t(std::min<std::int64_t>(frames, end - scan.end()));
        if (reader.read(frames, block.list()) != noErr)
            return mapFailure(Error::Kind::Damaged, path,
                              QCoreApplication::translate("Control", "a part of it is damaged and cannot be measured"),
                              reader.firstError().forLog());
        if (frames == 0)
            break;
        const auto plane = [&](int channel) {
            return std::span(static_cast<const float*>(block.list()->mBuffers[channel].mData), frames);
        };
        scan.add(plane(0), plane(1));
        if (blocks % kBlocksPerReport == 0 && !goesOn(scan.end() - scan.first()))
            return mapFailure(Error::Kind::Cancelled, path,
                              QCoreApplication::translate("Control", "stopped before the end"));
    }
    scan.finish();
    return {};
}

} // namespace

Result<SilenceMap> SilenceMap::read(const QString& path, const std::function<bool(double)>& progress) {
    const auto info = Platform::services().mediaFiles->info(path);
    if (!info)
        return info.error();
    SilenceMap map;
    map.sampleRate_ = info->dataFormat.mSampleRate;
    std::vector<LevelScan::Magnitude> limits;
    for (int level = kLowestLevel; level <= kHighestLevel; ++level)
        limits.push_back(LevelScan::magnitudeOf(float(std::pow(10.0, level / 20.0))));
    const std::int64_t shortest = std::llround(kShortest * map.sampleRate_);
    const std::int64_t all = std::max<std::int64_t>(1, info->frameCount);
    const std::int64_t middle = all >= 2 * kLeastPerThread ? all / 2 : all;

    constexpr std::int64_t toTheEnd = std::numeric_limits<std::int64_t>::max();
    LevelScan front(limits, 0, shortest);
    LevelScan back(limits, middle, shortest);
    std::atomic<bool> stopped = false;
    std::atomic<std::int64_t> readBehind = 0;
    Error behind;
    std::jthread second;
    if (middle < all)
        second = std::jthread([&] {
            behind = scanRange(path, back, toTheEnd, [&](std::int64_t frames) {
                readBehind = frames;
                return !stopped;
            });
        });
    const Error before = scanRange(path, front, middle < all ? middle : toTheEnd, [&](std::int64_t frames) {
        if (progress && !progress(std::min(1.0, double(frames + readBehind) / double(all))))
            stopped = true;
        return !stopped;
    });
    if (before)
        stopped = true;
    if (second.joinable())
        second.join();
    if (before)
        return before;
    if (behind)
        return behind;

    const bool isDivided = middle < all;
    map.frames_ = isDivided ? back.end() : front.end();
    const std::int64_t least = std::max(shortest, LevelScan::kLeastFrames);
    for (std::size_t i = 0; i < limits.size(); ++i) {
        auto& found = map.silences_[i];
        const auto add = [&](std::int64_t first, std::int64_t end) {
            if (end - first >= least)
                found.push_back({first, end});
        };
        const auto append = [&](const LevelScan& scan) {
            found.insert(found.end(), scan.inside(i).begin(), scan.inside(i).end());
        };
        // A stretch of silence may reach over the border of the two halves, and over all of one half.
        std::int64_t since = 0;
        const auto take = [&](const LevelScan& scan) {
            if (scan.firstLoud(i) == scan.end())
                return;
            add(since, scan.firstLoud(i));
            append(scan);
            since = scan.lastSilenceBegin(i);
        };
        take(front);
        if (isDivided)
            take(back);
        add(since, map.frames_);
    }
    return map;
}

SilenceFinder::Found SilenceMap::find(const SilenceFinder::Rule& rule) const {
    const int level = std::clamp(int(std::lround(rule.level)), kLowestLevel, kHighestLevel);
    const std::int64_t shortest = std::max<std::int64_t>(1, std::llround(std::max(rule.seconds, kShortest) * sampleRate_));
    SilenceFinder::Found found;
    found.frames = frames_;
    found.sampleRate = sampleRate_;
    for (const SilenceFinder::Silence& silence : silences_[std::size_t(level - kLowestLevel)]) {
        const std::int64_t length = silence.end - silence.first;
        found.longest = std::max(found.longest, length);
        if (length >= shortest)
            found.silences.push_back(silence);
    }
    return found;
}
