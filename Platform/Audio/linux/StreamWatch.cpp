// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Audio/linux/StreamWatch.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <initializer_list>
#include <utility>

namespace Platform {

using namespace PipeWire;

namespace {

constexpr char kSandboxIdKey[] = "pipewire.access.portal.app_id";
/// As programs of PulseAudio spell PW_KEY_APP_ICON_NAME.
constexpr char kPulseIconNameKey[] = "application.icon_name";

using Properties = std::map<std::string, std::string>;

Properties read(const spa_dict* dict) {
    Properties properties;
    const spa_dict_item* item = nullptr;
    spa_dict_for_each(item, dict) properties[item->key] = item->value ? item->value : "";
    return properties;
}

/// The first of these keys that has a text; empty when none has.
std::string firstOf(const Properties& properties, std::initializer_list<const char*> keys) {
    for (const char* key : keys)
        if (const auto found = properties.find(key); found != properties.end() && !found->second.empty())
            return found->second;
    return {};
}

/// Seconds in "1024/48000"; 0 unless it is a fraction of at most ten seconds.
double secondsIn(const std::string& fraction) {
    char* rest = nullptr;
    const double frames = std::strtod(fraction.c_str(), &rest);
    const double rate = rest && *rest == '/' ? std::strtod(rest + 1, nullptr) : 0;
    const double seconds = rate > 0 ? frames / rate : 0;
    return seconds > 0 && seconds <= 10 ? seconds : 0;
}

std::uint32_t idIn(const Properties& properties, const char* key) {
    const std::string text = firstOf(properties, {key});
    return text.empty() ? SPA_ID_INVALID : std::uint32_t(std::strtoul(text.c_str(), nullptr, 10));
}

} // namespace

struct StreamWatch::Node {
    Node(StreamWatch& watch, bool plays) : owner(watch), isStream(plays) {}

    StreamWatch& owner;
    const bool isStream;
    bool described = false;
    bool running = false;
    Properties properties;
    ProxyPtr proxy;
    Hook listener;

    void onInfo(const pw_node_info* info) {
        const bool runs = info->state == PW_NODE_STATE_RUNNING;
        const bool news = !described || runs != running || (info->change_mask & PW_NODE_CHANGE_MASK_PROPS) != 0;
        described = true;
        running = runs;
        if ((info->change_mask & PW_NODE_CHANGE_MASK_PROPS) != 0 && info->props)
            properties = read(info->props);
        if (isStream)
            owner.bindClient(idIn(properties, PW_KEY_CLIENT_ID));
        if (news)
            owner.changed_();
    }
};

struct StreamWatch::Client {
    explicit Client(StreamWatch& watch) : owner(watch) {}

