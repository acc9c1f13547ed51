// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <cstring>
#include <span>
#include <vector>

namespace Platform {

/// Writes file headers, big-endian, and nested boxes; the size of a box is filled in when it ends.
class ByteWriter {
public:
    ByteWriter& u8(std::uint32_t value) {
        bytes_.push_back(std::uint8_t(value));
        return *this;
    }
    ByteWriter& u16(std::uint32_t value) { return u8(value >> 8).u8(value); }
    ByteWriter& u24(std::uint32_t value) { return u8(value >> 16).u16(value); }
    ByteWriter& u32(std::uint64_t value) { return u16(std::uint32_t(value >> 16)).u16(std::uint32_t(value)); }
    ByteWriter& u64(std::uint64_t value) { return u32(value >> 32).u32(value); }
    ByteWriter& f64(double value) {
        std::uint64_t bits = 0;
        std::memcpy(&bits, &value, sizeof bits);
        return u64(bits);
    }
    ByteWriter& zeros(int count) {
        bytes_.insert(bytes_.end(), std::size_t(count), 0);
        return *this;
    }
    ByteWriter& code(const char (&letters)[5]) {
        for (int i = 0; i < 4; ++i)
            u8(std::uint8_t(letters[i]));
        return *this;
    }
    ByteWriter& text(const char* characters) {
        bytes_.insert(bytes_.end(), characters, characters + std::strlen(characters) + 1);
        return *this;
    }
    ByteWriter& bytes(std::span<const std::uint8_t> data) {
        bytes_.insert(bytes_.end(), data.begin(), data.end());
        return *this;
    }

    /// Writes a box around the output of @p content.
    template <typename Content>
    ByteWriter& box(const char (&type)[5], Content content) {
        const std::size_t start = bytes_.size();
        u32(0).code(type);
        content();
        setU32(start, std::uint32_t(bytes_.size() - start));
        return *this;
    }
    /// Like box(), with the version and flags of a "full box".
    template <typename Content>
    ByteWriter& fullBox(const char (&type)[5], std::uint32_t version, std::uint32_t flags, Content content) {
        return box(type, [&] {
            u8(version).u24(flags);
            content();
        });
    }
    void setU32(std::size_t at, std::uint32_t value) {
        for (int i = 0; i < 4; ++i)
            bytes_[at + std::size_t(i)] = std::uint8_t(value >> (24 - 8 * i));
    }

    [[nodiscard]] std::size_t size() const { return bytes_.size(); }
    [[nodiscard]] std::span<const std::uint8_t> data() const { return bytes_; }
    void clear() { bytes_.clear(); }

private:
    std::vector<std::uint8_t> bytes_;
};

} // namespace Platform
