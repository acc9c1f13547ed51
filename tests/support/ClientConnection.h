// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Audio/linux/PipeWireHandles.h"

/// A connection of its own to the sound server, on a loop thread of its own: a test's view from outside the program.
/// What is derived from it hears of its objects on that thread, and touches them elsewhere under a LoopLock only.
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

    /// Connects; then @p setUp makes the objects, with the loop held, and answers whether it could.
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
    /// To be called by the destructor of each derived class: @p release lets go of its objects, with the loop held.
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
