// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Audio/linux/PipeWireHandles.h"

#include <atomic>
#include <memory>
#include <vector>

#include <QString>

namespace Platform {

/// The process's connection to the sound server, with a thread loop of its own and a real-time data thread. When the
/// server goes away it tries again every 250 ms until it is back. Devices, input units and players share it.
///
/// Streams, proxies and everything else that hangs on the connection are made, used and destroyed with a
/// PipeWire::LoopLock on loop() held, or on the loop's own thread; when serverLost() comes, they must go.
class PipeWireConnection {
public:
    /// Told what becomes of the server; on the loop's thread, or on the caller's with the lock held inside add().
    class Client {
    public:
        virtual ~Client() = default;
        /// core() is there.
        virtual void serverConnected() = 0;
        /// The server is gone: destroy what belongs to it. core() is still valid during the call.
        virtual void serverLost() = 0;
    };

    /// The connection of this process, made at the first call and ended with its last holder. Any thread that holds no
    /// loop's lock.
    static std::shared_ptr<PipeWireConnection> shared();
    ~PipeWireConnection();
    PipeWireConnection(const PipeWireConnection&) = delete;
    PipeWireConnection& operator=(const PipeWireConnection&) = delete;

    [[nodiscard]] pw_thread_loop* threadLoop() const { return loop_.get(); }
    [[nodiscard]] pw_loop* loop() const { return pw_thread_loop_get_loop(loop_.get()); }
    /// Null while no server answers. Under the lock.
    [[nodiscard]] pw_core* core() const { return core_.get(); }
    [[nodiscard]] pw_context* context() const { return context_.get(); }

    /// Takes the lock itself. A client that comes while the server is there hears serverConnected() at once. Clients
    /// are told in the order in which they came, of a loss in the opposite order.
    void add(Client& client);
    /// After it returns the client hears nothing more.
    void remove(Client& client);

    [[nodiscard]] bool connected() const { return connected_; }
    /// Why there is no connection, for people. Takes the lock.
    [[nodiscard]] QString lastError() const;

private:
    PipeWireConnection();
    void connect();
    void onCoreError(std::uint32_t id, int result);
    void onServerGone();
    void retryLater();

    std::vector<Client*> clients_; ///< under the lock, as are the members below
    QString lastError_;
    std::atomic<bool> connected_{false};

    // Destroyed from the bottom up.
    PipeWire::ThreadLoopPtr loop_;
    PipeWire::LoopSource retryTimer_;
    PipeWire::LoopSource goneEvent_;
    PipeWire::ContextPtr context_;
    PipeWire::CorePtr core_;
    PipeWire::Hook coreListener_;
};

} // namespace Platform
