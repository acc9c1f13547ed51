// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Media/linux/play/SoundPlayer.h"

#include "Platform/Audio/linux/NodeFormat.h"
#include "Platform/Audio/linux/PipeWireHandles.h"

#include <QCoreApplication>

#include <array>
#include <cerrno>
#include <condition_variable>
#include <cstring>
#include <mutex>
#include <thread>

namespace Platform {

using namespace PipeWire;
using namespace std::chrono_literals;

namespace {

constexpr std::size_t kBlock = 2048;
/// Silent cycles after the last frame: until they are consumed the last frames may still wait in the server.
constexpr int kCyclesBehindTheEnd = 3;
/// After this many damaged places in a row the file counts as ended.
constexpr int kPatience = 1000;

} // namespace

/// Keeps the ring full on a thread of its own.
struct SoundPlayer::Decoder {
    Decoder(ExtAudioFileReader& r, PlayerRing& ring, std::uint32_t count) : reader(r), target(ring), channels(count) {
        thread = std::jthread([this](const std::stop_token& stop) { run(stop); });
    }
    void wake() {
        {
            const std::lock_guard lock(mutex);
            woken = true;
        }
        changed.notify_all();
    }

    void run(const std::stop_token& stop) {
        while (!stop.stop_requested()) {
            if (std::int64_t frame = 0; target.takeJump(frame)) {
                reader.seek(frame);
                target.beginSegment();
                atEnd = false;
            } else if (!atEnd && target.room() >= kBlock) {
                decodeBlock();
            } else {
                // The audio thread must not wake this one, so it polls the ring, often enough to keep it from running
                // dry.
                std::unique_lock lock(mutex);
                changed.wait_for(lock, stop, 20ms, [this] { return woken; });
                woken = false;
            }
        }
    }

    void decodeBlock() {
        struct {
            AudioBufferList head;
            AudioBuffer second;
        } list;
        list.head.mNumberBuffers = channels;
        list.head.mBuffers[0] = {1, sizeof planes[0], planes[0].data()};
        list.second = {1, sizeof planes[1], planes[1].data()};
        std::uint32_t frames = kBlock;
        if (reader.read(frames, &list.head) != noErr && frames == 0 && ++failures < kPatience)
            return; // a damaged place; the reader continues behind it
        if (frames == 0) {
            target.endSegment();
            atEnd = true;
            return;
        }
        failures = 0;
        for (std::uint32_t i = 0; i < frames; ++i)
            for (std::uint32_t c = 0; c < channels; ++c)
                interleaved[i * channels + c] = planes[c][i];
        target.push(std::span(interleaved).first(std::size_t(frames) * channels));
    }

    ExtAudioFileReader& reader;
    PlayerRing& target;
    std::uint32_t channels;
    bool atEnd = true; // until the first jump
    int failures = 0;
    std::array<std::array<float, kBlock>, 2> planes{};
    std::array<float, kBlock * 2> interleaved{};
    std::mutex mutex;
    std::condition_variable_any changed;
    bool woken = false;
    std::jthread thread; // destroyed first: asks the thread to stop and waits for it
};

/// The stream and its loop. The player, which the callbacks use, outlives it.
struct SoundPlayer::Connection {
    explicit Connection(SoundPlayer& p) : player(p) {}
    ~Connection() {
        if (!loop)
            return;
        {
            LoopLock lock(loop.get());
            if (stream)
                unhookFromDataThread(context.get(), streamListener);
            stream.reset();
            coreListener.remove();
            core.reset();
        }
        pw_thread_loop_stop(loop.get());
    }
    bool start(QString& why);

    void processRt() noexcept {
        pw_buffer* buffer = pw_stream_dequeue_buffer(stream.get());
        if (!buffer)
            return;
        spa_data& data = buffer->buffer->datas[0];
        const auto stride = player.format_.mChannelsPerFrame * std::uint32_t(sizeof(float));
        const auto room = data.maxsize / stride;
        const auto wanted = std::uint32_t(std::min<std::uint64_t>(buffer->requested ? buffer->requested : 1024, room));
        if (data.data && wanted > 0)
            player.processRt(static_cast<float*>(data.data), wanted);
        data.chunk->offset = 0;
        data.chunk->stride = std::int32_t(stride);
        data.chunk->size = wanted * stride;
        pw_stream_queue_buffer(stream.get(), buffer);
    }

