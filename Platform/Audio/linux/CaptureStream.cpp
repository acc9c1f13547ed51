// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Audio/linux/CaptureStream.h"

#include "Platform/Audio/linux/NodeFormat.h"

#include <QCoreApplication>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <thread>
#include <utility>

namespace Platform {

using namespace PipeWire;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// Frames that the server may deliver at once, at rates up to 48 kHz. A recorder needs no shorter blocks, because the
/// capture times are exact in blocks of any length, and every block wakes a thread. A power of two, to which the server
/// rounds down, and its longest quantum by default. It uses less when another program asks for less.
constexpr std::uint32_t longestBlock = 2048;
constexpr std::uint32_t shortBlock = 512;

/// The session manager refuses a device for a moment when it does not know it yet, or when an older link to it is still
/// being removed. The time between two requests doubles from the first to the longest.
constexpr std::chrono::milliseconds firstPause = 50ms;
constexpr std::chrono::milliseconds longestPause = 2000ms;

} // namespace

CaptureStream::CaptureStream(std::shared_ptr<DeviceRegistry> registry, Target target, CaptureRing& ring,
                             Observer observer)
    : registry_(std::move(registry)), target_(std::move(target)), ring_(ring), observer_(std::move(observer)),
      pointers_(target_.channels) {
    LoopLock lock(registry_->connection()->threadLoop());
    auto* loop = registry_->connection()->loop();
    work_ = LoopSource(loop,
                       pw_loop_add_event(
                           loop, [](void* data, std::uint64_t) { static_cast<CaptureStream*>(data)->onWork(); }, this));
    askAgainTimer_ = LoopSource(
        loop, pw_loop_add_timer(
                  loop, [](void* data, std::uint64_t) { static_cast<CaptureStream*>(data)->revive(); }, this));
    registry_->add(*this);
}

CaptureStream::~CaptureStream() {
    LoopLock lock(registry_->connection()->threadLoop());
    registry_->remove(*this);
    closeStream();
    askAgainTimer_.reset();
    work_.reset();
}

bool CaptureStream::open(int milliseconds, QString& why) {
    {
        LoopLock lock(registry_->connection()->threadLoop());
        const auto device = registry_->device(target_.device);
        if (!device) {
            missing_ = registry_->connection()->connected() ? Missing::Device : Missing::Server;
            why = missing_ == Missing::Device ? QCoreApplication::translate("Audio", "the device is not there")
                                              : registry_->connection()->lastError();
            return false;
        }
        opening_ = true;
        if (!connectStream(*device)) {
            opening_ = false;
            why = QCoreApplication::translate("Audio", "the sound server refused to capture the device");
            return false;
        }
    }
    {
        std::unique_lock lock(stateMutex_);
        stateChanged_.wait_for(lock, std::chrono::milliseconds(milliseconds),
                               [this] { return state_ == State::Streaming || state_ == State::Closed; });
    }
    LoopLock lock(registry_->connection()->threadLoop());
    opening_ = false;
    std::lock_guard guard(stateMutex_);
    if (state_ == State::Streaming || (state_ == State::Connecting && error_.empty()))
        return true; // still connecting on a very busy machine: the stream starts later
    why = QCoreApplication::translate("Audio", error_.c_str());
    return false;
}

