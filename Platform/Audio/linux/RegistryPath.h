// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

/// How nodes of the sound server are named in the device registry. Pure functions, any thread.
namespace Platform::RegistryPath {

/// Escapes "/", ":", "@", "%" and control characters as %XX, so that a name cannot contain a path separator.
[[nodiscard]] std::string escaped(std::string_view name);
[[nodiscard]] std::string unescaped(std::string_view name);

/// 8 hex digits that keep a name distinct from one that begins with it.
[[nodiscard]] std::string hash(std::string_view nodeName);
/// "<node name>:<hash>"
[[nodiscard]] std::string uniqueID(std::string_view nodeName);
/// "USB", "PCI", "BLUETOOTH", "VIRTUAL" or another bus in capitals, from the property device.bus of the node or its
/// card.
[[nodiscard]] std::string bus(std::string_view deviceBus);
/// "IOService:/<bus>/<device>/<node>@<hash>"
[[nodiscard]] std::string path(std::string_view deviceBus, std::string_view deviceName, std::string_view nodeName);
/// The node name at the end of a path; empty when the path is malformed.
[[nodiscard]] std::string nodeNameOf(std::string_view path);

} // namespace Platform::RegistryPath
