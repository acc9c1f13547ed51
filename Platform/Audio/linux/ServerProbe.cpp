// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Audio/linux/ServerProbe.h"

#include "Platform/Audio/linux/PipeWireHandles.h"

#include <cstring>
#include <set>
#include <string>
#include <string_view>

#include <QElapsedTimer>

namespace Platform::PipeWire {
namespace {

using MainLoopPtr = std::unique_ptr<pw_main_loop, FreeBy<pw_main_loop_destroy>>;

/// Runs its loop on the caller's thread.
struct Probe {
    Probe(bool wantSink, const QByteArray& wantSource) : sinkWanted(wantSink), source(wantSource) {}

    bool connect();
    bool satisfied() const {
        return answered && (!sinkWanted || hasDefaultSink) && (source.empty() || nodesWithPorts.contains(sourceNode));
    }
    void onGlobal(std::uint32_t id, const char* type, const spa_dict* properties);
    void run(int deadlineMs, const std::function<bool()>& goOn);

    bool sinkWanted;
    std::string source;
    bool answered = false;
    bool failed = false;
    bool hasDefaultSink = false;
    std::string sourceNode = "none";
    std::set<std::string> nodesWithPorts;

    MainLoopPtr loop;
    ContextPtr context;
    CorePtr core;
    Hook coreListener;
    RegistryPtr registry;
    Hook registryListener;
    MetadataPtr metadata;
    Hook metadataListener;
};

bool Probe::connect() {
    initialiseLibrary();
    loop.reset(pw_main_loop_new(nullptr));
    if (!loop)
        return false;
    context.reset(pw_context_new(pw_main_loop_get_loop(loop.get()), nullptr, 0));
    if (!context)
        return false;
    core.reset(pw_context_connect(context.get(), nullptr, 0));
    if (!core)
        return false;
    static constexpr pw_core_events coreEvents = {
        .version = PW_VERSION_CORE_EVENTS,
        .done = [](void* data, uint32_t, int) { static_cast<Probe*>(data)->answered = true; },
        .error =
            [](void* data, uint32_t id, int, int result, const char*) {
                if (id == PW_ID_CORE && result == -EPIPE)
                    static_cast<Probe*>(data)->failed = true;
            },
    };
    pw_core_add_listener(core.get(), coreListener.get(), &coreEvents, this);
    registry.reset(pw_core_get_registry(core.get(), PW_VERSION_REGISTRY, 0));
    static constexpr pw_registry_events registryEvents = {
        .version = PW_VERSION_REGISTRY_EVENTS,
        .global = [](void* data, uint32_t id, uint32_t, const char* type, uint32_t,
                     const spa_dict* properties) { static_cast<Probe*>(data)->onGlobal(id, type, properties); },
    };
    pw_registry_add_listener(registry.get(), registryListener.get(), &registryEvents, this);
    pw_core_sync(core.get(), PW_ID_CORE, 0);
    return true;
}

void Probe::onGlobal(std::uint32_t id, const char* type, const spa_dict* properties) {
    const auto property = [&](const char* key) {
        const char* value = properties ? spa_dict_lookup(properties, key) : nullptr;
        return std::string_view(value ? value : "");
    };
    if (strcmp(type, PW_TYPE_INTERFACE_Node) == 0 && property(PW_KEY_NODE_NAME) == source)
        sourceNode = std::to_string(id);
    if (strcmp(type, PW_TYPE_INTERFACE_Port) == 0)
        nodesWithPorts.emplace(property(PW_KEY_NODE_ID));
    if (strcmp(type, PW_TYPE_INTERFACE_Metadata) != 0 || property(PW_KEY_METADATA_NAME) != "default" || metadata)
        return;
    metadata.reset(static_cast<pw_metadata*>(
        pw_registry_bind(registry.get(), id, PW_TYPE_INTERFACE_Metadata, PW_VERSION_METADATA, 0)));
    static constexpr pw_metadata_events metadataEvents = {
        .version = PW_VERSION_METADATA_EVENTS,
        .property =
            [](void* data, uint32_t, const char* key, const char*, const char* value) {
                if (key && strcmp(key, "default.audio.sink") == 0)
                    static_cast<Probe*>(data)->hasDefaultSink = value != nullptr;
                return 0;
            },
    };
    pw_metadata_add_listener(metadata.get(), metadataListener.get(), &metadataEvents, this);
}

void Probe::run(int deadlineMs, const std::function<bool()>& goOn) {
    QElapsedTimer timer;
    timer.start();
    auto* turned = pw_main_loop_get_loop(loop.get());
    while (!satisfied() && !failed && timer.elapsed() < deadlineMs && (!goOn || goOn())) {
        pw_loop_enter(turned);
        pw_loop_iterate(turned, 20);
        pw_loop_leave(turned);
    }
}

} // namespace

PrivateSession::Server lookForServer(int deadlineMs, const std::function<bool()>& goOn) {
    // The library connects at once or fails; when the server is stopped, the kernel still accepts the connection.
    Probe probe(false, {});
    if (!probe.connect())
        return PrivateSession::Server::Absent;
    probe.run(deadlineMs, goOn);
    // When the server ended meanwhile, the machine has no server.
    return probe.failed     ? PrivateSession::Server::Absent
           : probe.answered ? PrivateSession::Server::Answering
                            : PrivateSession::Server::Silent;
}

bool serverIsThere(int deadlineMs, bool sink, const QByteArray& source) {
    Probe probe(sink, source);
    if (!probe.connect())
        return false;
    probe.run(deadlineMs, {});
    return probe.satisfied();
}

} // namespace Platform::PipeWire
