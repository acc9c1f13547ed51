// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tools/CaptureDriver/Driver.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>

using namespace Platform;
using namespace Platform::PipeWire;

namespace {

constexpr char kQuitKey[] = "korvane.driver.quit";
/// The property of our node that says that programs can be chosen. An older driver has none.
constexpr char kProgramsProperty[] = "korvane.engine.programs";

std::string text(const spa_dict* properties, const char* key) {
    const char* value = properties ? spa_dict_lookup(properties, key) : nullptr;
    return value ? value : "";
}

std::uint32_t number(const spa_dict* properties, const char* key) {
    return std::uint32_t(atoi(text(properties, key).c_str()));
}

/// The value of "name" in {"name":"..."}.
std::string nameIn(const char* json) {
    spa_json it[2];
    spa_json_init(&it[0], json, strlen(json));
    if (spa_json_enter_object(&it[0], &it[1]) <= 0)
        return {};
    char key[64];
    while (spa_json_get_string(&it[1], key, sizeof key) > 0) {
        if (strcmp(key, "name") == 0) {
            char name[1024];
            return spa_json_get_string(&it[1], name, sizeof name) > 0 ? name : "";
        }
        const char* skipped = nullptr;
        if (spa_json_next(&it[1], &skipped) <= 0)
            break;
    }
    return {};
}

} // namespace

Driver::~Driver() {
    streams_.reset();
    links_.clear();
    mixers_.clear();
    metadataListener_.remove();
    nodeListener_.remove();
    registryListener_.remove();
    coreListener_.remove();
}

bool Driver::start(const std::string& configuration) {
    properties_.reset(pw_properties_new_string(configuration.c_str()));
    if (!properties_ || !pw_properties_get(properties_.get(), PW_KEY_NODE_NAME)) {
        std::fprintf(stderr, "CaptureDriver: the configuration names no node\n");
        return false;
    }
    pw_properties_set(properties_.get(), "factory.name", "support.null-audio-sink");
    // The server removes the node when this process ends.
    pw_properties_set(properties_.get(), "object.linger", "false");
    pw_properties_set(properties_.get(), kProgramsProperty, "true");
    // PipeWire 1.4 treats a link as passive only when its node is passive. Otherwise no output could be suspended.
    pw_properties_set(properties_.get(), PW_KEY_NODE_PASSIVE, "in");

    loop_.reset(pw_main_loop_new(nullptr));
    auto* loop = pw_main_loop_get_loop(loop_.get());
    context_.reset(pw_context_new(loop, realTimeClient(), 0));
    if (context_)
        core_.reset(pw_context_connect(context_.get(), nullptr, 0));
    if (!core_) {
        std::fprintf(stderr, "CaptureDriver: no sound server: %s\n", strerror(errno));
        return false;
    }
    const auto stop = [](void* data, int) { static_cast<Driver*>(data)->leave(); };
    interrupt_ = LoopSource(loop, pw_loop_add_signal(loop, SIGINT, stop, this));
    termination_ = LoopSource(loop, pw_loop_add_signal(loop, SIGTERM, stop, this));
    retryTimer_ =
        LoopSource(loop, pw_loop_add_timer(
                             loop, [](void* data, std::uint64_t) { static_cast<Driver*>(data)->lookAgain(); }, this));

    static constexpr pw_core_events coreEvents = {
        .version = PW_VERSION_CORE_EVENTS,
        .done =
            [](void* data, uint32_t id, int sequence) {
                auto* self = static_cast<Driver*>(data);
                if (id != PW_ID_CORE || sequence != self->pendingSync_)
                    return;
                if (self->leaving_)
                    self->quit();
                else
                    self->reconcile();
            },
        .error =
            [](void* data, uint32_t id, int, int result, const char*) {
                if (id == PW_ID_CORE && result == -EPIPE)
                    static_cast<Driver*>(data)->quit();
            },
    };
    pw_core_add_listener(core_.get(), coreListener_.get(), &coreEvents, this);
    registry_.reset(pw_core_get_registry(core_.get(), PW_VERSION_REGISTRY, 0));
    static constexpr pw_registry_events registryEvents = {
        .version = PW_VERSION_REGISTRY_EVENTS,
        .global = [](void* data, uint32_t id, uint32_t, const char* type, uint32_t,
                     const spa_dict* properties) { static_cast<Driver*>(data)->onGlobal(id, type, properties); },
        .global_remove = [](void* data, uint32_t id) { static_cast<Driver*>(data)->onGlobalRemoved(id); },
    };
    pw_registry_add_listener(registry_.get(), registryListener_.get(), &registryEvents, this);
    lookAgain();
    return true;
}

void Driver::createNode() {
    created_ = true;
    const char* name = pw_properties_get(properties_.get(), PW_KEY_NODE_NAME);
    if (nodeNamed(name) != SPA_ID_INVALID) {
        quit(); // another driver serves this sound server
        return;
    }
    node_.reset(static_cast<pw_proxy*>(
        pw_core_create_object(core_.get(), "adapter", PW_TYPE_INTERFACE_Node, PW_VERSION_NODE, &properties_->dict, 0)));
    if (!node_) {
        quit();
        return;
    }
    static constexpr pw_proxy_events events = {
        .version = PW_VERSION_PROXY_EVENTS,
        .bound =
            [](void* data, uint32_t id) {
                auto* self = static_cast<Driver*>(data);
                self->ownId_ = id;
                self->lookAgain();
            },
        .removed = [](void* data) { static_cast<Driver*>(data)->quit(); },
        .error = [](void* data, int, int, const char*) { static_cast<Driver*>(data)->quit(); },
    };
    pw_proxy_add_listener(node_.get(), nodeListener_.get(), &events, this);
}

