// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Audio/ProgramChoice.h"

#include <algorithm>
#include <array>

namespace Platform {

namespace {

constexpr std::string_view kOnly = "only:";
constexpr std::string_view kAllBut = "not:";
constexpr std::string_view kHexDigits = "0123456789ABCDEF";

/// Executables that run programs of other names. A version may follow, as in "python3.11".
constexpr std::array<std::string_view, 8> kRunners = {"python", "java", "wine", "electron",
                                                      "node",   "perl", "ruby", "mono"};

char lower(char c) {
    return c >= 'A' && c <= 'Z' ? char(c - 'A' + 'a') : c;
}

bool sameText(std::string_view one, std::string_view other) {
    return std::ranges::equal(one, other, [](char a, char b) { return lower(a) == lower(b); });
}

bool isRunner(std::string_view binary) {
    return std::ranges::any_of(kRunners, [binary](std::string_view runner) {
        if (binary.size() < runner.size() || !sameText(binary.substr(0, runner.size()), runner))
            return false;
        const std::string_view rest = binary.substr(runner.size());
        return rest.find_first_not_of("0123456789.") == std::string_view::npos || rest.find("preloader") != rest.npos ||
               rest.front() == '-';
    });
}

/// A comma separates programs; a control character could break the server's text.
void appendEscaped(std::string& text, std::string_view program) {
    for (const char c : program) {
        const auto code = static_cast<unsigned char>(c);
        if (code >= 0x20 && code != 0x7F && c != ',' && c != '%') {
            text += c;
            continue;
        }
        text += '%';
        text += kHexDigits[code >> 4];
        text += kHexDigits[code & 15];
    }
}

std::string unescaped(std::string_view text) {
    std::string result;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto high = text[i] == '%' && i + 2 < text.size() ? kHexDigits.find(text[i + 1]) : std::string_view::npos;
        const auto low = high == std::string_view::npos ? high : kHexDigits.find(text[i + 2]);
        if (low == std::string_view::npos) {
            result += text[i];
            continue;
        }
        result += char(high * 16 + low);
        i += 2;
    }
    return result;
}

std::vector<std::string> programsIn(std::string_view list) {
    std::vector<std::string> programs;
    while (!list.empty()) {
        const auto end = std::min(list.find(','), list.size());
        if (end > 0)
            programs.push_back(unescaped(list.substr(0, end)));
        list.remove_prefix(std::min(end + 1, list.size()));
    }
    return programs;
}

} // namespace

std::string ProgramIdentity::id() const {
    if (!applicationId.empty())
        return applicationId;
    if (!binary.empty() && (name.empty() || !isRunner(binary)))
        return binary;
    return name.empty() ? nodeName : name;
}

std::string ProgramIdentity::title() const {
    for (const auto* each : {&name, &binary, &applicationId})
        if (!each->empty())
            return *each;
    return nodeName;
}

bool ProgramIdentity::is(std::string_view wanted) const {
    if (wanted.empty())
        return false;
    return sameText(applicationId, wanted) || sameText(binary, wanted) || sameText(name, wanted) ||
           sameText(nodeName, wanted);
}

bool ProgramChoice::takes(const ProgramIdentity& program) const {
    if (mode == Mode::Everything)
        return true;
    const bool named = std::ranges::any_of(programs, [&](const std::string& each) { return program.is(each); });
    return named == (mode == Mode::Only);
}

std::string ProgramChoice::encoded() const {
    if (mode == Mode::Everything)
        return {};
    std::string text(mode == Mode::Only ? kOnly : kAllBut);
    for (std::size_t i = 0; i < programs.size(); ++i) {
        if (i > 0)
            text += ',';
        appendEscaped(text, programs[i]);
    }
    return text;
}

ProgramChoice ProgramChoice::decoded(std::string_view text) {
    if (text.empty())
        return {};
    if (text.starts_with(kAllBut))
        return {Mode::AllBut, programsIn(text.substr(kAllBut.size()))};
    if (text.starts_with(kOnly))
        return {Mode::Only, programsIn(text.substr(kOnly.size()))};
    return {Mode::Only, {}};
}

} // namespace Platform
