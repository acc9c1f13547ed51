// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Audio/Mixdown.h"
#include "Platform/Audio/RealTime.h"
#include "Platform/Audio/linux/PipeWireHandles.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include <pipewire/filter.h>

/// Mixes the channels of one output, or of one stream, down to two. It is a node of the sound server with an input port
/// for each channel and two output ports; the driver links it. The samples stay 32-bit float, so a loud sum exceeds 1
/// instead of being limited. Used on the main loop's thread; the mixing runs on the data thread.
class Mixer {
public:
    /// @p channels are the names of its channels in order. @p failed is called when the server removes the
    /// node; the mixer must not be destroyed inside that call.
    Mixer(pw_context* context, pw_core* core, std::uint32_t source, std::vector<std::string> channels,
          std::function<void()> failed);
    ~Mixer();
    Mixer(const Mixer&) = delete;
    Mixer& operator=(const Mixer&) = delete;

    /// The id on the server of the node whose channels are mixed.
    [[nodiscard]] std::uint32_t source() const { return source_; }
    [[nodiscard]] const std::vector<std::string>& channels() const { return channels_; }
    /// SPA_ID_INVALID until the server knows the node. Its ports are numbered from 0: inputs in channel order, then the
    /// outputs left and right.
    [[nodiscard]] std::uint32_t node() const;
    [[nodiscard]] bool broken() const { return broken_; }

private:
    struct Input {
        void* port = nullptr;
        Platform::StereoGains gains;
    };
    void* addPort(pw_direction direction, const std::string& name, const std::string& channel);
    void processRt(const spa_io_position* position) noexcept REC_NONBLOCKING;

    pw_context* const context_;
    const std::uint32_t source_;
    const std::vector<std::string> channels_;
    const std::function<void()> failed_;
    bool broken_ = false;
    std::vector<Input> inputs_;
    void* left_ = nullptr;
    void* right_ = nullptr;

    // Destroyed in reverse order.
    std::unique_ptr<pw_filter, Platform::PipeWire::FreeBy<pw_filter_destroy>> filter_;
    Platform::PipeWire::Hook listener_;
};
