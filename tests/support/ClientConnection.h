// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Audio/linux/PipeWireHandles.h"

/// A separate connection to the sound server with its own loop thread: a test's view from outside the program. Derived
/// classes get the events of their objects on that thread, and use the objects elsewhere only under a LoopLock.
class ClientConnection {
public:
    ClientConnection(const ClientConnection&) = delete;
    ClientConnection& operator=(const ClientConnection&) = delete;

    Platform::PipeWire::ThreadLoopPtr loop;
    Platform::PipeWire::ContextPtr context;
    Platform::PipeWire::CorePtr core;

protected:
    ClientConnection() = default;
    ~ClientConnection() = default;

    /// Connects; then @p setUp creates the objects with the loop locked, and returns whether it succeeded.
    template <typename SetUp>
    [[nodiscard]] bool connect(const char* name, SetUp setUp) {
        using namespace Platform::PipeWire;
        initialiseLibrary();
        loop.reset(pw_thread_loop_new(name, nullptr));
        context.reset(pw_context_new(pw_thread_loop_get_loop(loop.get()), nullptr, 0));
        if (!context || pw_thread_loop_start(loop.get()) < 0)
            return false;
        const LoopLock lock(loop.get());
        core.reset(pw_context_connect(context.get(), nullptr, 0));
        return core && setUp();
    }
    /// Must be called by the destructor of each derived class: @p release destroys its objects with the loop locked.
    template <typename Release>
    void disconnect(Release release) {
        if (!loop)
            return;
        {
            const Platform::PipeWire::LoopLock lock(loop.get());
            release();
            core.reset();
        }
        pw_thread_loop_stop(loop.get());
    }
};