    SoundPlayer& player;
    ThreadLoopPtr loop;
    ContextPtr context;
    CorePtr core;
    Hook coreListener;
    StreamPtr stream;
    Hook streamListener;
};

bool SoundPlayer::Connection::start(QString& why) {
    initialiseLibrary();
    loop.reset(pw_thread_loop_new("sonaphex-play", nullptr));
    if (loop)
        context.reset(pw_context_new(pw_thread_loop_get_loop(loop.get()), realTimeClient(), 0));
    if (!context || pw_thread_loop_start(loop.get()) < 0) {
        why = QString::fromLocal8Bit(strerror(errno));
        return false;
    }
    LoopLock lock(loop.get());
    core.reset(pw_context_connect(context.get(), nullptr, 0));
    if (!core) {
        why = QCoreApplication::translate("Media", "no sound server answers: %1")
                  .arg(QString::fromLocal8Bit(strerror(errno)));
        return false;
    }
    static constexpr pw_core_events coreEvents = {
        .version = PW_VERSION_CORE_EVENTS,
        .error =
            [](void* data, uint32_t id, int, int result, const char*) {
                if (id == PW_ID_CORE && result == -EPIPE)
                    static_cast<Connection*>(data)->player.lost_.store(true, std::memory_order_release);
            },
    };
    pw_core_add_listener(core.get(), coreListener.get(), &coreEvents, this);

    const auto& format = player.format_;
    const auto rate = std::uint32_t(format.mSampleRate);
    // No role: the session manager would restore a volume that was set for other streams of that role.
    auto* properties =
        pw_properties_new(PW_KEY_MEDIA_TYPE, "Audio", PW_KEY_MEDIA_CATEGORY, "Playback", PW_KEY_APP_NAME, "Sonaphex",
                          PW_KEY_APP_ID, "com.korvane.Sonaphex.player", PW_KEY_NODE_NAME, "sonaphex.player", nullptr);
    pw_properties_setf(properties, PW_KEY_NODE_RATE, "1/%u", rate);
    stream.reset(pw_stream_new(core.get(), "Playback", properties));
    static constexpr pw_stream_events streamEvents = {
        .version = PW_VERSION_STREAM_EVENTS,
        .state_changed =
            [](void* data, pw_stream_state before, pw_stream_state now, const char*) {
                // A stream starts unconnected; becoming unconnected later means that the server removed it.
                if (now == PW_STREAM_STATE_ERROR || (now == PW_STREAM_STATE_UNCONNECTED && before > now))
                    static_cast<Connection*>(data)->player.lost_.store(true, std::memory_order_release);
            },
        .process = [](void* data) { static_cast<Connection*>(data)->processRt(); },
    };
    pw_stream_add_listener(stream.get(), streamListener.get(), &streamEvents, this);
    const PodPtr asked =
        interleavedFloatPod({rate, format.mChannelsPerFrame, defaultChannelPositions(format.mChannelsPerFrame)});
    const spa_pod* params[] = {asked.get()};
    constexpr auto flags =
        pw_stream_flags(PW_STREAM_FLAG_AUTOCONNECT | PW_STREAM_FLAG_MAP_BUFFERS | PW_STREAM_FLAG_RT_PROCESS);
    if (pw_stream_connect(stream.get(), PW_DIRECTION_OUTPUT, PW_ID_ANY, flags, params, 1) < 0) {
        why = QCoreApplication::translate("Media", "the sound server refused the stream");
        return false;
    }
    return true;
}

SoundPlayer::SoundPlayer(ExtAudioFileReader& reader, const AudioStreamBasicDescription& format, double ahead)
    : format_(format), ring_(std::size_t(ahead * format.mSampleRate) + kBlock, format.mChannelsPerFrame),
      decoder_(std::make_unique<Decoder>(reader, ring_, format.mChannelsPerFrame)) {
}

SoundPlayer::~SoundPlayer() = default;

bool SoundPlayer::start(std::int64_t frame, QString& why) {
    seek(frame);
    connection_ = std::make_unique<Connection>(*this);
    return connection_->start(why);
}

void SoundPlayer::seek(std::int64_t frame) {
    ring_.requestJump(frame);
    decoder_->wake();
}

void SoundPlayer::processRt(float* interleaved, std::uint32_t frames) noexcept {
    const auto channels = format_.mChannelsPerFrame;
    const std::span out(interleaved, std::size_t(frames) * channels);
    cycleFrames_.store(frames, std::memory_order_relaxed);
    if (paused_.load(std::memory_order_relaxed)) {
        std::fill(out.begin(), out.end(), 0.0F);
        return;
    }
    const auto played = ring_.popRt(out);
    if (played < frames && ring_.starvedRt())
        lateFrames_.fetch_add(frames - played, std::memory_order_relaxed);
    silentCycles_ = played > 0 ? 0 : silentCycles_ + 1;
    ended_.store(silentCycles_ >= kCyclesBehindTheEnd, std::memory_order_release);

    const float volume = volume_.load(std::memory_order_relaxed);
    const float from = heardVolume_ < 0 ? volume : heardVolume_;
    heardVolume_ = volume;
    if (from == 1 && volume == 1)
        return;
    // A volume change is spread over one cycle, because a step would click.
    for (std::uint32_t i = 0; i < frames; ++i) {
        const float gain = from + (volume - from) * float(i + 1) / float(frames);
        for (std::uint32_t c = 0; c < channels; ++c)
            interleaved[i * channels + c] *= gain;
    }
}

} // namespace Platform