bool CaptureStream::connectStream(const AudioDeviceInfo& device) {
    closeStream();
    auto* core = registry_->connection()->core();
    if (!core)
        return false;
    static std::atomic<int> units{0};
    // The session manager restores volumes by role, then by application id. A role, or an id that was used before,
    // could restore a gain that the user once set for another stream.
    const std::string applicationId =
        "com.korvane.Sonaphex." + std::to_string(QCoreApplication::applicationPid()) + '.' + std::to_string(++units);
    auto* properties = pw_properties_new(PW_KEY_MEDIA_TYPE, "Audio", PW_KEY_MEDIA_CATEGORY, "Capture", PW_KEY_APP_ID,
                                         applicationId.c_str(), PW_KEY_APP_NAME, "Sonaphex", PW_KEY_NODE_NAME,
                                         "sonaphex.capture", "node.dont-reconnect", "true", "state.restore-props",
                                         "false", "state.restore-target", "false", nullptr);
    pw_properties_setf(properties, PW_KEY_TARGET_OBJECT, "%llu", static_cast<unsigned long long>(device.serial));
    pw_properties_setf(properties, PW_KEY_NODE_RATE, "1/%u", target_.sampleRate);
    pw_properties_set(properties, PW_KEY_NODE_LATENCY, latency().c_str());
    stream_.reset(pw_stream_new(core, "Sonaphex", properties));
    if (!stream_)
        return false;
    static constexpr pw_stream_events events = {
        .version = PW_VERSION_STREAM_EVENTS,
        .state_changed = [](void* data, pw_stream_state, pw_stream_state state,
                            const char* error) { static_cast<CaptureStream*>(data)->onStateChanged(state, error); },
        .io_changed =
            [](void* data, std::uint32_t id, void* area, std::uint32_t) {
                if (id == SPA_IO_Position)
                    static_cast<CaptureStream*>(data)->position_ = static_cast<const spa_io_position*>(area);
            },
        .process = [](void* data) { static_cast<CaptureStream*>(data)->processRt(); },
    };
    begins_ = true;
    mayBeSilentStart_ = true;
    pw_stream_add_listener(stream_.get(), listener_.get(), &events, this);

    const PodPtr format = planarFloatPod({target_.sampleRate, target_.channels, target_.positions});
    const spa_pod* params[] = {format.get()};
    constexpr int flags = PW_STREAM_FLAG_AUTOCONNECT | PW_STREAM_FLAG_MAP_BUFFERS | PW_STREAM_FLAG_RT_PROCESS |
                          PW_STREAM_FLAG_DONT_RECONNECT;
    gone_ = false;
    setVolume_ = true;
    setState(State::Connecting);
    if (pw_stream_connect(stream_.get(), PW_DIRECTION_INPUT, PW_ID_ANY, pw_stream_flags(flags), params, 1) < 0) {
        closeStream();
        return false;
    }
    return true;
}

/// The block length to ask for: "2048/48000".
std::string CaptureStream::latency() const {
    const std::uint32_t factor = std::max(1u, target_.sampleRate / 44100);
    const std::uint32_t frames =
        shortBlocks_ ? shortBlock * factor : std::max(target_.cycleFrames, longestBlock * factor);
    return std::to_string(frames) + '/' + std::to_string(target_.sampleRate);
}

void CaptureStream::setShortBlocks(bool on) {
    LoopLock lock(registry_->connection()->threadLoop());
    if (std::exchange(shortBlocks_, on) == on || !stream_)
        return;
    const std::string text = latency();
    const spa_dict_item item = SPA_DICT_ITEM_INIT(PW_KEY_NODE_LATENCY, text.c_str());
    const spa_dict changed = SPA_DICT_INIT(&item, 1);
    pw_stream_update_properties(stream_.get(), &changed);
}

void CaptureStream::pause() {
    LoopLock lock(registry_->connection()->threadLoop());
    if (!std::exchange(paused_, true) && stream_)
        pw_stream_set_active(stream_.get(), false);
}

void CaptureStream::resume(int milliseconds) {
    const std::uint64_t before = blocks();
    {
        LoopLock lock(registry_->connection()->threadLoop());
        if (!std::exchange(paused_, false) || !stream_)
            return;
        begins_ = true;
        resumes_ = true;
        pw_stream_set_active(stream_.get(), true);
    }
    const auto until = std::chrono::steady_clock::now() + std::chrono::milliseconds(milliseconds);
    const auto mayDeliver = [this] { return state_ == State::Streaming || state_ == State::Connecting; };
    while (blocks() == before && mayDeliver() && std::chrono::steady_clock::now() < until)
        std::this_thread::sleep_for(1ms);
}

void CaptureStream::closeStream() {
    setAskAgainTimer(0ms);
    if (stream_)
        unhookFromDataThread(registry_->connection()->context(), listener_);
    stream_.reset();
    position_ = nullptr;
    if (state_ != State::Failed)
        setState(State::Closed);
}