    StreamWatch& owner;
    bool described = false;
    Properties properties;
    ProxyPtr proxy;
    Hook listener;
};

StreamWatch::StreamWatch(pw_core* core, std::function<void()> changed)
    : core_(core), changed_(std::move(changed)), registry_(pw_core_get_registry(core_, PW_VERSION_REGISTRY, 0)) {
    static constexpr pw_registry_events events = {
        .version = PW_VERSION_REGISTRY_EVENTS,
        .global = [](void* data, std::uint32_t id, std::uint32_t, const char* type, std::uint32_t,
                     const spa_dict* properties) { static_cast<StreamWatch*>(data)->onGlobal(id, type, properties); },
        .global_remove = [](void* data, std::uint32_t id) { static_cast<StreamWatch*>(data)->onGlobalRemoved(id); },
    };
    pw_registry_add_listener(registry_.get(), registryListener_.get(), &events, this);
}

StreamWatch::~StreamWatch() = default;

void StreamWatch::onGlobal(std::uint32_t id, const char* type, const spa_dict* properties) {
    if (std::strcmp(type, PW_TYPE_INTERFACE_Node) != 0 || !properties)
        return;
    const char* mediaClass = spa_dict_lookup(properties, PW_KEY_MEDIA_CLASS);
    if (!mediaClass)
        return;
    if (std::strcmp(mediaClass, "Stream/Output/Audio") == 0)
        bindNode(id, properties, true);
    else if (std::strcmp(mediaClass, "Audio/Sink") == 0)
        bindNode(id, properties, false);
}

/// The announcement of an object has only a few of its properties; the object itself has all.
void StreamWatch::bindNode(std::uint32_t id, const spa_dict* properties, bool isStream) {
    auto& node = nodes_[id] = std::make_unique<Node>(*this, isStream);
    node->properties = read(properties);
    node->proxy.reset(
        static_cast<pw_proxy*>(pw_registry_bind(registry_.get(), id, PW_TYPE_INTERFACE_Node, PW_VERSION_NODE, 0)));
    if (!node->proxy)
        return;
    static constexpr pw_node_events events = {
        .version = PW_VERSION_NODE_EVENTS,
        .info = [](void* data, const pw_node_info* info) { static_cast<Node*>(data)->onInfo(info); },
    };
    pw_node_add_listener(reinterpret_cast<pw_node*>(node->proxy.get()), node->listener.get(), &events, node.get());
    if (isStream)
        bindClient(idIn(node->properties, PW_KEY_CLIENT_ID));
}

/// Only the clients of streams: the executable's name is a property of the client.
void StreamWatch::bindClient(std::uint32_t id) {
    if (id == SPA_ID_INVALID || clients_.contains(id))
        return;
    auto& client = clients_[id] = std::make_unique<Client>(*this);
    client->proxy.reset(
        static_cast<pw_proxy*>(pw_registry_bind(registry_.get(), id, PW_TYPE_INTERFACE_Client, PW_VERSION_CLIENT, 0)));
    if (!client->proxy)
        return;
    static constexpr pw_client_events events = {
        .version = PW_VERSION_CLIENT_EVENTS,
        .info =
            [](void* data, const pw_client_info* info) {
                auto* self = static_cast<Client*>(data);
                self->described = true;
                if (info->props)
                    self->properties = read(info->props);
                self->owner.changed_();
            },
    };
    pw_client_add_listener(reinterpret_cast<pw_client*>(client->proxy.get()), client->listener.get(), &events,
                           client.get());
}

void StreamWatch::onGlobalRemoved(std::uint32_t id) {
    clients_.erase(id);
    if (nodes_.erase(id) > 0)
        changed_();
}

bool StreamWatch::belongsToASink(const std::string& linkGroup) const {
    return !linkGroup.empty() && std::ranges::any_of(nodes_, [&](const auto& each) {
        return !each.second->isStream && firstOf(each.second->properties, {PW_KEY_NODE_LINK_GROUP}) == linkGroup;
    });
}

std::map<std::uint32_t, StreamWatch::Stream> StreamWatch::streams() const {
    static const Properties none;
    std::map<std::uint32_t, Stream> result;
    for (const auto& [id, node] : nodes_) {
        if (!node->isStream)
            continue;
        const auto& own = node->properties;
        const auto found = clients_.find(idIn(own, PW_KEY_CLIENT_ID));
        const auto& client = found != clients_.end() ? found->second->properties : none;
        const auto either = [&](std::initializer_list<const char*> keys) {
            auto text = firstOf(own, keys);
            return text.empty() ? firstOf(client, keys) : text;
        };
        Stream& stream = result[id];
        stream.program = {.applicationId = either({PW_KEY_APP_ID, kSandboxIdKey}),
                          .binary = either({PW_KEY_APP_PROCESS_BINARY}),
                          .name = either({PW_KEY_APP_NAME}),
                          .nodeName = firstOf(own, {PW_KEY_NODE_NAME})};
        stream.iconName = either({PW_KEY_APP_ICON_NAME, kPulseIconNameKey});
        // For a program of PulseAudio this is the length of its buffer, which it keeps full. Others only ask for blocks
        // of this length at most.
        if (either({PW_KEY_CLIENT_API}) == "pipewire-pulse")
            stream.latency = secondsIn(firstOf(own, {PW_KEY_NODE_LATENCY}));
        stream.running = node->running;
        stream.known = node->described && (found == clients_.end() || found->second->described);
        stream.isEffect = belongsToASink(firstOf(own, {PW_KEY_NODE_LINK_GROUP}));
    }
    return result;
}

} // namespace Platform
