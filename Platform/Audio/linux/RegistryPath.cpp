// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Audio/linux/RegistryPath.h"

#include <cctype>

namespace Platform::RegistryPath {

namespace {

constexpr std::string_view kPlane = "IOService:";
constexpr char kDigits[] = "0123456789abcdef";

int digit(char c) {
    if (c >= '0' && c <= '9')
        return c - '0';
    if (c >= 'a' && c <= 'f')
        return c - 'a' + 10;
    if (c >= 'A' && c <= 'F')
        return c - 'A' + 10;
    return -1;
}

} // namespace

std::string escaped(std::string_view name) {
    std::string out;
    for (const char c : name) {
        const auto byte = static_cast<unsigned char>(c);
        if (c == '/' || c == ':' || c == '@' || c == '%' || byte < 0x20 || byte == 0x7F) {
            out += '%';
            out += kDigits[byte >> 4];
            out += kDigits[byte & 15];
        } else {
            out += c;
        }
    }
    return out;
}

std::string unescaped(std::string_view name) {
    std::string out;
    for (std::size_t i = 0; i < name.size(); ++i) {
        if (name[i] == '%' && i + 2 < name.size() && digit(name[i + 1]) >= 0 && digit(name[i + 2]) >= 0) {
            out += static_cast<char>(digit(name[i + 1]) * 16 + digit(name[i + 2]));
            i += 2;
        } else {
            out += name[i];
        }
    }
    return out;
}

std::string hash(std::string_view nodeName) {
    std::uint32_t value = 2166136261U; // FNV-1a
    for (const char c : nodeName)
        value = (value ^ static_cast<unsigned char>(c)) * 16777619U;
    std::string out;
    for (int shift = 28; shift >= 0; shift -= 4)
        out += kDigits[(value >> shift) & 15];
    return out;
}

std::string uniqueID(std::string_view nodeName) {
    return std::string(nodeName) + ':' + hash(nodeName);
}

std::string bus(std::string_view deviceBus) {
    if (deviceBus.empty())
        return "VIRTUAL";
    std::string out = escaped(deviceBus);
    for (char& c : out)
        c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    return out;
}

std::string path(std::string_view deviceBus, std::string_view deviceName, std::string_view nodeName) {
    return std::string(kPlane) + '/' + bus(deviceBus) + '/' + escaped(deviceName.empty() ? "none" : deviceName) + '/' +
           escaped(nodeName) + '@' + hash(nodeName);
}

std::string nodeNameOf(std::string_view path) {
    const auto slash = path.rfind('/');
    if (path.substr(0, kPlane.size()) != kPlane || slash == std::string_view::npos)
        return {};
    const auto last = path.substr(slash + 1);
    const auto at = last.rfind('@');
    const auto name = unescaped(last.substr(0, at));
    return at != std::string_view::npos && last.substr(at + 1) == hash(name) ? name : std::string();
}

} // namespace Platform::RegistryPath
