// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/Control/SilenceFinder.h"

#include "Source/Control/ReadInHalves.h"

#include <array>
#include <cmath>
#include <optional>

using Platform::Error;
using Platform::Result;

namespace SilenceFinder {
namespace {

using Progress = std::function<bool(double)>;

constexpr std::int64_t kPacket = 1024; ///< frames of an AAC packet
/// Shortest silence for which single packets are read: a seek decodes a packet more than it gives.
constexpr std::int64_t kLeastToSkip = 8 * kPacket;
constexpr double kShareOfSkipping = 0.1; ///< of the progress, when every frame has to be read after all
constexpr std::int64_t kStepsPerReport = 64;

/// Whether a frame is silent: each of its samples lies below the limit. A broken sample (NaN) is loud.
bool isLoud(float left, float right, float limit) {
    return (int(!(std::fabs(left) < limit)) | int(!(std::fabs(right) < limit))) != 0;
}

/// The silences of one level in a stretch of frames. Of those between loud frames it keeps the ones of the shortest
/// length, and the length of the longest.
class LimitScan {
public:
    LimitScan(float limit, std::int64_t shortest, std::int64_t first)
        : limit_(limit), shortest_(shortest), first_(first), end_(first), silentSince_(first) {}

    void add(std::span<const float> left, std::span<const float> right) {
        for (std::size_t at = 0; at < left.size(); at += kChunk)
            addChunk(left.data() + at, right.data() + at, std::min(kChunk, left.size() - at));
    }
    void finish() {}

    [[nodiscard]] std::int64_t first() const { return first_; }
    [[nodiscard]] std::int64_t end() const { return end_; }
    [[nodiscard]] std::int64_t longestInside() const { return longest_; }
    [[nodiscard]] const std::vector<Silence>& inside(std::size_t /*level*/) const { return inside_; }
    [[nodiscard]] std::int64_t firstLoud(std::size_t /*level*/) const { return firstLoud_.value_or(end_); }
    [[nodiscard]] std::int64_t lastSilenceBegin(std::size_t /*level*/) const { return silentSince_; }

private:
    static constexpr std::size_t kChunk = 64; ///< frames

    void addChunk(const float* left, const float* right, std::size_t count) {
        std::array<std::uint8_t, kChunk> loud{};
        std::uint8_t any = 0;
        const auto compare = [&](std::size_t frames) {
            for (std::size_t i = 0; i < frames; ++i) {
                loud[i] = std::uint8_t(isLoud(left[i], right[i], limit_));
                any |= loud[i];
            }
        };
        if (count == kChunk)
            compare(kChunk); // of a constant number the compiler makes vector code
        else
            compare(count);
        const std::int64_t begin = end_;
        end_ += std::int64_t(count);
        if (!any)
            return;
        const auto from = std::size_t(std::find(loud.begin(), loud.begin() + std::ptrdiff_t(count), 1) - loud.begin());
        takeLoud(begin + std::int64_t(from));
        // Inside a chunk only silences that are shorter than it can end.
        if (std::min(longest_ + 1, shortest_) >= std::int64_t(kChunk)) {
            std::size_t last = count - 1;
            while (!loud[last])
                --last;
            silentSince_ = begin + std::int64_t(last) + 1;
            return;
        }
        for (std::size_t i = from + 1; i < count; ++i)
            if (loud[i])
                takeLoud(begin + std::int64_t(i));
    }
    void takeLoud(std::int64_t frame) {
        if (!firstLoud_) {
            firstLoud_ = frame;
        } else {
            longest_ = std::max(longest_, frame - silentSince_);
            if (frame - silentSince_ >= shortest_)
                inside_.push_back({silentSince_, frame});
        }
        silentSince_ = frame + 1;
    }

    float limit_;
    std::int64_t shortest_;
    std::int64_t first_;
    std::int64_t end_;
    std::int64_t silentSince_;
    std::int64_t longest_ = 0;
    std::optional<std::int64_t> firstLoud_;
    std::vector<Silence> inside_;
};

/// Reads every frame.
Result<Found> findInAll(const QString& path, float limit, std::int64_t shortest, bool seeksExactly, Found found,
                        const Progress& progress) {
    const std::int64_t all = std::max<std::int64_t>(1, found.frames);
    LimitScan front(limit, shortest, 0);
    LimitScan back(limit, shortest, ReadInHalves::middleOf(all, seeksExactly));
    const bool isDivided = back.first() < all;
    if (const Error error = ReadInHalves::read(path, all, front, back, progress))
        return error;
    found.frames = isDivided ? back.end() : front.end();
    found.longest = std::max(front.longestInside(), back.longestInside());
    ReadInHalves::eachSilence({&front, &back}, 0, found.frames, [&](std::int64_t first, std::int64_t end) {
        found.longest = std::max(found.longest, end - first);
        if (end - first >= shortest)
            found.silences.push_back({first, end});
    });
    return found;
}

/// Looks for silences without reading what cannot belong to one: behind a loud frame, a silence of the shortest length
/// contains the frame that many frames further on, so when a frame shortly before that is loud, the search goes on
/// there.
class SkippingSearch {
public:
    SkippingSearch(Platform::ExtAudioFileReader& reader, const AudioStreamBasicDescription& format, float limit,
                   std::int64_t shortest, std::int64_t frames)
        : reader_(reader), format_(format), limit_(limit), shortest_(shortest), frames_(frames) {}

