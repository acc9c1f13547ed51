// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/Control/SilenceFinder.h"

#include "Platform/Audio/ClientFormat.h"
#include "Platform/Foundation/Services.h"
#include "Platform/Media/ExtAudioFile.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;
using Platform::Error;

namespace SilenceFinder {
namespace {

/// "<path>: <what>"
Error failure(Error::Kind kind, const QString& path, const QString& what, const QString& detail = {}) {
    return {kind, u"%1: %2"_s.arg(path, what), detail};
}

constexpr int BlocksPerReport = 256;

/// Collects the silences of a stream of frames.
class Collector {
public:
    Collector(const Rule& rule, double sampleRate)
        : limit_(float(std::pow(10.0, rule.level / 20))),
          shortest_(std::max<std::int64_t>(1, std::llround(rule.seconds * sampleRate))) {}

    void add(const AudioBufferList& block, std::uint32_t frames) {
        for (std::uint32_t i = 0; i < frames; ++i, ++found.frames)
            if (isLoud(block, i))
                endSilence();
    }
    void endSilence() {
        const Silence silence{first_, found.frames};
        found.longest = std::max(found.longest, silence.end - silence.first);
        if (silence.end - silence.first >= shortest_)
            found.silences.push_back(silence);
        first_ = found.frames + 1;
    }

    Found found;

private:
    [[nodiscard]] bool isLoud(const AudioBufferList& block, std::uint32_t frame) const {
        for (std::uint32_t channel = 0; channel < block.mNumberBuffers; ++channel)
            if (!(std::fabs(static_cast<const float*>(block.mBuffers[channel].mData)[frame]) < limit_))
                return true;
        return false;
    }

    float limit_;
    std::int64_t shortest_;
    std::int64_t first_ = 0; ///< frame behind the last loud one
};

} // namespace

Platform::Result<Found> find(const QString& path, const Rule& rule, const std::function<bool(double)>& progress) {
    auto opened = Platform::services().mediaFiles->openReader(path);
    if (!opened)
        return opened.error();
    auto& reader = **opened;
    const auto format = planarFloatFormat(reader.fileDataFormat().mSampleRate, 2);
    if (reader.setClientDataFormat(format) != noErr)
        return reader.firstError();
    Collector collector(rule, format.mSampleRate);
    ClientBlock block;
    const double total = std::max(1.0, double(reader.fileLengthFrames()));
    for (int blocks = 1;; ++blocks) {
        std::uint32_t frames = block.prepare(format);
        if (reader.read(frames, block.list()) != noErr)
            return failure(Error::Kind::Damaged, path,
                           QCoreApplication::translate("Control", "a part of it is damaged and cannot be measured"),
                           reader.firstError().forLog());
        if (frames == 0)
            break;
        collector.add(*block.list(), frames);
        if (progress && blocks % BlocksPerReport == 0 && !progress(double(collector.found.frames) / total))
            return failure(Error::Kind::Cancelled, path,
                           QCoreApplication::translate("Control", "stopped before the end"));
    }
    collector.endSilence();
    collector.found.sampleRate = format.mSampleRate;
    return collector.found;
}

std::vector<std::int64_t> cuts(const Found& found) {
    std::vector<std::int64_t> middles;
    for (const Silence& silence : found.silences)
        if (silence.first > 0 && silence.end < found.frames)
            middles.push_back((silence.first + silence.end) / 2);
    return middles;
}

} // namespace SilenceFinder
