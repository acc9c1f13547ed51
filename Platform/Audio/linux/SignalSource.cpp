// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Audio/linux/SignalSource.h"

#include "Platform/Audio/linux/NodeFormat.h"
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

/// Everything that the callbacks may use. Members are destroyed in reverse order: the listeners first, the loop last.
struct SignalSource::Connection {
    Connection(const Options& o, const GeneratorRt& g) : options(o), generator(g) {}
    ~Connection() {
        if (!loop)
            return;
        {
            LoopLock lock(loop.get());
            if (timer.get())
                onDataThread([](Connection& self) { self.timer.reset(); });
            if (stream)
                unhookFromDataThread(context.get(), streamListener);
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
    void onTimerRt();
    void armTimerRt(std::uint64_t nsec);
    /// Runs @p work on the data thread and waits for it.
    template <typename Work>
    void onDataThread(Work) {
        pw_data_loop_invoke(
            pw_context_get_data_loop(context.get()),
            [](spa_loop*, bool, std::uint32_t, const void*, std::size_t, void* data) {
                Work()(*static_cast<Connection*>(data));
                return 0;
            },
            0, nullptr, 0, true, this);
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
    // Data thread, where the clock's timer runs. On an ordinary thread a late tick would trigger two cycles at once,
    // and a recorder would miss the first.
    std::uint64_t nextNsec = 0; ///< when the source's own clock ticks next
    std::uint64_t lastDuration = 0;
    std::uint64_t lastTrigger = 0;
    std::atomic<bool> underWay{false}; ///< the graph is still processing the last cycle
    std::atomic<bool> tellsEnd{false}; ///< the library reports when a cycle is done
};

bool SignalSource::Connection::start(std::string& why) {
    initialiseLibrary();
    loop.reset(pw_thread_loop_new(options.nodeName.substr(0, 15).c_str(), nullptr));
    if (!loop) {
        why = strerror(errno);
        return false;
    }
    context.reset(pw_context_new(pw_thread_loop_get_loop(loop.get()), realTimeClient(), 0));
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
        .trigger_done =
            [](void* data) {
                static_cast<Connection*>(data)->tellsEnd = true;
                static_cast<Connection*>(data)->underWay = false;
            },
    };
    pw_stream_add_listener(stream.get(), streamListener.get(), &streamEvents, this);

    if (options.ownClock) {
        onDataThread([](Connection& self) {
            auto* dataLoop = pw_data_loop_get_loop(pw_context_get_data_loop(self.context.get()));
            self.timer = LoopSource(
                dataLoop,
                pw_loop_add_timer(
                    dataLoop, [](void* data, std::uint64_t) { static_cast<Connection*>(data)->onTimerRt(); }, &self));
        });
    }

    const PodPtr format = interleavedFloatPod(
        {options.rate, options.channels,
         options.positions.empty() ? defaultChannelPositions(options.channels) : options.positions});
    const spa_pod* params[] = {format.get()};
    int flags = PW_STREAM_FLAG_MAP_BUFFERS | PW_STREAM_FLAG_RT_PROCESS;
    if (options.ownClock)
        flags |= PW_STREAM_FLAG_DRIVER;
    if (options.connects && options.mediaClass != "Audio/Source" && options.mediaClass != "Audio/Source/Virtual")
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
    if (options.staysAtTarget)
        pw_properties_set(list, "node.dont-reconnect", "true");
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
    if (timer.get() && state == PW_STREAM_STATE_STREAMING) {
        onDataThread([](Connection& self) {
            self.nextNsec = steadyNanoseconds();
            self.underWay = false;
            self.armTimerRt(self.nextNsec);
        });
    } else if (timer.get()) {
        onDataThread([](Connection& self) {
            timespec never = {};
            pw_loop_update_timer(pw_data_loop_get_loop(pw_context_get_data_loop(self.context.get())), self.timer.get(),
                                 &never, nullptr, false);
        });
    }
    pw_thread_loop_signal(loop.get(), false);
}

void SignalSource::Connection::armTimerRt(std::uint64_t nsec) {
    // pw_stream_trigger_process() runs the work that other threads queued for this thread, inside our own callback.
    // Closing the connection is such work: it destroys the timer.
    if (!timer.get())
        return;
    timespec when = {};
    when.tv_sec = time_t(nsec / SPA_NSEC_PER_SEC);
    when.tv_nsec = long(nsec % SPA_NSEC_PER_SEC);
    pw_loop_update_timer(pw_data_loop_get_loop(pw_context_get_data_loop(context.get())), timer.get(), &when, nullptr,
                         true);
}

void SignalSource::Connection::onTimerRt() {
    const auto* position = area.load();
    double seconds = double(options.cycle) / options.rate;
    const std::uint64_t now = steadyNanoseconds();
    if (position && pw_stream_is_driving(stream.get())) {
        if (position->clock.rate.denom > 0 && position->clock.duration > 0)
            seconds = double(position->clock.duration) / position->clock.rate.denom;
        // On an overloaded machine the previous cycle may still be running; nothing would record another cycle now.
        const bool waits =
            tellsEnd && underWay && now < lastTrigger + std::uint64_t(options.patienceMs) * SPA_NSEC_PER_MSEC;
        if (waits) {
            armTimerRt(now + std::uint64_t(seconds * SPA_NSEC_PER_SEC / 16));
            return;
        }
        underWay = true;
        lastTrigger = now;
        pw_stream_trigger_process(stream.get());
    }
    nextNsec += std::uint64_t(seconds * SPA_NSEC_PER_SEC / (1 + options.clockErrorPpm * 1e-6));
    armTimerRt(nextNsec);
}

void SignalSource::Connection::advanceClockRt() noexcept {
    auto* position = area.load(std::memory_order_relaxed);
    if (!position || !options.ownClock || !pw_stream_is_driving(stream.get()))
        return;
    auto& clock = position->clock;
    clock.nsec = nextNsec;
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
