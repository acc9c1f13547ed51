// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Media/linux/encode/FileWriter.h"
#include "Platform/Media/linux/encode/FrameSink.h"
#include "Platform/Media/linux/encode/PlaneRing.h"
#include "Platform/Media/linux/libav/LibAvCodec.h"
#include "Platform/Media/linux/libav/RateConverter.h"

#include <QCoreApplication>

#include <chrono>
#include <cmath>
#include <condition_variable>
#include <mutex>
#include <optional>
#include <thread>

namespace Platform {

namespace {

constexpr std::size_t ringSeconds = 4;
constexpr std::size_t framesAtOnce = 8192;
/// Limit of the samples that wait in a parallel encoding, whatever the length of the file.
constexpr std::int64_t stretchBytes = 64'000'000;
constexpr int shortestStretchSeconds = 120;
/// How much of a second must wait before the file's thread is woken while a recording grows. Waking it for every cycle
/// costs as much as a tenth of the encoding, and cold caches more. The I/O thread delivers a tenth of a second at once,
/// so two deliveries are encoded together. With a fragment of the file they must stay below the second that a killed
/// recording may lack.
constexpr double recordedAtOnce = 0.15;

using namespace std::chrono_literals;

/// Where a writer leaves its conversion stream for the writer of the next file.
struct Handover {
    std::mutex mutex;
    std::condition_variable ready;
    std::shared_ptr<ConversionStream> stream;  // set when it contains all frames before the cut
    std::atomic<std::int64_t> framesBehind{0}; // frames that the successor has accepted
};

/// A counter to wait on: no system call unless the other side waits.
class Signal {
public:
    [[nodiscard]] std::uint32_t now() const { return count_.load(std::memory_order_acquire); }
    void raise() {
        count_.fetch_add(1, std::memory_order_acq_rel);
        count_.notify_one();
    }
    void waitFrom(std::uint32_t seen) const { count_.wait(seen, std::memory_order_acquire); }

private:
    std::atomic<std::uint32_t> count_{0};
};

} // namespace

struct FileWriter::Core {
    void run();
    void store(const Planes& frames);
    void store(const float* const* rows, std::size_t frames);
    void closeFile(ConversionStream& stream, const std::shared_ptr<CutTail>& tail);

    QString path;
    std::uint32_t fileType = 0;
    AudioStreamBasicDescription format;
    OutputFile file;
    std::unique_ptr<FrameSink> sink;

    std::optional<AudioStreamBasicDescription> client;
    std::vector<std::int32_t> map;      // for each file channel, a client channel
    std::vector<std::size_t> rowOf;     // for each file channel, a row of the ring
    std::vector<std::int32_t> channels; // for each row of the ring, a client channel
    std::unique_ptr<PlaneRing> ring;
    std::thread thread;
    bool started = false;
    bool disposed = false;       // used by the owner
    std::size_t quietFrames = 0; // frames pushed since the thread was woken

