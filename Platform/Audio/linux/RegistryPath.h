// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

/// How nodes of the sound server are named in the registry of devices. Without state, any thread.
namespace Platform::RegistryPath {

/// "/", ":", "@", "%" and control characters as %XX: what separates the parts of a path cannot come from a name.
[[nodiscard]] std::string escaped(std::string_view name);
[[nodiscard]] std::string unescaped(std::string_view name);

/// 8 hex digits that tell apart names of which one is the beginning of another.
[[nodiscard]] std::string hash(std::string_view nodeName);
/// "<node name>:<hash>"
[[nodiscard]] std::string uniqueID(std::string_view nodeName);
/// "USB", "PCI", "BLUETOOTH", "VIRTUAL" or another bus in capitals, from the property device.bus of the node or its
/// card.
[[nodiscard]] std::string bus(std::string_view deviceBus);
/// "IOService:/<bus>/<device>/<node>@<hash>"
[[nodiscard]] std::string path(std::string_view deviceBus, std::string_view deviceName, std::string_view nodeName);
/// The node that a path ends with; empty when it is no such path.
[[nodiscard]] std::string nodeNameOf(std::string_view path);

} // namespace Platform::RegistryPath
