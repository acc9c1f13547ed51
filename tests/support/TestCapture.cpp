// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/TestCapture.h"

#include "Platform/Audio/linux/NodeFormat.h"
#include "Platform/Audio/linux/PipeWireHandles.h"
#include "tests/support/ClientConnection.h"

#include <algorithm>
#include <cmath>
#include <mutex>

#include <QElapsedTimer>
#include <QThread>

using namespace Platform::PipeWire;

struct TestCapture::Connection : ClientConnection {
    explicit Connection(const Options& o) : options(o) {}
    ~Connection() {
        disconnect([this] {
            listener.remove();
            stream.reset();
        });
    }

    bool start() {
        return connect("test-capture", [this] { return setUp(); });
    }

    bool setUp() {
        auto* properties = pw_properties_new(PW_KEY_MEDIA_TYPE, "Audio", PW_KEY_MEDIA_CATEGORY, "Capture",
                                             PW_KEY_TARGET_OBJECT, options.target.c_str(), PW_KEY_APP_ID,
                                             "test.capture", "node.dont-reconnect", "true", nullptr);
        pw_properties_setf(properties, PW_KEY_NODE_RATE, "1/%u", options.rate);
        if (options.monitor)
            pw_properties_set(properties, PW_KEY_STREAM_CAPTURE_SINK, "true");
        if (options.exclusive)
            pw_properties_set(properties, PW_KEY_NODE_EXCLUSIVE, "true");
        stream.reset(pw_stream_new(core.get(), "test capture", properties));
        // Not in real time, so it may lock: the process callback runs on the loop's thread.
        static constexpr pw_stream_events events = {
            .version = PW_VERSION_STREAM_EVENTS,
            .process = [](void* data) { static_cast<Connection*>(data)->process(); },
        };
        pw_stream_add_listener(stream.get(), listener.get(), &events, this);
        const auto format = Platform::interleavedFloatPod(
            {options.rate, options.channels, Platform::defaultChannelPositions(options.channels)});
        const spa_pod* params[] = {format.get()};
        return pw_stream_connect(stream.get(), PW_DIRECTION_INPUT, PW_ID_ANY,
                                 pw_stream_flags(PW_STREAM_FLAG_AUTOCONNECT | PW_STREAM_FLAG_MAP_BUFFERS), params,
                                 1) >= 0;
    }

    void process() {
        while (pw_buffer* buffer = pw_stream_dequeue_buffer(stream.get())) {
            const spa_data& data = buffer->buffer->datas[0];
            const auto* first =
                reinterpret_cast<const float*>(static_cast<const char*>(data.data) + data.chunk->offset);
            {
                std::lock_guard guard(mutex);
                samples.insert(samples.end(), first, first + data.chunk->size / sizeof(float));
            }
            pw_stream_queue_buffer(stream.get(), buffer);
        }
    }

    const Options& options;
    mutable std::mutex mutex;
    std::vector<float> samples;
    StreamPtr stream;
    Hook listener;
};

TestCapture::TestCapture(Options options) : options_(std::move(options)) {
}
TestCapture::~TestCapture() = default;

testing::AssertionResult TestCapture::start() {
    connection_ = std::make_unique<Connection>(options_);
    if (!connection_->start())
        return testing::AssertionFailure() << "cannot capture " << options_.target;
    QElapsedTimer timer;
    timer.start();
    while (frames() == 0) {
        if (timer.elapsed() > 30000)
            return testing::AssertionFailure() << options_.target << " delivers nothing";
        QThread::msleep(1);
    }
    return testing::AssertionSuccess();
}

void TestCapture::stop() {
    if (!connection_)
        return;
    LoopLock lock(connection_->loop.get());
    connection_->listener.remove();
    connection_->stream.reset();
}

std::uint64_t TestCapture::frames() const {
    std::lock_guard guard(connection_->mutex);
    return connection_->samples.size() / options_.channels;
}

std::vector<float> TestCapture::interleaved() const {
    std::lock_guard guard(connection_->mutex);
    return connection_->samples;
}

float TestCapture::recentPeak(std::size_t frames) const {
    std::lock_guard guard(connection_->mutex);
    const auto& samples = connection_->samples;
    const auto count = std::min(samples.size(), frames * options_.channels);
    float peak = 0;
    for (auto each = samples.end() - std::ptrdiff_t(count); each != samples.end(); ++each)
        peak = std::max(peak, std::abs(*each));
    return peak;
}
