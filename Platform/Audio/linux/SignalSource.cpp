// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Audio/linux/SignalSource.h"

#include "Platform/Audio/linux/PipeWireHandles.h"

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <cstring>
#include <ctime>

namespace Platform {

using namespace PipeWire;

namespace {

std::uint64_t steadyNanoseconds() {
    timespec now = {};
    clock_gettime(CLOCK_MONOTONIC, &now);
    return std::uint64_t(now.tv_sec) * SPA_NSEC_PER_SEC + std::uint64_t(now.tv_nsec);
}

} // namespace

/// What the callbacks may touch. Members are destroyed from the bottom up: the listeners first, the loop last.
struct SignalSource::Connection {
    Connection(const Options& o, const GeneratorRt& g) : options(o), generator(g) {}
    ~Connection() {
        if (!loop)
            return;
        {
            LoopLock lock(loop.get());
            timer.reset();
            streamListener.remove();
            stream.reset();
            coreListener.remove();
            core.reset();
        }
        pw_thread_loop_stop(loop.get());
    }

    bool start(std::string& why);
    pw_properties* properties() const;
    void onStateChanged(pw_stream_state state, const char* error);
    void processRt() noexcept;
    void advanceClockRt() noexcept;
    void onTimer();
    void armTimer();
    std::uint64_t asNanoseconds(double seconds) const {
        return std::uint64_t(seconds * SPA_NSEC_PER_SEC / (1 + options.clockErrorPpm * 1e-6));
    }

    const Options& options;
    const GeneratorRt& generator;
    ThreadLoopPtr loop;
    ContextPtr context;
    CorePtr core;
    Hook coreListener;
    StreamPtr stream;
    Hook streamListener;
    LoopSource timer;