void Driver::onGlobal(std::uint32_t id, const char* type, const spa_dict* properties) {
    if (strcmp(type, PW_TYPE_INTERFACE_Node) == 0) {
        nodes_[id] = {text(properties, PW_KEY_NODE_NAME), text(properties, PW_KEY_MEDIA_CLASS)};
    } else if (strcmp(type, PW_TYPE_INTERFACE_Port) == 0) {
        ports_[id] = {number(properties, PW_KEY_NODE_ID), number(properties, PW_KEY_PORT_ID),
                      text(properties, PW_KEY_PORT_DIRECTION) == "out", text(properties, PW_KEY_PORT_MONITOR) == "true",
                      text(properties, PW_KEY_AUDIO_CHANNEL)};
    } else if (strcmp(type, PW_TYPE_INTERFACE_Metadata) == 0 && text(properties, PW_KEY_METADATA_NAME) == "default" &&
               !metadata_) {
        bindMetadata(id);
    } else if (strcmp(type, PW_TYPE_INTERFACE_Link) == 0) {
        serverLinks_[id] = {number(properties, PW_KEY_LINK_OUTPUT_PORT), number(properties, PW_KEY_LINK_INPUT_PORT)};
    } else {
        return;
    }
    lookAgain();
}

void Driver::bindMetadata(std::uint32_t id) {
    metadataListener_.remove();
    metadata_.reset(static_cast<pw_metadata*>(
        pw_registry_bind(registry_.get(), id, PW_TYPE_INTERFACE_Metadata, PW_VERSION_METADATA, 0)));
    metadataId_ = id;
    static constexpr pw_metadata_events events = {
        .version = PW_VERSION_METADATA_EVENTS,
        .property =
            [](void* data, uint32_t subject, const char* key, const char*, const char* value) {
                static_cast<Driver*>(data)->onMetadata(subject, key, value);
                return 0;
            },
    };
    pw_metadata_add_listener(metadata_.get(), metadataListener_.get(), &events, this);
}

void Driver::onGlobalRemoved(std::uint32_t id) {
    if (id == metadataId_) {
        // The session manager restarts; until it is back, keep the last values.
        metadataListener_.remove();
        metadata_.reset();
        metadataId_ = SPA_ID_INVALID;
    }
    // The id may be reused by another port, for which no link was refused.
    std::erase_if(refused_, [id](const auto& each) { return each.first.first == id || each.first.second == id; });
    if (nodes_.erase(id) + ports_.erase(id) + serverLinks_.erase(id) > 0)
        lookAgain();
}

/// Removes the metadata of this node: its id will be reused. Metadata of the id's previous owner was set before our
/// node was created and is ignored.
void Driver::leave() {
    leaving_ = true;
    for (const char* key : {kPathKey, kProgramsKey, kProgramsAppliedKey, kQuitKey})
        removeMetadata(key);
    lookAgain();
}

void Driver::removeMetadata(const char* key) {
    if (metadata_ && ownId_ != SPA_ID_INVALID)
        pw_metadata_set_property(metadata_.get(), ownId_, key, nullptr, nullptr);
}

/// A driver that was killed may have left its choice at the id that is ours now. Programs would take it for our answer,
/// and the server would not report the same choice again.
void Driver::removeStaleMetadata() {
    for (const char* key : {kProgramsKey, kProgramsAppliedKey})
        if (stale_.contains({ownId_, key}))
            removeMetadata(key);
}

/// Everything else is unlinked: the server handles our requests in their order.
void Driver::confirmChoice() {
    if (confirmedChoice_ == choiceText_ || !metadata_)
        return;
    confirmedChoice_ = choiceText_;
    if (choiceText_.empty())
        removeMetadata(kProgramsAppliedKey);
    else
        pw_metadata_set_property(metadata_.get(), ownId_, kProgramsAppliedKey, "Spa:String", choiceText_.c_str());
}

void Driver::onSteered(const std::string& key, const std::string& value) {
    if (const auto before = stale_.find({ownId_, key}); before != stale_.end()) {
        if (before->second == value)
            return;
        stale_.erase(before);
    }
    if (key == kPathKey)
        steering_ = value;
    else if (key == kProgramsKey)
        choosePrograms(value);
    else if (!value.empty())
        leave();
    lookAgain();
}

void Driver::choosePrograms(const std::string& value) {
    choiceText_ = value;
    choice_ = ProgramChoice::decoded(value);
    if (choice_.mode != ProgramChoice::Mode::Everything && !streams_)
        streams_ = std::make_unique<StreamWatch>(core_.get(), [this] { lookAgain(); });
}

void Driver::onMetadata(std::uint32_t subject, const char* key, const char* value) {
    static constexpr std::array ownKeys = {kPathKey, kProgramsKey, kProgramsAppliedKey, kQuitKey};
    if (leaving_)
        return;
    if (subject == PW_ID_CORE && key && strcmp(key, "default.audio.sink") == 0) {
        defaultOutput_ = value ? nameIn(value) : "";
    } else if (key && std::ranges::any_of(ownKeys, [key](const char* own) { return strcmp(key, own) == 0; })) {
        // Before our node is created, all metadata belongs to other nodes, whose id may become ours.
        if (!created_)
            stale_[{subject, key}] = value ? value : "";
        else if (subject == ownId_ && strcmp(key, kProgramsAppliedKey) != 0)
            onSteered(key, value ? value : "");
        return;
    } else {
        return;
    }
    lookAgain();
}
