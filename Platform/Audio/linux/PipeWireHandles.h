// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <mutex>
#include <utility>

// These C headers compare enums of different types and omit members in initialisers.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wpedantic"
#pragma GCC diagnostic ignored "-Wmissing-field-initializers"
#pragma GCC diagnostic ignored "-Wunused-parameter"
#pragma GCC diagnostic ignored "-Wsign-compare"
#pragma GCC diagnostic ignored "-Wdeprecated-enum-enum-conversion"
#include <pipewire/extensions/metadata.h>
#include <pipewire/pipewire.h>
#include <spa/debug/types.h>
#include <spa/param/audio/format-utils.h>
#include <spa/param/audio/type-info.h>
#include <spa/param/props.h>
#include <spa/utils/json.h>
#include <spa/utils/result.h>
#pragma GCC diagnostic pop
// The library's callback tables are filled with designated initialisers; unused callbacks stay null.
#pragma GCC diagnostic ignored "-Wmissing-field-initializers"

/// Owners of PipeWire's objects. An object of a loop is created, used and destroyed with a LoopLock held, or on the
/// loop's own thread.
namespace Platform::PipeWire {

template <auto Free>
struct FreeBy {
    template <typename T>
    void operator()(T* object) const noexcept {
        Free(object);
    }
};

struct FreeProxy {
    template <typename T>
    void operator()(T* object) const noexcept {
        pw_proxy_destroy(reinterpret_cast<pw_proxy*>(object));
    }
};

using ThreadLoopPtr = std::unique_ptr<pw_thread_loop, FreeBy<pw_thread_loop_destroy>>;
using ContextPtr = std::unique_ptr<pw_context, FreeBy<pw_context_destroy>>;
using CorePtr = std::unique_ptr<pw_core, FreeBy<pw_core_disconnect>>;
using StreamPtr = std::unique_ptr<pw_stream, FreeBy<pw_stream_destroy>>;
using PropertiesPtr = std::unique_ptr<pw_properties, FreeBy<pw_properties_free>>;
using RegistryPtr = std::unique_ptr<pw_registry, FreeProxy>;
using MetadataPtr = std::unique_ptr<pw_metadata, FreeProxy>;
using NodePtr = std::unique_ptr<pw_node, FreeProxy>;
using DevicePtr = std::unique_ptr<pw_device, FreeProxy>;
using ProxyPtr = std::unique_ptr<pw_proxy, FreeProxy>;

/// A listener that removes itself.
class Hook {
public:
    Hook() = default;
    ~Hook() { remove(); }
    Hook(const Hook&) = delete;
    Hook& operator=(const Hook&) = delete;

    /// For the library's `..._add_listener`; only once between two remove().
    spa_hook* get() { return &hook_; }
    void remove() {
        if (hook_.link.next)
            spa_hook_remove(&hook_);
        hook_ = {};
    }

private:
    spa_hook hook_ = {};
};

/// Unhooks a stream whose process callback runs on the data thread. Call this before the stream, or anything that the
/// callback uses, is destroyed. The library removes the callback on the calling thread without waiting for a running
/// cycle, which would then use a destroyed stream. So the removal runs on the data thread, between two cycles.
inline void unhookFromDataThread(pw_context* context, Hook& listener) {
    pw_data_loop_invoke(
        pw_context_get_data_loop(context),
        [](spa_loop*, bool, std::uint32_t, const void*, std::size_t, void* data) {
            static_cast<Hook*>(data)->remove();
            return 0;
        },
        0, nullptr, 0, true, &listener);
}

/// Properties for a context whose data thread runs in real time; without real time a busy machine loses audio. PipeWire
/// 1.4 has the real-time thread in "client.conf" and warns about "client-rt.conf".
[[nodiscard]] inline pw_properties* realTimeClient() {
    return pw_properties_new(PW_KEY_CONFIG_NAME, PW_CHECK_VERSION(1, 3, 81) ? "client.conf" : "client-rt.conf",
                             nullptr);
}

/// Locks a thread loop.
class LoopLock {
public:
    explicit LoopLock(pw_thread_loop* loop) : loop_(loop) { pw_thread_loop_lock(loop_); }
    ~LoopLock() { pw_thread_loop_unlock(loop_); }
    LoopLock(const LoopLock&) = delete;
    LoopLock& operator=(const LoopLock&) = delete;

private:
    pw_thread_loop* loop_;
};

/// A source of a loop (event, timer), destroyed with it.
class LoopSource {
public:
    LoopSource() = default;
    LoopSource(pw_loop* loop, spa_source* source) : loop_(loop), source_(source) {}
    ~LoopSource() { reset(); }
    LoopSource(LoopSource&& other) noexcept : loop_(other.loop_), source_(std::exchange(other.source_, nullptr)) {}
    LoopSource& operator=(LoopSource&& other) noexcept {
        reset();
        loop_ = other.loop_;
        source_ = std::exchange(other.source_, nullptr);
        return *this;
    }
    [[nodiscard]] spa_source* get() const { return source_; }
    void reset() {
        if (source_)
            pw_loop_destroy_source(loop_, source_);
        source_ = nullptr;
    }

private:
    pw_loop* loop_ = nullptr;
    spa_source* source_ = nullptr;
};

/// Initialises the library once per process. It is never shut down: other parts of the process may use it, and its
/// plug-ins stay loaded anyway.
inline void initialiseLibrary() {
    static std::once_flag once;
    std::call_once(once, [] { pw_init(nullptr, nullptr); });
}

} // namespace Platform::PipeWire