    std::atomic<bool> serverGone{false};
    bool known = false; ///< the server has the node; under the loop's lock
    std::string error;
    std::atomic<spa_io_position*> area{nullptr};
    std::atomic<std::uint64_t> frames{0};
    std::uint64_t nextNsec = 0;             ///< when the own clock ticks next; loop's thread
    std::atomic<std::uint64_t> tickNsec{0}; ///< the tick at hand, as the timer saw it
    std::uint64_t clockNsec = 0;            ///< what the clock says; data thread
    std::uint64_t lastDuration = 0;         ///< data thread
};

bool SignalSource::Connection::start(std::string& why) {
    initialiseLibrary();
    loop.reset(pw_thread_loop_new(options.nodeName.substr(0, 15).c_str(), nullptr));
    if (!loop) {
        why = strerror(errno);
        return false;
    }
    context.reset(pw_context_new(pw_thread_loop_get_loop(loop.get()),
                                 pw_properties_new(PW_KEY_CONFIG_NAME, "client-rt.conf", nullptr), 0));
    if (!context || pw_thread_loop_start(loop.get()) < 0) {
        why = strerror(errno);
        return false;
    }

    LoopLock lock(loop.get());
    core.reset(pw_context_connect(context.get(), nullptr, 0));
    if (!core) {
        why = std::string("no sound server: ") + strerror(errno);
        return false;
    }
    static constexpr pw_core_events coreEvents = {
        .version = PW_VERSION_CORE_EVENTS,
        .error =
            [](void* data, uint32_t id, int, int result, const char*) {
                auto* self = static_cast<Connection*>(data);
                if (id == PW_ID_CORE && result == -EPIPE) {
                    self->serverGone = true;
                    pw_thread_loop_signal(self->loop.get(), false);
                }
            },
    };
    pw_core_add_listener(core.get(), coreListener.get(), &coreEvents, this);

    stream.reset(pw_stream_new(core.get(), options.description.c_str(), properties()));
    static constexpr pw_stream_events streamEvents = {
        .version = PW_VERSION_STREAM_EVENTS,
        .state_changed = [](void* data, pw_stream_state, pw_stream_state state,
                            const char* error) { static_cast<Connection*>(data)->onStateChanged(state, error); },
        .io_changed =
            [](void* data, uint32_t id, void* area, uint32_t) {
                if (id == SPA_IO_Position)
                    static_cast<Connection*>(data)->area = static_cast<spa_io_position*>(area);
            },
        .process = [](void* data) { static_cast<Connection*>(data)->processRt(); },
    };
    pw_stream_add_listener(stream.get(), streamListener.get(), &streamEvents, this);

    if (options.ownClock) {
        auto* mainLoop = pw_thread_loop_get_loop(loop.get());
        timer = LoopSource(
            mainLoop, pw_loop_add_timer(
                          mainLoop, [](void* data, uint64_t) { static_cast<Connection*>(data)->onTimer(); }, this));
    }

    std::uint8_t memory[1024];
    spa_pod_builder builder = SPA_POD_BUILDER_INIT(memory, sizeof memory);
    spa_audio_info_raw format = {};
    format.format = SPA_AUDIO_FORMAT_F32;
    format.rate = options.rate;
    format.channels = options.channels;
    if (options.channels == 1) {
        format.position[0] = SPA_AUDIO_CHANNEL_MONO;
    } else if (options.channels == 2) {
        format.position[0] = SPA_AUDIO_CHANNEL_FL;
        format.position[1] = SPA_AUDIO_CHANNEL_FR;
    } else {
        for (std::uint32_t i = 0; i < std::min(options.channels, SPA_AUDIO_MAX_CHANNELS); ++i)
            format.position[i] = SPA_AUDIO_CHANNEL_AUX0 + i;
    }
    const spa_pod* params[] = {spa_format_audio_raw_build(&builder, SPA_PARAM_EnumFormat, &format)};
    int flags = PW_STREAM_FLAG_MAP_BUFFERS | PW_STREAM_FLAG_RT_PROCESS;
    if (options.ownClock)
        flags |= PW_STREAM_FLAG_DRIVER;
    if (options.mediaClass != "Audio/Source" && options.mediaClass != "Audio/Source/Virtual")
        flags |= PW_STREAM_FLAG_AUTOCONNECT;
    if (pw_stream_connect(stream.get(), PW_DIRECTION_OUTPUT, PW_ID_ANY, pw_stream_flags(flags), params, 1) < 0) {
        why = "the sound server refused the stream";
        return false;
    }
    const auto deadline = steadyNanoseconds() + 5 * std::uint64_t(SPA_NSEC_PER_SEC);
    while (!known && error.empty() && !serverGone && steadyNanoseconds() < deadline)
        pw_thread_loop_timed_wait(loop.get(), 1);
    why = error.empty() ? "the sound server does not answer" : error;
    return known;
}

pw_properties* SignalSource::Connection::properties() const {
    auto* list = pw_properties_new(PW_KEY_MEDIA_TYPE, "Audio", PW_KEY_MEDIA_CLASS, options.mediaClass.c_str(),
                                   PW_KEY_NODE_NAME, options.nodeName.c_str(), PW_KEY_NODE_DESCRIPTION,
                                   options.description.c_str(), PW_KEY_APP_ID, options.nodeName.c_str(),
                                   "state.restore-props", "false", "state.restore-target", "false", nullptr);
    pw_properties_setf(list, PW_KEY_NODE_RATE, "1/%u", options.rate);
    pw_properties_setf(list, PW_KEY_NODE_LATENCY, "%u/%u", options.cycle, options.rate);
    if (options.mediaClass == "Stream/Output/Audio")
        pw_properties_set(list, PW_KEY_MEDIA_CATEGORY, "Playback");
    if (!options.target.empty())
        pw_properties_set(list, PW_KEY_TARGET_OBJECT, options.target.c_str());
    if (options.ownClock)
        pw_properties_set(list, PW_KEY_PRIORITY_DRIVER, "3000");
    if (options.sessionPriority > 0)
        pw_properties_setf(list, PW_KEY_PRIORITY_SESSION, "%d", options.sessionPriority);
    return list;
}

void SignalSource::Connection::onStateChanged(pw_stream_state state, const char* message) {
    if (state == PW_STREAM_STATE_ERROR)
        error = message ? message : "the stream failed";
    known = known || state == PW_STREAM_STATE_PAUSED || state == PW_STREAM_STATE_STREAMING;
    if (options.ownClock && state == PW_STREAM_STATE_STREAMING) {
        nextNsec = steadyNanoseconds();
        armTimer();
    } else if (timer.get()) {
        timespec never = {};
        pw_loop_update_timer(pw_thread_loop_get_loop(loop.get()), timer.get(), &never, nullptr, false);
    }
    pw_thread_loop_signal(loop.get(), false);
}

void SignalSource::Connection::armTimer() {
    timespec when = {};
    when.tv_sec = time_t(nextNsec / SPA_NSEC_PER_SEC);
    when.tv_nsec = long(nextNsec % SPA_NSEC_PER_SEC);
    pw_loop_update_timer(pw_thread_loop_get_loop(loop.get()), timer.get(), &when, nullptr, true);
}

void SignalSource::Connection::onTimer() {
    const auto* position = area.load();
    double seconds = double(options.cycle) / options.rate;
    if (position && pw_stream_is_driving(stream.get())) {
        if (position->clock.rate.denom > 0 && position->clock.duration > 0)
            seconds = double(position->clock.duration) / position->clock.rate.denom;
        tickNsec = nextNsec;
        pw_stream_trigger_process(stream.get());
    }
    nextNsec += asNanoseconds(seconds);
    armTimer();
}

void SignalSource::Connection::advanceClockRt() noexcept {
    auto* position = area.load(std::memory_order_relaxed);
    if (!position || !options.ownClock || !pw_stream_is_driving(stream.get()))
        return;
    auto& clock = position->clock;
    // The timer may be a tick ahead of this thread, so the time is counted here; after a pause it is taken anew.
    const std::uint64_t tick = tickNsec.load(std::memory_order_relaxed);
    if (clock.rate.denom > 0)
        clockNsec += asNanoseconds(double(lastDuration) / clock.rate.denom);
    if (tick > clockNsec + SPA_NSEC_PER_SEC / 4 || clockNsec > tick + SPA_NSEC_PER_SEC / 4)
        clockNsec = tick;
    clock.nsec = clockNsec;
    clock.position += lastDuration;
    clock.rate_diff = 1 + options.clockErrorPpm * 1e-6;
    lastDuration = clock.duration;
}

void SignalSource::Connection::processRt() noexcept {
    advanceClockRt();
    pw_buffer* buffer = pw_stream_dequeue_buffer(stream.get());
    if (!buffer)
        return;
    spa_data& data = buffer->buffer->datas[0];
    const std::uint32_t stride = options.channels * std::uint32_t(sizeof(float));
    std::uint64_t wanted = buffer->requested ? buffer->requested : options.cycle;
    wanted = std::min<std::uint64_t>(wanted, data.maxsize / stride);
    if (data.data && wanted > 0) {
        generator(static_cast<float*>(data.data), std::uint32_t(wanted), options.channels,
                  frames.load(std::memory_order_relaxed));
        frames.fetch_add(wanted, std::memory_order_relaxed);
    }
    data.chunk->offset = 0;
    data.chunk->stride = std::int32_t(stride);
    data.chunk->size = std::uint32_t(wanted) * stride;
    pw_stream_queue_buffer(stream.get(), buffer);
}

SignalSource::SignalSource(Options options, GeneratorRt generator)
    : options_(std::move(options)), generator_(std::move(generator)) {
}

SignalSource::~SignalSource() = default;

bool SignalSource::start(std::string& why) {
    stop();
    connection_ = std::make_unique<Connection>(options_, generator_);
    if (connection_->start(why))
        return true;
    stop();
    return false;
}

void SignalSource::stop() {
    connection_.reset();
}

bool SignalSource::alive() const {
    return connection_ && !connection_->serverGone;
}

std::uint64_t SignalSource::position() const {
    return connection_ ? connection_->frames.load(std::memory_order_relaxed) : 0;
}

} // namespace Platform
