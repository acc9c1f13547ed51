// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Audio/linux/NodeFormat.h"

#include "Platform/Audio/linux/PipeWireHandles.h"

#include <algorithm>

namespace Platform {

namespace {

/// The value of an integer property, or the first value when it is a choice.
std::uint32_t firstInt(const spa_pod* object, std::uint32_t key) {
    const spa_pod_prop* property = spa_pod_find_prop(object, nullptr, key);
    if (!property)
        return 0;
    std::uint32_t count = 0;
    std::uint32_t choice = 0;
    const spa_pod* values = spa_pod_get_values(&property->value, &count, &choice);
    std::int32_t value = 0;
    return count > 0 && spa_pod_get_int(values, &value) == 0 && value > 0 ? std::uint32_t(value) : 0;
}

template <typename Build>
PodPtr buildProps(Build build) {
    std::uint8_t memory[1024];
    spa_pod_builder builder = SPA_POD_BUILDER_INIT(memory, sizeof memory);
    spa_pod_frame frame;
    spa_pod_builder_push_object(&builder, &frame, SPA_TYPE_OBJECT_Props, SPA_PARAM_Props);
    build(builder);
    return PodPtr(spa_pod_copy(static_cast<spa_pod*>(spa_pod_builder_pop(&builder, &frame))));
}

PodPtr floatPod(const NodeFormat& asked, spa_audio_format sampleFormat) {
    std::uint8_t memory[1024];
    spa_pod_builder builder = SPA_POD_BUILDER_INIT(memory, sizeof memory);
    spa_audio_info_raw format = {};
    format.format = sampleFormat;
    format.rate = asked.rate;
    format.channels = asked.channels;
    std::copy_n(asked.positions.begin(), std::min<std::size_t>(asked.positions.size(), SPA_AUDIO_MAX_CHANNELS),
                format.position);
    return PodPtr(spa_pod_copy(spa_format_audio_raw_build(&builder, SPA_PARAM_EnumFormat, &format)));
}

} // namespace

NodeFormat NodeFormat::read(const spa_pod* pod) {
    std::uint32_t type = 0;
    std::uint32_t subtype = 0;
    if (!pod || spa_format_parse(pod, &type, &subtype) < 0 || type != SPA_MEDIA_TYPE_audio ||
        subtype != SPA_MEDIA_SUBTYPE_raw)
        return {};
    NodeFormat format;
    format.rate = firstInt(pod, SPA_FORMAT_AUDIO_rate);
    format.channels = firstInt(pod, SPA_FORMAT_AUDIO_channels);
    const spa_pod_prop* property = spa_pod_find_prop(pod, nullptr, SPA_FORMAT_AUDIO_position);
    if (property && spa_pod_is_array(&property->value)) {
        std::uint32_t positions[SPA_AUDIO_MAX_CHANNELS];
        const auto count = spa_pod_copy_array(&property->value, SPA_TYPE_Id, positions, SPA_AUDIO_MAX_CHANNELS);
        format.positions.assign(positions, positions + count);
    }
    return format;
}

std::vector<std::uint32_t> defaultChannelPositions(std::uint32_t channels) {
    switch (channels) {
    case 1:
        return {SPA_AUDIO_CHANNEL_MONO};
    case 2:
        return {SPA_AUDIO_CHANNEL_FL, SPA_AUDIO_CHANNEL_FR};
    default:
        break;
    }
    std::vector<std::uint32_t> positions;
    for (std::uint32_t i = 0; i < channels; ++i)
        positions.push_back(SPA_AUDIO_CHANNEL_AUX0 + i);
    return positions;
}

PodPtr interleavedFloatPod(const NodeFormat& format) {
    return floatPod(format, SPA_AUDIO_FORMAT_F32);
}

PodPtr planarFloatPod(const NodeFormat& format) {
    return floatPod(format, SPA_AUDIO_FORMAT_F32P);
}

bool readVolumes(const spa_pod* pod, std::vector<float>& volumes, bool& muted) {
    const spa_pod_prop* control = spa_pod_find_prop(pod, nullptr, SPA_PROP_channelVolumes);
    if (control && spa_pod_is_array(&control->value)) {
        float values[SPA_AUDIO_MAX_CHANNELS];
        const auto count = spa_pod_copy_array(&control->value, SPA_TYPE_Float, values, SPA_AUDIO_MAX_CHANNELS);
        if (count > 0)
            volumes.assign(values, values + count);
    }
    if (const spa_pod_prop* property = spa_pod_find_prop(pod, nullptr, SPA_PROP_mute))
        spa_pod_get_bool(&property->value, &muted);
    return control != nullptr;
}

PodPtr volumesPod(const std::vector<float>& volumes) {
    return buildProps([&](spa_pod_builder& builder) {
        spa_pod_builder_prop(&builder, SPA_PROP_channelVolumes, 0);
        spa_pod_builder_array(&builder, sizeof(float), SPA_TYPE_Float, std::uint32_t(volumes.size()), volumes.data());
    });
}

PodPtr mutePod(bool mute) {
    return buildProps([&](spa_pod_builder& builder) {
        spa_pod_builder_prop(&builder, SPA_PROP_mute, 0);
        spa_pod_builder_bool(&builder, mute);
    });
}

} // namespace Platform
