// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Audio/ProgramChoice.h"
#include "Platform/Audio/linux/PipeWireHandles.h"

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <string>

namespace Platform {

/// The streams with which programs play, and what the sound server knows about those programs. Used on the loop's
/// thread only, by the program and by the driver's process. Destroy it before the core.
class StreamWatch {
public:
    struct Stream {
        ProgramIdentity program;
        std::string iconName; ///< of the icon theme; may be empty
        double latency = 0;   ///< seconds of sound that it holds; 0 when that is not known
        bool running = false; ///< it plays now; false while it is paused
        /// Whether the server has described the stream and its program. Until then the program is unknown.
        bool known = false;
        /// It is the output side of an effect or a virtual output, which plays what other programs sent there.
        bool isEffect = false;
    };

    /// @p changed is called whenever streams() may be different; it must not destroy this object.
    StreamWatch(pw_core* core, std::function<void()> changed);
    ~StreamWatch();
    StreamWatch(const StreamWatch&) = delete;
    StreamWatch& operator=(const StreamWatch&) = delete;

    /// By the node's id on the server.
    [[nodiscard]] std::map<std::uint32_t, Stream> streams() const;

private:
    struct Node;
    struct Client;

    void onGlobal(std::uint32_t id, const char* type, const spa_dict* properties);
    void onGlobalRemoved(std::uint32_t id);
    void bindNode(std::uint32_t id, const spa_dict* properties, bool isStream);
    void bindClient(std::uint32_t id);
    [[nodiscard]] bool belongsToASink(const std::string& linkGroup) const;

    pw_core* const core_;
    const std::function<void()> changed_;
    // Destroyed in reverse order.
    PipeWire::RegistryPtr registry_;
    PipeWire::Hook registryListener_;
    std::map<std::uint32_t, std::unique_ptr<Client>> clients_; ///< by the server's id, as are the nodes
    std::map<std::uint32_t, std::unique_ptr<Node>> nodes_;     ///< streams that play, and outputs
};

} // namespace Platform
