// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Audio/linux/PipeWireHandles.h"

#include <atomic>
#include <memory>
#include <vector>

#include <QString>

namespace Platform {

/// The process's connection to the sound server, with its own thread loop and a real-time data thread. When the server
/// goes away, it tries to reconnect every 250 ms. Devices, input units and players share it.
/// Streams, proxies and all other objects of the connection are created, used and destroyed with a PipeWire::LoopLock
/// on loop() held, or on the loop's own thread. They must be destroyed in serverLost().
class PipeWireConnection {
public:
    /// Informed when the server appears or disappears; on the loop's thread, or inside add() on the caller's thread
    /// with the lock held.
    class Client {
    public:
        virtual ~Client() = default;
        /// core() is valid.
        virtual void serverConnected() = 0;
        /// The server is gone: destroy all objects that belong to it. core() is still valid during the call.
        virtual void serverLost() = 0;
    };

    /// The connection of this process, created by the first call and closed by its last owner. Any thread that holds no
    /// loop lock.
    static std::shared_ptr<PipeWireConnection> shared();
    ~PipeWireConnection();
    PipeWireConnection(const PipeWireConnection&) = delete;
    PipeWireConnection& operator=(const PipeWireConnection&) = delete;

    [[nodiscard]] pw_thread_loop* threadLoop() const { return loop_.get(); }
    [[nodiscard]] pw_loop* loop() const { return pw_thread_loop_get_loop(loop_.get()); }
    /// Null while no server answers. Needs the lock.
    [[nodiscard]] pw_core* core() const { return core_.get(); }
    [[nodiscard]] pw_context* context() const { return context_.get(); }

    /// Takes the lock itself. If the server is connected, the client's serverConnected() is called at once. Clients are
    /// called in the order in which they were added, and in reverse order when the server is lost.
    void add(Client& client);
    /// After it returns, the client is not called any more.
    void remove(Client& client);

    [[nodiscard]] bool connected() const { return connected_; }
    /// Why there is no connection, for the user. Takes the lock.
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

    // Destroyed in reverse order.
    PipeWire::ThreadLoopPtr loop_;
    PipeWire::LoopSource retryTimer_;
    PipeWire::LoopSource goneEvent_;
    PipeWire::ContextPtr context_;
    PipeWire::CorePtr core_;
    PipeWire::Hook coreListener_;
};

} // namespace Platform
