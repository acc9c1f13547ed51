// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/Control/SilenceMap.h"

#include "Source/Control/LevelScan.h"
#include "Source/Control/ReadInHalves.h"

#include <algorithm>
#include <cmath>

using Platform::Error;
using Platform::Result;

Result<SilenceMap> SilenceMap::read(const QString& path, const std::function<bool(double)>& progress) {
    auto opened = Platform::services().mediaFiles->openReader(path);
    if (!opened)
        return opened.error();
    auto& reader = **opened;
    SilenceMap map;
    map.sampleRate_ = reader.fileDataFormat().mSampleRate;
    std::vector<LevelScan::Magnitude> limits;
    for (int level = kLowestLevel; level <= kHighestLevel; ++level)
        limits.push_back(LevelScan::magnitudeOf(float(std::pow(10.0, level / 20.0))));
    const std::int64_t shortest = std::llround(kShortest * map.sampleRate_);
    const std::int64_t all = reader.fileLengthFrames();
    LevelScan front(limits, 0, shortest);
    LevelScan back(limits, ReadInHalves::middleOf(all, reader.seeksExactly()), shortest);
    if (const Error error = ReadInHalves::read(path, all, front, back, progress))
        return error;
    map.frames_ = back.first() < all ? back.end() : front.end();
    const std::int64_t least = std::max(shortest, LevelScan::kLeastFrames);
    for (std::size_t i = 0; i < limits.size(); ++i)
        ReadInHalves::eachSilence({&front, &back}, i, map.frames_, [&](std::int64_t first, std::int64_t end) {
            if (end - first >= least)
                map.silences_[i].push_back({first, end});
        });
    return map;
}

SilenceFinder::Found SilenceMap::find(const SilenceFinder::Rule& rule) const {
    const int level = std::clamp(int(std::lround(rule.level)), kLowestLevel, kHighestLevel);
    const std::int64_t shortest =
        std::max<std::int64_t>(1, std::llround(std::max(rule.seconds, kShortest) * sampleRate_));
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