void CaptureStream::setAskAgainTimer(std::chrono::milliseconds after) {
    timespec value = {.tv_sec = after.count() / 1000, .tv_nsec = after.count() % 1000 * 1000000};
    pw_loop_update_timer(registry_->connection()->loop(), askAgainTimer_.get(), &value, nullptr, false);
}

void CaptureStream::askAgainSoon() {
    askAgainAfter_ = std::clamp(askAgainAfter_ * 2, firstPause, longestPause);
    setAskAgainTimer(askAgainAfter_);
}

void CaptureStream::setState(State state, const char* error) {
    {
        std::lock_guard guard(stateMutex_);
        state_ = state;
        if (error)
            error_ = error;
    }
    stateChanged_.notify_all();
}

void CaptureStream::onStateChanged(pw_stream_state state, const char* error) {
    switch (state) {
    case PW_STREAM_STATE_STREAMING:
        setState(State::Streaming);
        askAgainAfter_ = 0ms;
        if (missing_ != Missing::Nothing) {
            observer_(missing_ == Missing::Server ? Change::ServerReturned : Change::DeviceReturned);
            missing_ = Missing::Nothing;
        }
        break;
    case PW_STREAM_STATE_ERROR:
        setState(State::Failed, error ? error : QT_TRANSLATE_NOOP("Audio", "the stream failed"));
        gone_ = true;
        break;
    case PW_STREAM_STATE_UNCONNECTED:
        setState(State::Failed, QT_TRANSLATE_NOOP("Audio", "the device went away"));
        gone_ = true;
        break;
    case PW_STREAM_STATE_PAUSED:
    case PW_STREAM_STATE_CONNECTING:
        break;
    }
    // Controls and the end of a stream must not be handled inside its own callback: the library crashes.
    pw_loop_signal_event(registry_->connection()->loop(), work_.get());
}

void CaptureStream::onWork() {
    if (gone_) {
        gone_ = false;
        closeStream();
        if (!opening_)
            lose(Change::DeviceLost);
        // The device may still exist, or exist again; then its deviceAppeared() was already delivered.
        if (registry_->device(target_.device))
            askAgainSoon();
        return;
    }
    if (revive_.exchange(false)) {
        if (const auto device = registry_->device(target_.device)) {
            if (!opening_)
                lose(Change::DeviceLost);
            connectStream(*device);
        }
        return;
    }
    const auto state = stream_ ? pw_stream_get_state(stream_.get(), nullptr) : PW_STREAM_STATE_UNCONNECTED;
    if (setVolume_ && (state == PW_STREAM_STATE_PAUSED || state == PW_STREAM_STATE_STREAMING)) {
        setVolume_ = false;
        std::vector<float> unity(target_.channels, 1.0f);
        float unmuted = 0;
        pw_stream_set_control(stream_.get(), SPA_PROP_channelVolumes, std::uint32_t(unity.size()), unity.data(),
                              SPA_PROP_mute, 1, &unmuted, 0);
    }
    if (paused_ && state == PW_STREAM_STATE_STREAMING)
        pw_stream_set_active(stream_.get(), false);
}

void CaptureStream::revive() {
    revive_ = true;
    pw_loop_signal_event(registry_->connection()->loop(), work_.get());
}

void CaptureStream::lose(Change reason) {
    if (missing_ != Missing::Nothing)
        return;
    missing_ = reason == Change::ServerLost ? Missing::Server : Missing::Device;
    observer_(reason);
}

void CaptureStream::deviceAppeared(const AudioDeviceInfo& device) {
    if (device.id != target_.device || state_ == State::Streaming)
        return;
    askAgainAfter_ = 0ms;
    connectStream(device);
}

void CaptureStream::deviceGone(AudioObjectID device) {
    if (device != target_.device)
        return;
    closeStream();
    setState(State::Closed, QT_TRANSLATE_NOOP("Audio", "the device went away"));
    lose(Change::DeviceLost);
}

void CaptureStream::serverGone() {
    gone_ = false;
    closeStream();
    // PipeWire 1.4 removes its devices before it shuts down: what is missing then is the server, not the device.
    if (missing_ == Missing::Device)
        missing_ = Missing::Nothing;
    lose(Change::ServerLost);
}