    Signal toThread, toCaller;
    std::atomic<std::int64_t> accepted{0};
    std::atomic<bool> closing{false};
    bool mayWaitLong = false;             // set before closing
    std::function<void(OSStatus)> closed; // set before closing
    std::shared_ptr<Handover> from;       // from the predecessor; set before the thread starts
    std::shared_ptr<Handover> handTo;     // set before sealed
    std::atomic<bool> sealed{false};      // a successor continues this file
};

FileWriter::FileWriter(const QString& path, std::uint32_t fileType, const AudioStreamBasicDescription& format)
    : core_(std::make_shared<Core>()) {
    core_->path = path;
    core_->fileType = fileType;
    core_->format = format;
}

FileWriter::~FileWriter() {
    dispose();
}

Result<> FileWriter::open(bool overwrite) {
    return core_->file.create(core_->path, overwrite);
}

OSStatus FileWriter::setClientDataFormat(const AudioStreamBasicDescription& format) {
    if (core_->started)
        return kMediaInvalidStateError;
    const double rate = format.mSampleRate;
    if (format.mFormatID != kAudioFormatLinearPCM || !(format.mFormatFlags & kAudioFormatFlagIsFloat) ||
        format.mBitsPerChannel != 32 || format.mChannelsPerFrame < 1 || format.mChannelsPerFrame > 256 ||
        !(rate >= 1000 && rate <= 1'000'000))
        return kMediaInvalidPropertyError;
    core_->client = format;
    return noErr;
}

bool FileWriter::hasAudioConverter() const {
    return core_->client.has_value();
}

OSStatus FileWriter::setConverterChannelMap(std::span<const std::int32_t> map) {
    if (core_->started || !core_->client)
        return kMediaInvalidStateError;
    if (map.size() != core_->format.mChannelsPerFrame)
        return kMediaInvalidPropertyError;
    core_->map.assign(map.begin(), map.end());
    return noErr;
}

OSStatus FileWriter::continueFrom(ExtAudioFileWriter& predecessor) {
    auto* before = dynamic_cast<FileWriter*>(&predecessor);
    if (core_->started || !core_->client || core_->from || !before || before->core_->disposed || before->core_->sealed)
        return kMediaInvalidStateError;
    Core& other = *before->core_;
    if (core_->client != other.client || core_->format.mSampleRate != other.format.mSampleRate ||
        core_->format.mChannelsPerFrame != other.format.mChannelsPerFrame)
        return kMediaInvalidPropertyError;
    before->start(false);
    // The rows in the converter are in the order of the predecessor's channel map.
    core_->map = other.map;
    core_->from = std::make_shared<Handover>();
    other.handTo = core_->from;
    other.sealed = true;
    other.toThread.raise();
    return noErr;
}

/// Creates ring, encoder and thread. @p parallel: all frames exist already, so several threads may encode.
void FileWriter::start(bool parallel) {
    Core& core = *core_;
    if (core.started)
        return;
    const std::size_t width = core.format.mChannelsPerFrame;
    // Without a client format the stream has the file's own layout; it can only be closed.
    const auto clientChannels = core.client ? std::int32_t(core.client->mChannelsPerFrame) : std::int32_t(width);
    const int clientRate = int(std::lround(core.client ? core.client->mSampleRate : core.format.mSampleRate));
    for (std::size_t c = 0; c < width; ++c) {
        std::int32_t channel = c < core.map.size() ? core.map[c] : std::int32_t(c);
        if (core.map.empty() && clientChannels == 1)
            channel = 0;
        const auto known = std::ranges::find(core.channels, channel);
        core.rowOf.push_back(std::size_t(known - core.channels.begin()));
        if (known == core.channels.end())
            core.channels.push_back(channel);
    }
    const int rate = int(std::lround(core.format.mSampleRate));
    if (core.format.mFormatID == kAudioFormatMPEG4AAC) {
        AacSettings settings;
        settings.rate = rate;
        settings.channels = int(width);
        settings.rowOf = core.rowOf;
        const auto packetBytes = std::int64_t(core.channels.size()) * 1024 * 4;
        const std::int64_t shortest = std::int64_t(rate) * shortestStretchSeconds / 1024 + 1;
        const auto affordable = std::max<std::int64_t>(1, stretchBytes / (shortest * packetBytes) + 1);
        const auto cores = std::int64_t(std::max(1u, std::thread::hardware_concurrency()));
        settings.workers = parallel ? int(std::min(cores, affordable)) : 1;
        // Few threads get longer stretches, because each stretch costs a warm-up.
        const std::int64_t longest = stretchBytes * 2 / 3 / (packetBytes * std::max(1, settings.workers - 1));
        settings.stretchPackets = std::max(shortest, longest);
        core.sink = createAacSink(
            core.file, core.fileType == kAudioFileCAFType ? createCafFile(core.file) : createMpeg4File(core.file),
            settings);
    } else {
        core.sink = createWaveSink(core.file, rate, int(width), int(core.format.mBitsPerChannel),
                                   core.format.mFormatFlags & kAudioFormatFlagIsFloat);
    }
    if (!core.sink) {
        std::string why;
        const bool isMissing = core.format.mFormatID == kAudioFormatMPEG4AAC && !Av::codecLibrary(&why);
        core.file.fail(makeError(
            Error::Kind::Encoder, core.path,
            isMissing ? QCoreApplication::translate("Media", "the encoder is missing: %1")
                            .arg(QString::fromLocal8Bit(why.c_str()))
                      : QCoreApplication::translate("Media", "the encoder does not take this rate or channel count")));
    }
    core.ring = std::make_unique<PlaneRing>(core.channels.size(), std::size_t(clientRate) * ringSeconds);
    core.started = true;
    core.thread = std::thread([core = core_] { core->run(); });
}

OSStatus FileWriter::write(std::uint32_t frames, const AudioBufferList* data) {
    if (core_->disposed || !core_->client)
        return kMediaInvalidStateError;
    start(true);
    return push(frames, data, framesAtOnce);
}

OSStatus FileWriter::writeAsync(std::uint32_t frames, const AudioBufferList* data) {
    if (core_->disposed || !core_->client)
        return kMediaInvalidStateError;
    start(false);
    return push(frames, data, std::size_t(recordedAtOnce * core_->client->mSampleRate));
}

/// @p wakeAfter: the file's thread is woken when this many frames wait. Waking it for each small block would cost more
/// than the copy.
OSStatus FileWriter::push(std::uint32_t frames, const AudioBufferList* data, std::size_t wakeAfter) {
    Core& core = *core_;
    if (frames == 0)
        return statusOf(core_->file.firstError());
    if (!data)
        return kMediaInvalidPropertyError;
    if (core.sealed)
        return kMediaInvalidStateError; // frames behind the cut belong to the successor
    const bool apart = core.client->mFormatFlags & kAudioFormatFlagIsNonInterleaved;
    const std::size_t stride = apart ? 1 : core.client->mChannelsPerFrame;
    const auto listed = std::span(data->mBuffers, data->mNumberBuffers);
    std::array<const float*, 64> rows = {};
    std::size_t count = frames;
    const std::size_t rowCount = std::min(core.channels.size(), rows.size());
    for (std::size_t r = 0; r < rowCount; ++r) {
        const std::int32_t channel = core.channels[r];
        const std::size_t buffer = apart ? std::size_t(channel) : 0;
        if (channel < 0 || buffer >= listed.size() || !listed[buffer].mData ||
            (!apart && std::size_t(channel) >= stride))
            continue; // silence
        rows[r] = static_cast<const float*>(listed[buffer].mData) + (apart ? 0 : channel);
        count = std::min(count, std::size_t(listed[buffer].mDataByteSize) / (4 * stride));
    }
    for (std::size_t done = 0; done < count;) {
        const auto seen = core.toCaller.now();
        const std::size_t taken = core.ring->push(rows.data(), stride, count - done);
        if (taken == 0) {
            core.toThread.raise();
            core.toCaller.waitFrom(seen);
            continue;
        }
        done += taken;
        for (std::size_t r = 0; r < rowCount; ++r)
            rows[r] = rows[r] ? rows[r] + taken * stride : nullptr;
        core.quietFrames += taken;
        if (core.quietFrames >= wakeAfter) {
            core.quietFrames = 0;
            core.toThread.raise();
        }
    }
    core.accepted += std::int64_t(count);
    if (core.from)
        core.from->framesBehind += std::int64_t(count);
    return statusOf(core_->file.firstError());
}

OSStatus FileWriter::dispose() {
    if (!std::exchange(core_->disposed, true)) {
        start(true);
        core_->closing = true;
        core_->toThread.raise();
        core_->thread.join();
    }
    return statusOf(core_->file.firstError());
}

void FileWriter::disposeLater(std::function<void(OSStatus)> closed) {
    if (std::exchange(core_->disposed, true))
        return;
    start(false);
    core_->closed = std::move(closed);
    core_->mayWaitLong = true;
    core_->thread.detach();
    core_->closing = true;
    core_->toThread.raise();
}

std::int64_t FileWriter::framesAccepted() const {
    return core_->accepted;
}

Error FileWriter::firstError() const {
    return core_->file.firstError();
}

QString FileWriter::path() const {
    return core_->path;
}

void FileWriter::Core::run() {
    std::shared_ptr<ConversionStream> stream;
    if (from) {
        std::unique_lock lock(from->mutex);
        from->ready.wait(lock, [&] { return from->stream != nullptr; });
        stream = from->stream;
    } else {
        const int fileRate = int(std::lround(format.mSampleRate));
        stream = std::make_shared<ConversionStream>(
            channels.size(), client ? int(std::lround(client->mSampleRate)) : fileRate, fileRate);
        if (!stream->valid())
            file.fail(makeError(Error::Kind::Encoder, path,
                                QCoreApplication::translate("Media", "the rate cannot be converted")));
    }
    std::shared_ptr<CutTail> tail;
    std::vector<const float*> rows;
    Planes converted(channels.size());
    for (;;) {
        const auto seen = toThread.now();
        const bool ending = closing;
        const bool cut = sealed;
        const std::size_t frames = ring->peek(rows, framesAtOnce);
        if (frames > 0) {
            if (stream->passesThrough()) {
                stream->pass(frames);
                store(rows.data(), frames);
                ring->release(frames);
            } else {
                stream->feed(rows.data(), frames, converted);
                ring->release(frames);
                store(converted);
            }
            toCaller.raise();
            continue;
        }
        if (cut && !tail) {
            tail = std::make_shared<CutTail>();
            tail->frames = Planes(channels.size());
            stream->cut(tail);
            const std::lock_guard lock(handTo->mutex);
            handTo->stream = stream;
            handTo->ready.notify_all();
        }
        if (ending)
            break;
        toThread.waitFrom(seen);
    }
    closeFile(*stream, tail);
    if (closed)
        closed(statusOf(file.firstError()));
}

void FileWriter::Core::store(const Planes& frames) {
    std::vector<const float*> rows(frames.channels());
    for (std::size_t r = 0; r < rows.size(); ++r)
        rows[r] = frames.row(r);
    store(rows.data(), frames.frames());
}

void FileWriter::Core::store(const float* const* rows, std::size_t frames) {
    if (!sink || frames == 0 || file.failed())
        return;
    std::array<const float*, 64> of;
    const std::size_t width = std::min(rowOf.size(), of.size());
    for (std::size_t c = 0; c < width; ++c)
        of[c] = rows[rowOf[c]];
    sink->append(of.data(), frames);
}

/// With a successor, the last frames wait for input from behind the cut. When none comes (the recording is paused, or
/// ended there), silence is used instead.
void FileWriter::Core::closeFile(ConversionStream& stream, const std::shared_ptr<CutTail>& tail) {
    if (tail) {
        const auto grace = mayWaitLong ? 2s : 200ms;
        std::unique_lock lock(tail->mutex);
        for (std::int64_t behind = -1; !tail->complete;) {
            const std::int64_t now = handTo->framesBehind;
            if (now == behind) {
                lock.unlock();
                stream.completeTails();
                lock.lock();
                break;
            }
            behind = now;
            tail->changed.wait_for(lock, grace, [&] { return tail->complete; });
        }
        store(tail->frames);
    } else {
        Planes rest(channels.size());
        stream.finish(rest);
        store(rest);
    }
    if (sink)
        sink->finish();
    // The callback may delete the sources of the file, so the file must be on the disk first.
    file.sync();
    file.close();
}

} // namespace Platform
