// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/ServerWatch.h"

#include "Platform/Audio/linux/PipeWireHandles.h"
#include "tests/support/ClientConnection.h"
#include "tests/support/WaitFor.h"

#include <cstdlib>
#include <cstring>
#include <map>
#include <mutex>

using namespace Platform::PipeWire;

struct ServerWatch::Connection : ClientConnection {
    struct Node {
        ~Node() { listener.remove(); }
        Connection* owner = nullptr;
        std::string name;
        std::string state;
        int timesCutOff = 0;
        NodePtr proxy;
        Hook listener;
    };
    struct Link {
        std::uint32_t fromNode = 0;
        std::uint32_t toNode = 0;
        std::uint32_t toPort = 0;
    };

    ~Connection() {
        disconnect([this] {
            nodes.clear();
            registryListener.remove();
            registry.reset();
            coreListener.remove();
        });
    }

    bool start() {
        return connect("server-watch", [this] { return setUp(); });
    }

    bool setUp() {
        static constexpr pw_core_events coreEvents = {
            .version = PW_VERSION_CORE_EVENTS,
            .done = [](void* data, std::uint32_t, int) { static_cast<Connection*>(data)->onDone(); },
        };
        pw_core_add_listener(core.get(), coreListener.get(), &coreEvents, this);
        registry.reset(pw_core_get_registry(core.get(), PW_VERSION_REGISTRY, 0));
        static constexpr pw_registry_events registryEvents = {
            .version = PW_VERSION_REGISTRY_EVENTS,
            .global =
                [](void* data, std::uint32_t id, std::uint32_t, const char* type, std::uint32_t,
                   const spa_dict* properties) { static_cast<Connection*>(data)->onGlobal(id, type, properties); },
            .global_remove = [](void* data, std::uint32_t id) { static_cast<Connection*>(data)->onGlobalRemoved(id); },
        };
        pw_registry_add_listener(registry.get(), registryListener.get(), &registryEvents, this);
        pw_core_sync(core.get(), PW_ID_CORE, 0);
        return true;
    }

    void onDone() {
        // The first answer comes after the names of all objects, the second after the state of the nodes.
        std::lock_guard guard(mutex);
        if (++answers == 1)
            pw_core_sync(core.get(), PW_ID_CORE, 0);
    }

    void onGlobal(std::uint32_t id, const char* type, const spa_dict* properties) {
        const auto text = [&](const char* key) -> std::string {
            const char* value = properties ? spa_dict_lookup(properties, key) : nullptr;
            return value ? value : "";
        };
        const auto number = [&](const char* key) { return std::uint32_t(std::atoi(text(key).c_str())); };
        std::lock_guard guard(mutex);
        if (std::strcmp(type, PW_TYPE_INTERFACE_Node) == 0) {
            auto& node = nodes[id];
            node.owner = this;
            node.name = text(PW_KEY_NODE_NAME);
            node.proxy.reset(static_cast<pw_node*>(
                pw_registry_bind(registry.get(), id, PW_TYPE_INTERFACE_Node, PW_VERSION_NODE, 0)));
            if (!node.proxy)
                return;
            static constexpr pw_node_events events = {
                .version = PW_VERSION_NODE_EVENTS,
                .info =
                    [](void* data, const pw_node_info* info) {
                        auto* self = static_cast<Node*>(data);
                        std::lock_guard held(self->owner->mutex);
                        self->state = pw_node_state_as_string(info->state);
                    },
            };
            pw_node_add_listener(node.proxy.get(), node.listener.get(), &events, &node);
        } else if (std::strcmp(type, PW_TYPE_INTERFACE_Link) == 0) {
            links[id] = {number(PW_KEY_LINK_OUTPUT_NODE), number(PW_KEY_LINK_INPUT_NODE),
                         number(PW_KEY_LINK_INPUT_PORT)};
        }
    }

    void onGlobalRemoved(std::uint32_t id) {
        std::lock_guard guard(mutex);
        nodes.erase(id);
        const auto gone = links.find(id);
        if (gone == links.end())
            return;
        const Link link = gone->second;
        links.erase(gone);
        for (const auto& [other, each] : links)
            if (each.toPort == link.toPort)
                return;
        if (const auto node = nodes.find(link.toNode); node != nodes.end())
            ++node->second.timesCutOff;
    }

    [[nodiscard]] const Node* find(const std::string& name) const {
        for (const auto& [id, node] : nodes)
            if (node.name == name)
                return &node;
        return nullptr;
    }

    mutable std::mutex mutex; ///< guards the four members below
    int answers = 0;
    std::map<std::uint32_t, Node> nodes; ///< by the server's id, like the links
    std::map<std::uint32_t, Link> links;
    Hook coreListener;
    RegistryPtr registry;
    Hook registryListener;
};

ServerWatch::ServerWatch() = default;
ServerWatch::~ServerWatch() = default;

testing::AssertionResult ServerWatch::start() {
    connection_ = std::make_unique<Connection>();
    const auto known = [this] {
        std::lock_guard guard(connection_->mutex);
        return connection_->answers >= 2;
    };
    if (!connection_->start() || !waitFor(known))
        return testing::AssertionFailure() << "the sound server does not answer";
    return testing::AssertionSuccess();
}

std::string ServerWatch::stateOf(const std::string& node) const {
    std::lock_guard guard(connection_->mutex);
    const auto* found = connection_->find(node);
    return found ? found->state : "";
}

std::set<std::string> ServerWatch::feedersOf(const std::string& node) const {
    std::lock_guard guard(connection_->mutex);
    std::set<std::string> names;
    for (const auto& [id, link] : connection_->links) {
        const auto to = connection_->nodes.find(link.toNode);
        const auto from = connection_->nodes.find(link.fromNode);
        if (to != connection_->nodes.end() && to->second.name == node && from != connection_->nodes.end())
            names.insert(from->second.name);
    }
    return names;
}

int ServerWatch::timesCutOff(const std::string& node) const {
    std::lock_guard guard(connection_->mutex);
    const auto* found = connection_->find(node);
    return found ? found->timesCutOff : 0;
}