void CaptureStream::devicesKnown() {
    if (missing_ == Missing::Server && !registry_->device(target_.device)) {
        observer_(Change::ServerReturned);
        missing_ = Missing::Nothing;
        lose(Change::DeviceLost);
    }
}

std::uint64_t CaptureStream::lostBeforeRt(const spa_io_clock& clock, std::uint64_t start) noexcept {
    const double clockRate = clock.rate.denom > 0 ? double(clock.rate.denom) / std::max(clock.rate.num, 1u) : 0;
    std::uint64_t lost = 0;
    const bool first = begins_.exchange(false, std::memory_order_relaxed);
    if (first) {
        if (endOfLast_ > 0 && start > endOfLast_)
            lost = std::uint64_t(std::llround(double(start - endOfLast_) * 1e-9 * target_.sampleRate));
    } else if (clockKnown_ && clockId_ == clock.id && clockRate > 0) {
        if (clock.position > expectedPosition_) {
            lost = std::uint64_t(
                std::llround(double(clock.position - expectedPosition_) / clockRate * target_.sampleRate));
        } else if (target_.hardware && clock.position == expectedPosition_ && clock.nsec > expectedNsec_) {
            // After an overrun a sound card's driver continues its frame count without a gap, although time has passed.
            const double late = double(clock.nsec - expectedNsec_) * 1e-9;
            if (late > std::max(0.05, 2 * double(clock.duration) / clockRate))
                lost = std::uint64_t(std::llround(late * target_.sampleRate));
        }
    }
    clockKnown_ = true;
    clockId_ = clock.id;
    expectedPosition_ = clock.position + clock.duration;
    expectedNsec_ = clock.nsec + (clockRate > 0 ? std::uint64_t(double(clock.duration) / clockRate * 1e9) : 0);
    return lost;
}

void CaptureStream::processRt() noexcept {
    while (pw_buffer* buffer = pw_stream_dequeue_buffer(stream_.get())) {
        const spa_buffer& content = *buffer->buffer;
        const std::uint32_t frames = content.datas[0].chunk->size / std::uint32_t(sizeof(float));
        bool silent = true;
        for (std::uint32_t i = 0; i < target_.channels; ++i) {
            const spa_data* data = i < content.n_datas ? &content.datas[i] : nullptr;
            const bool usable = data && data->data && data->chunk->size >= frames * sizeof(float);
            pointers_[i] =
                usable ? reinterpret_cast<const float*>(static_cast<const char*>(data->data) + data->chunk->offset)
                       : nullptr;
        }
        const spa_io_position* position = position_.load(std::memory_order_relaxed);
        if (frames > 0 && resumes_.load(std::memory_order_relaxed)) {
            // A buffer that was filled before the pause could be among the first ones.
            resumes_.store(false, std::memory_order_relaxed);
            endOfLast_ = 0;
            blocks_.fetch_add(1, std::memory_order_relaxed);
            pw_stream_queue_buffer(stream_.get(), buffer);
            continue;
        }
        const bool begins = begins_.load(std::memory_order_relaxed);
        if (begins) {
            for (const float* each : pointers_)
                silent = silent && (!each || std::all_of(each, each + frames, [](float value) { return value == 0; }));
        }
        // The first quantum of a stream is often silence from before the link was made, not audio of the device.
        if (frames > 0 && position && !(begins && mayBeSilentStart_ && silent)) {
            const auto duration = std::uint64_t(double(frames) * 1e9 / target_.sampleRate);
            CaptureBlock block;
            block.frames = frames;
            block.hostTime = position->clock.nsec - duration;
            block.startsAnew = begins;
            block.lostBefore = lostBeforeRt(position->clock, block.hostTime);
            endOfLast_ = position->clock.nsec;
            if (content.datas[0].chunk->flags & SPA_CHUNK_FLAG_CORRUPTED)
                ring_.loseRt(frames);
            else
                ring_.pushRt(pointers_, block);
            blocks_.fetch_add(1, std::memory_order_relaxed);
        }
        mayBeSilentStart_ = false;
        pw_stream_queue_buffer(stream_.get(), buffer);
    }
}

} // namespace Platform
