// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tools/CaptureDriver/Mixer.h"

#include <algorithm>

using namespace Platform;
using namespace Platform::PipeWire;

Mixer::Mixer(pw_context* context, pw_core* core, std::uint32_t source, std::vector<std::string> channels,
             std::function<void()> failed)
    : context_(context), source_(source), channels_(std::move(channels)), failed_(std::move(failed)) {
    // No media class: the session manager links and suspends only nodes that have a media class.
    // Passive: while nothing captures the device, the output that the mixer reads may go to sleep.
    filter_.reset(pw_filter_new(core, "Korvane System Audio Mix",
                                pw_properties_new(PW_KEY_NODE_NAME, "korvane.system-audio.mix", PW_KEY_MEDIA_TYPE,
                                                  "Audio", PW_KEY_MEDIA_CATEGORY, "Filter", PW_KEY_MEDIA_ROLE, "DSP",
                                                  PW_KEY_NODE_VIRTUAL, "true", PW_KEY_NODE_PASSIVE, "true", nullptr)));
    if (!filter_) {
        broken_ = true;
        return;
    }
    static constexpr pw_filter_events events = {
        .version = PW_VERSION_FILTER_EVENTS,
        .state_changed =
            [](void* data, pw_filter_state old, pw_filter_state state, const char*) {
                auto* self = static_cast<Mixer*>(data);
                if (state != PW_FILTER_STATE_ERROR &&
                    (state != PW_FILTER_STATE_UNCONNECTED || old == PW_FILTER_STATE_UNCONNECTED))
                    return;
                self->broken_ = true;
                self->failed_();
            },
        .process = [](void* data, spa_io_position* position) { static_cast<Mixer*>(data)->processRt(position); },
    };
    for (unsigned i = 0; i < channels_.size(); ++i)
        inputs_.push_back(
            {addPort(PW_DIRECTION_INPUT, "input_" + std::to_string(i), channels_[i]), stereoGainsOf(channels_[i], i)});
    left_ = addPort(PW_DIRECTION_OUTPUT, "output_FL", "FL");
    right_ = addPort(PW_DIRECTION_OUTPUT, "output_FR", "FR");
    pw_filter_add_listener(filter_.get(), listener_.get(), &events, this);
    if (pw_filter_connect(filter_.get(), PW_FILTER_FLAG_RT_PROCESS, nullptr, 0) < 0)
        broken_ = true;
}

Mixer::~Mixer() {
    if (filter_)
        unhookFromDataThread(context_, listener_);
}

void* Mixer::addPort(pw_direction direction, const std::string& name, const std::string& channel) {
    return pw_filter_add_port(filter_.get(), direction, PW_FILTER_PORT_FLAG_MAP_BUFFERS, 1,
                              pw_properties_new(PW_KEY_FORMAT_DSP, "32 bit float mono audio", PW_KEY_PORT_NAME,
                                                name.c_str(), PW_KEY_AUDIO_CHANNEL, channel.c_str(), nullptr),
                              nullptr, 0);
}

std::uint32_t Mixer::node() const {
    return filter_ && !broken_ ? pw_filter_get_node_id(filter_.get()) : SPA_ID_INVALID;
}

void Mixer::processRt(const spa_io_position* position) noexcept {
    if (!position)
        return;
    const auto frames = std::uint32_t(position->clock.duration);
    auto* left = static_cast<float*>(pw_filter_get_dsp_buffer(left_, frames));
    auto* right = static_cast<float*>(pw_filter_get_dsp_buffer(right_, frames));
    if (left)
        std::fill_n(left, frames, 0.0F);
    if (right)
        std::fill_n(right, frames, 0.0F);
    for (const Input& input : inputs_) {
        const auto* samples = static_cast<const float*>(pw_filter_get_dsp_buffer(input.port, frames));
        if (!samples)
            continue;
        if (left && input.gains.left > 0)
            for (std::uint32_t i = 0; i < frames; ++i)
                left[i] += samples[i] * input.gains.left;
        if (right && input.gains.right > 0)
            for (std::uint32_t i = 0; i < frames; ++i)
                right[i] += samples[i] * input.gains.right;
    }
}
