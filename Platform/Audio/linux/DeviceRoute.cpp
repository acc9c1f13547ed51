// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Audio/linux/DeviceRoute.h"

#include "Platform/Audio/linux/PipeWireHandles.h"

namespace Platform {

namespace {

PodPtr routePod(const DeviceRoute& route, const PodPtr& props) {
    std::uint8_t memory[2048];
    spa_pod_builder builder = SPA_POD_BUILDER_INIT(memory, sizeof memory);
    spa_pod_frame frame;
    spa_pod_builder_push_object(&builder, &frame, SPA_TYPE_OBJECT_ParamRoute, SPA_PARAM_Route);
    spa_pod_builder_prop(&builder, SPA_PARAM_ROUTE_index, 0);
    spa_pod_builder_int(&builder, route.index);
    spa_pod_builder_prop(&builder, SPA_PARAM_ROUTE_device, 0);
    spa_pod_builder_int(&builder, route.device);
    spa_pod_builder_prop(&builder, SPA_PARAM_ROUTE_props, 0);
    spa_pod_builder_primitive(&builder, props.get());
    spa_pod_builder_prop(&builder, SPA_PARAM_ROUTE_save, 0);
    spa_pod_builder_bool(&builder, true);
    return PodPtr(spa_pod_copy(static_cast<spa_pod*>(spa_pod_builder_pop(&builder, &frame))));
}

bool readInt(const spa_pod* pod, std::uint32_t key, std::int32_t& value) {
    const spa_pod_prop* property = spa_pod_find_prop(pod, nullptr, key);
    return property && spa_pod_get_int(&property->value, &value) == 0;
}

} // namespace

std::optional<DeviceRoute> DeviceRoute::read(const spa_pod* pod) {
    DeviceRoute route;
    if (!pod || !spa_pod_is_object_type(pod, SPA_TYPE_OBJECT_ParamRoute) ||
        !readInt(pod, SPA_PARAM_ROUTE_index, route.index) || !readInt(pod, SPA_PARAM_ROUTE_device, route.device))
        return {};
    if (const spa_pod_prop* props = spa_pod_find_prop(pod, nullptr, SPA_PARAM_ROUTE_props);
        props && spa_pod_is_object(&props->value))
        route.hasVolume = readVolumes(&props->value, route.volumes, route.muted);
    return route;
}

PodPtr DeviceRoute::withVolumes(const std::vector<float>& values) const {
    return routePod(*this, volumesPod(values));
}

PodPtr DeviceRoute::withMute(bool mute) const {
    return routePod(*this, mutePod(mute));
}

} // namespace Platform
