// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/TestCard.h"

#include "Platform/Audio/linux/NodeFormat.h"
#include "Platform/Audio/linux/PipeWireHandles.h"
#include "tests/support/ClientConnection.h"
#include "tests/support/WaitFor.h"

#include <atomic>
#include <cerrno>
#include <mutex>
#include <vector>

#include <spa/monitor/device.h>
#include <spa/monitor/utils.h>

using namespace Platform::PipeWire;

struct TestCard::Connection : ClientConnection {
    Connection(const std::map<std::string, std::string>& properties, std::optional<Route> r) : route(std::move(r)) {
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
            .enum_params = [](void* object, int sequence, std::uint32_t id, std::uint32_t start, std::uint32_t,
                              const spa_pod*) { return static_cast<Connection*>(object)->name(sequence, id, start); },
            .set_param = [](void* object, std::uint32_t id, std::uint32_t,
                            const spa_pod* pod) { return static_cast<Connection*>(object)->obey(id, pod); },
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
        tellParams(info);
        spa_device_emit_info(&hooks, &info);
        spa_hook_list_join(&hooks, &others);
    }

    void tellParams(spa_device_info& info) {
        if (!route)
            return;
        info.change_mask |= SPA_DEVICE_CHANGE_MASK_PARAMS;
        info.params = &param;
        info.n_params = 1;
    }

    /// Announces the only route.
    int name(int sequence, std::uint32_t id, std::uint32_t start) {
        if (id != SPA_PARAM_Route || !route)
            return -ENOENT;
        if (start > 0)
            return 0;
        std::uint8_t memory[1024];
        spa_pod_builder builder = SPA_POD_BUILDER_INIT(memory, sizeof memory);
        spa_pod_frame whole;
        spa_pod_frame props;
        spa_pod_builder_push_object(&builder, &whole, SPA_TYPE_OBJECT_ParamRoute, SPA_PARAM_Route);
        spa_pod_builder_add(&builder, SPA_PARAM_ROUTE_index, SPA_POD_Int(route->index), SPA_PARAM_ROUTE_direction,
                            SPA_POD_Id(SPA_DIRECTION_INPUT), SPA_PARAM_ROUTE_device, SPA_POD_Int(route->device),
                            SPA_PARAM_ROUTE_name, SPA_POD_String("test-route"), 0);
        if (!route->volumes.empty()) {
            spa_pod_builder_prop(&builder, SPA_PARAM_ROUTE_props, 0);
            spa_pod_builder_push_object(&builder, &props, SPA_TYPE_OBJECT_Props, SPA_PARAM_Route);
            spa_pod_builder_add(
                &builder, SPA_PROP_mute, SPA_POD_Bool(route->muted), SPA_PROP_channelVolumes,
                SPA_POD_Array(sizeof(float), SPA_TYPE_Float, route->volumes.size(), route->volumes.data()), 0);
            spa_pod_builder_pop(&builder, &props);
        }
        spa_result_device_params result = {};
        result.id = id;
        result.index = 0;
        result.next = 1;
        result.param = static_cast<spa_pod*>(spa_pod_builder_pop(&builder, &whole));
        spa_device_emit_result(&hooks, sequence, 0, SPA_RESULT_TYPE_DEVICE_PARAMS, &result);
        return 0;
    }

    int obey(std::uint32_t id, const spa_pod* pod) {
        std::int32_t index = -1;
        std::int32_t device = -1;
        const spa_pod* props = nullptr;
        if (id != SPA_PARAM_Route || !route || !pod ||
            spa_pod_parse_object(pod, SPA_TYPE_OBJECT_ParamRoute, nullptr, SPA_PARAM_ROUTE_index, SPA_POD_Int(&index),
                                 SPA_PARAM_ROUTE_device, SPA_POD_Int(&device), SPA_PARAM_ROUTE_props,
                                 SPA_POD_OPT_Pod(&props)) < 0)
            return -EINVAL;
        if (index != route->index || device != route->device)
            return -EINVAL;
        {
            std::lock_guard guard(mutex);
            if (props)
                (void)Platform::readVolumes(props, route->volumes, route->muted);
        }
        tellChange();
        return 0;
    }

    void tellChange() {
        param.flags ^= SPA_PARAM_INFO_SERIAL;
        spa_device_info info = SPA_DEVICE_INFO_INIT();
        tellParams(info);
        spa_device_emit_info(&hooks, &info);
    }

    std::mutex mutex; ///< guards the route, which the test's thread also uses
    std::optional<Route> route;
    spa_param_info param = SPA_PARAM_INFO(SPA_PARAM_Route, SPA_PARAM_INFO_READWRITE);

    std::vector<spa_dict_item> items;
    spa_dict dict = {};
    spa_hook_list hooks = {};
    spa_device device = {};
    std::atomic<std::uint32_t> id{SPA_ID_INVALID};
    ProxyPtr proxy;
    Hook listener;
};

TestCard::TestCard(std::map<std::string, std::string> properties, std::optional<Route> route)
    : properties_(std::move(properties)), route_(std::move(route)) {
}
TestCard::~TestCard() = default;

testing::AssertionResult TestCard::start() {
    connection_ = std::make_unique<Connection>(properties_, route_);
    if (!connection_->start() || !waitFor([this] { return connection_->id != SPA_ID_INVALID; }))
        return testing::AssertionFailure() << "the server does not take the card";
    return testing::AssertionSuccess();
}

std::uint32_t TestCard::id() const {
    return connection_->id;
}

TestCard::Route TestCard::route() const {
    std::lock_guard guard(connection_->mutex);
    return connection_->route.value_or(Route{});
}

void TestCard::turn(std::vector<float> volumes) {
    const LoopLock lock(connection_->loop.get());
    {
        std::lock_guard guard(connection_->mutex);
        connection_->route->volumes = std::move(volumes);
    }
    connection_->tellChange();
}
