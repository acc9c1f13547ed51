// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Audio/linux/PipeWireConnection.h"

#include <QCoreApplication>

#include <cerrno>
#include <cstring>
#include <ctime>
#include <mutex>

namespace Platform {

using namespace PipeWire;
using namespace Qt::StringLiterals;

namespace {
constexpr long retryAfterNs = 250'000'000;
}

std::shared_ptr<PipeWireConnection> PipeWireConnection::shared() {
    static std::mutex mutex;
    static std::weak_ptr<PipeWireConnection> existing;
    std::lock_guard guard(mutex);
    auto connection = existing.lock();
    if (!connection) {
        connection.reset(new PipeWireConnection);
        existing = connection;
    }
    return connection;
}

PipeWireConnection::PipeWireConnection() {
    initialiseLibrary();
    loop_.reset(pw_thread_loop_new("sonaphex-pw", nullptr));
    retryTimer_ = LoopSource(
        loop(),
        pw_loop_add_timer(
            loop(), [](void* data, std::uint64_t) { static_cast<PipeWireConnection*>(data)->connect(); }, this));
    goneEvent_ = LoopSource(
        loop(),
        pw_loop_add_event(
            loop(), [](void* data, std::uint64_t) { static_cast<PipeWireConnection*>(data)->onServerGone(); }, this));
    context_.reset(pw_context_new(loop(), realTimeClient(), 0));
    connect();
    pw_thread_loop_start(loop_.get());
}

PipeWireConnection::~PipeWireConnection() {
    {
        LoopLock lock(loop_.get());
        coreListener_.remove();
        core_.reset();
        retryTimer_.reset();
        goneEvent_.reset();
    }
    pw_thread_loop_stop(loop_.get());
}

void PipeWireConnection::connect() {
    if (core_)
        return;
    if (context_)
        core_.reset(pw_context_connect(context_.get(), nullptr, 0));
    if (!core_) {
        lastError_ = QCoreApplication::translate("Audio", "no sound server answers: %1")
                         .arg(QString::fromLocal8Bit(strerror(errno)));
        retryLater();
        return;
    }
    static constexpr pw_core_events events = {
        .version = PW_VERSION_CORE_EVENTS,
        .error = [](void* data, std::uint32_t id, int, int result,
                    const char*) { static_cast<PipeWireConnection*>(data)->onCoreError(id, result); },
    };
    pw_core_add_listener(core_.get(), coreListener_.get(), &events, this);
    lastError_.clear();
    connected_ = true;
    for (auto* each : std::vector(clients_))
        each->serverConnected();
}

void PipeWireConnection::onCoreError(std::uint32_t id, int result) {
    // A target that vanished causes many other errors on the same id; only a broken pipe means that the server is gone.
    // The core must not be destroyed inside its own callback.
    if (id == PW_ID_CORE && result == -EPIPE)
        pw_loop_signal_event(loop(), goneEvent_.get());
}

void PipeWireConnection::onServerGone() {
    if (!core_)
        return;
    connected_ = false;
    lastError_ = QCoreApplication::translate("Audio", "the sound server went away");
    const std::vector<Client*> clients(clients_.rbegin(), clients_.rend());
    for (auto* each : clients)
        each->serverLost();
    coreListener_.remove();
    core_.reset();
    retryLater();
}

void PipeWireConnection::retryLater() {
    timespec after = {.tv_sec = 0, .tv_nsec = retryAfterNs};
    pw_loop_update_timer(loop(), retryTimer_.get(), &after, nullptr, false);
}

void PipeWireConnection::add(Client& client) {
    LoopLock lock(loop_.get());
    clients_.push_back(&client);
    if (core_)
        client.serverConnected();
}

void PipeWireConnection::remove(Client& client) {
    LoopLock lock(loop_.get());
    std::erase(clients_, &client);
}

QString PipeWireConnection::lastError() const {
    LoopLock lock(loop_.get());
    return lastError_;
}

} // namespace Platform
