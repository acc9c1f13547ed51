// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/TestCard.h"

#include "Platform/Audio/linux/PipeWireHandles.h"
#include "tests/support/ClientConnection.h"
#include "tests/support/WaitFor.h"

#include <atomic>
#include <cerrno>
#include <vector>

#include <spa/monitor/device.h>
#include <spa/monitor/utils.h>

using namespace Platform::PipeWire;

struct TestCard::Connection : ClientConnection {
    explicit Connection(const std::map<std::string, std::string>& properties) {
        for (const auto& [key, value] : properties)
            items.push_back(SPA_DICT_ITEM_INIT(key.c_str(), value.c_str()));
        dict = SPA_DICT_INIT(items.data(), std::uint32_t(items.size()));
        spa_hook_list_init(&hooks);
        static constexpr spa_device_methods methods = {
            .version = SPA_VERSION_DEVICE_METHODS,
            .add_listener =
                [](void* object, spa_hook* listener, const spa_device_events* events, void* data) {
                    static_cast<Connection*>(object)->tell(listener, events, data);
                    return 0;
                },
            .sync =
                [](void* object, int sequence) {
                    spa_device_emit_result(&static_cast<Connection*>(object)->hooks, sequence, 0, 0, nullptr);
                    return 0;
                },
            .enum_params = [](void*, int, std::uint32_t, std::uint32_t, std::uint32_t,
                              const spa_pod*) { return -ENOENT; },
            .set_param = [](void*, std::uint32_t, std::uint32_t, const spa_pod*) { return -ENOENT; },
        };
        device.iface = SPA_INTERFACE_INIT(SPA_TYPE_INTERFACE_Device, SPA_VERSION_DEVICE, &methods, this);
    }
    ~Connection() {
        disconnect([this] {
            listener.remove();
            proxy.reset();
        });
    }

    bool start() {
        return connect("test-card", [this] { return setUp(); });
    }

    bool setUp() {
        proxy.reset(pw_core_export(core.get(), SPA_TYPE_INTERFACE_Device, &dict, &device, 0));
        if (!proxy)
            return false;
        static constexpr pw_proxy_events events = {
            .version = PW_VERSION_PROXY_EVENTS,
            .bound = [](void* data, std::uint32_t id) { static_cast<Connection*>(data)->id = id; },
        };
        pw_proxy_add_listener(proxy.get(), listener.get(), &events, this);
        return true;
    }

    void tell(spa_hook* newcomer, const spa_device_events* events, void* data) {
        spa_hook_list others;
        spa_hook_list_isolate(&hooks, &others, newcomer, events, data);
        spa_device_info info = SPA_DEVICE_INFO_INIT();
        info.change_mask = SPA_DEVICE_CHANGE_MASK_PROPS;
        info.props = &dict;
        spa_device_emit_info(&hooks, &info);
        spa_hook_list_join(&hooks, &others);
    }

    std::vector<spa_dict_item> items;
    spa_dict dict = {};
    spa_hook_list hooks = {};
    spa_device device = {};
    std::atomic<std::uint32_t> id{SPA_ID_INVALID};
    ProxyPtr proxy;
    Hook listener;
};

TestCard::TestCard(std::map<std::string, std::string> properties) : properties_(std::move(properties)) {
}
TestCard::~TestCard() = default;

testing::AssertionResult TestCard::start() {
    connection_ = std::make_unique<Connection>(properties_);
    if (!connection_->start() || !waitFor([this] { return connection_->id != SPA_ID_INVALID; }))
        return testing::AssertionFailure() << "the server does not take the card";
    return testing::AssertionSuccess();
}

std::uint32_t TestCard::id() const {
    return connection_->id;
}