    /// The silences; nothing when a part could not be read, or @p progress stopped it.
    std::optional<std::vector<Silence>> run(const Progress& progress) {
        std::vector<Silence> found;
        std::int64_t since = 0; // first frame behind a loud one
        for (std::int64_t steps = 1; frames_ - since >= shortest_; ++steps) {
            if (steps % kStepsPerReport == 0 && progress && !progress(double(since) / double(frames_)))
                return std::nullopt;
            // Whole packets: the end of the last one that lies in the shortest silence from here on.
            const std::int64_t probe = std::max(since + 1, (since + shortest_) / kPacket * kPacket);
            const auto loud = lastLoudBefore(probe, since);
            if (isBroken_)
                return std::nullopt;
            if (loud) {
                since = *loud + 1;
                continue;
            }
            const std::int64_t end = firstLoudFrom(probe);
            if (isBroken_)
                return std::nullopt;
            if (end - since >= shortest_)
                found.push_back({since, end});
            since = end + 1;
        }
        return found;
    }

private:
    /// The last loud frame of those from @p least up to @p end, which is not included.
    std::optional<std::int64_t> lastLoudBefore(std::int64_t end, std::int64_t least) {
        std::int64_t stretch = kPacket;
        while (end > least) {
            const std::int64_t first = std::max(least, end - stretch);
            std::optional<std::int64_t> last;
            read(first, end, [&](std::int64_t at, std::span<const float> left, std::span<const float> right) {
                for (std::size_t i = left.size(); i-- > 0;)
                    if (isLoud(left[i], right[i], limit_)) {
                        last = at + std::int64_t(i);
                        break;
                    }
                return true;
            });
            if (last || isBroken_)
                return last;
            end = first;
            stretch *= 4;
        }
        return std::nullopt;
    }

    /// The first loud frame from @p first on, or the end of the file.
    std::int64_t firstLoudFrom(std::int64_t first) {
        std::int64_t found = frames_;
        read(first, frames_, [&](std::int64_t at, std::span<const float> left, std::span<const float> right) {
            for (std::size_t i = 0; i < left.size(); ++i)
                if (isLoud(left[i], right[i], limit_)) {
                    found = at + std::int64_t(i);
                    return false;
                }
            return true;
        });
        return found;
    }

    /// Gives the frames to @p take until it returns false.
    template <typename Take>
    void read(std::int64_t first, std::int64_t end, const Take& take) {
        isBroken_ = reader_.seek(first) != noErr;
        while (!isBroken_ && first < end) {
            std::uint32_t frames = block_.prepare(format_);
            frames = std::uint32_t(std::min<std::int64_t>(frames, end - first));
            isBroken_ = reader_.read(frames, block_.list()) != noErr || frames == 0;
            if (isBroken_ ||
                !take(first, ReadInHalves::plane(block_, 0, frames), ReadInHalves::plane(block_, 1, frames)))
                return;
            first += frames;
        }
    }

    Platform::ExtAudioFileReader& reader_;
    AudioStreamBasicDescription format_;
    float limit_;
    std::int64_t shortest_;
    std::int64_t frames_;
    ClientBlock block_;
    bool isBroken_ = false;
};

} // namespace

Result<Found> find(const QString& path, const Rule& rule, const Progress& progress) {
    auto opened = Platform::services().mediaFiles->openReader(path);
    if (!opened)
        return opened.error();
    auto& reader = **opened;
    const auto format = planarFloatFormat(reader.fileDataFormat().mSampleRate, 2);
    if (reader.setClientDataFormat(format) != noErr)
        return reader.firstError();
    const auto limit = float(std::pow(10.0, rule.level / 20));
    const std::int64_t shortest = std::max<std::int64_t>(1, std::llround(rule.seconds * format.mSampleRate));
    Found found;
    found.sampleRate = format.mSampleRate;
    found.frames = reader.fileLengthFrames();
    bool isStopped = false;
    double done = 0;
    const bool seeksExactly = reader.seeksExactly();
    if (shortest >= kLeastToSkip && seeksExactly) {
        done = kShareOfSkipping;
        SkippingSearch search(reader, format, limit, shortest, found.frames);
        const auto silences = search.run([&](double share) {
            isStopped = progress && !progress(share * done);
            return !isStopped;
        });
        if (isStopped)
            return ReadInHalves::stopped(path);
        if (silences && !silences->empty()) {
            found.silences = *silences;
            for (const Silence& silence : found.silences)
                found.longest = std::max(found.longest, silence.end - silence.first);
            return found;
        }
        // Without such a silence only a look at every frame tells the length of the longest one. It also finds out
        // where a file is damaged.
    }
    return findInAll(path, limit, shortest, seeksExactly, found,
                     [&](double share) { return !progress || progress(done + share * (1 - done)); });
}

std::vector<std::int64_t> cuts(const Found& found) {
    std::vector<std::int64_t> middles;
    for (const Silence& silence : found.silences)
        if (silence.first > 0 && silence.end < found.frames)
            middles.push_back((silence.first + silence.end) / 2);
    return middles;
}

} // namespace SilenceFinder
