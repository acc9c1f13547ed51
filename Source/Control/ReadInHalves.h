// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Audio/ClientFormat.h"
#include "Platform/Foundation/Services.h"
#include "Platform/Media/ExtAudioFile.h"

#include <QCoreApplication>

#include <algorithm>
#include <atomic>
#include <cstdint>
#include <functional>
#include <initializer_list>
#include <limits>
#include <span>
#include <thread>
#include <vector>

/// Reads a whole file on two threads, each of which gives half of its frames to a scan of its own. Used by the searches
/// for silences.
namespace ReadInHalves {

constexpr int kBlocksPerReport = 256;
constexpr std::int64_t kLeastPerThread = std::int64_t(60) * 44100; ///< frames: less is not worth a second thread

/// "<path>: <what>"
[[nodiscard]] inline Platform::Error failure(Platform::Error::Kind kind, const QString& path, const QString& what,
                                             const QString& detail = {}) {
    return {kind, QStringLiteral("%1: %2").arg(path, what), detail};
}

[[nodiscard]] inline Platform::Error damaged(const QString& path, const Platform::ExtAudioFileReader& reader) {
    return failure(Platform::Error::Kind::Damaged, path,
                   QCoreApplication::translate("Control", "a part of it is damaged and cannot be measured"),
                   reader.firstError().forLog());
}

[[nodiscard]] inline Platform::Error stopped(const QString& path) {
    return failure(Platform::Error::Kind::Cancelled, path,
                   QCoreApplication::translate("Control", "stopped before the end"));
}

/// Both planes of a block that holds @p frames frames.
[[nodiscard]] inline std::span<const float> plane(ClientBlock& block, int channel, std::uint32_t frames) {
    return {static_cast<const float*>(block.list()->mBuffers[channel].mData), frames};
}

/// Reads from the begin of @p scan to @p end, or to the end of the file. @p goesOn receives the frames read so far.
template <typename Scan>
Platform::Error scanStretch(const QString& path, Scan& scan, std::int64_t end,
                            const std::function<bool(std::int64_t)>& goesOn) {
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
            return damaged(path, reader);
        if (frames == 0)
            break;
        scan.add(plane(block, 0, frames), plane(block, 1, frames));
        if (blocks % kBlocksPerReport == 0 && !goesOn(scan.end() - scan.first()))
            return stopped(path);
    }
    scan.finish();
    return {};
}

/// Reads a file of about @p all frames into @p front and, when @p back begins behind it, into both at once. @p progress
/// is called on this thread.
template <typename Scan>
Platform::Error read(const QString& path, std::int64_t all, Scan& front, Scan& back,
                     const std::function<bool(double)>& progress) {
    constexpr std::int64_t toTheEnd = std::numeric_limits<std::int64_t>::max();
    const bool isDivided = back.first() < all;
    std::atomic<bool> isStopped = false;
    std::atomic<std::int64_t> readBehind = 0;
    Platform::Error behind;
    std::jthread second;
    if (isDivided)
        second = std::jthread([&] {
            behind = scanStretch(path, back, toTheEnd, [&](std::int64_t frames) {
                readBehind = frames;
                return !isStopped;
            });
        });
    const Platform::Error before =
        scanStretch(path, front, isDivided ? back.first() : toTheEnd, [&](std::int64_t frames) {
            if (progress &&
                !progress(std::min(1.0, double(frames + readBehind) / double(std::max<std::int64_t>(1, all)))))
                isStopped = true;
            return !isStopped;
        });
    if (before)
        isStopped = true;
    if (second.joinable())
        second.join();
    return before ? before : behind;
}

/// Where the second scan begins: in the middle, or behind the end of a file that is short or must be read from its
/// beginning.
[[nodiscard]] inline std::int64_t middleOf(std::int64_t all, bool seeksExactly) {
    return seeksExactly && all >= 2 * kLeastPerThread ? all / 2 : std::max<std::int64_t>(1, all);
}

/// Calls @p add with each silence of one level, in order. A silence may reach over the border between the scans, and
/// over all of one. @p end: the end of the last scan.
template <typename Scan, typename Add>
void eachSilence(std::initializer_list<const Scan*> scans, std::size_t level, std::int64_t end, const Add& add) {
    std::int64_t since = 0;
    for (const Scan* scan : scans) {
        if (scan->firstLoud(level) == scan->end())
            continue;
        add(since, scan->firstLoud(level));
        for (const auto& silence : scan->inside(level))
            add(silence.first, silence.end);
        since = scan->lastSilenceBegin(level);
    }
    add(since, end);
}

} // namespace ReadInHalves
