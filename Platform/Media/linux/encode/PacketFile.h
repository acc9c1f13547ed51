// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Media/linux/encode/OutputFile.h"

#include <cstdint>
#include <memory>
#include <span>
#include <vector>

namespace Platform {

/// What a container must know of the AAC packets it is going to hold.
struct AacStreamInfo {
    int sampleRate = 44100;
    int channels = 2;
    int framesPerPacket = 1024;
    int primingFrames = 1024; ///< frames at the beginning of the decoded stream that belong to the encoder
    int bitRate = 0;
    std::vector<std::uint8_t> config; ///< AudioSpecificConfig
};

/// A container of AAC packets. One thread.
class PacketFile {
public:
    virtual ~PacketFile() = default;
    /// False when readers take a file without packets for a broken one.
    [[nodiscard]] virtual bool mayBeEmpty() const { return true; }
    virtual bool begin(const AacStreamInfo& info) = 0;
    virtual bool add(std::span<const std::uint8_t> packet) = 0;
    /// @p validFrames: how many frames the listener shall hear, priming and padding taken off.
    virtual void finish(std::int64_t validFrames) = 0;
};

/// MPEG-4. While it grows the file is a row of fragments of about a second, each written at once, so whatever ends the
/// process leaves a file that plays; finish() makes it a plain file with its index at the end. The plain form is made
/// beside it and takes its place at once; without room for that the index goes behind the fragments, and one write of a
/// few bytes makes them the inside of the media box. On a full disk the fragments stay.
[[nodiscard]] std::unique_ptr<PacketFile> createMpeg4File(OutputFile& file);

/// Says in our MPEG-4 files who wrote them: our encoder uses no noise substitution, so any packet decodes to the same
/// samples whatever was decoded before.
inline constexpr const char* mpeg4HandlerName = "Sonaphex Sound";

/// CAF, with priming and padding in its packet table.
[[nodiscard]] std::unique_ptr<PacketFile> createCafFile(OutputFile& file);

/// The descriptor that MPEG-4 and CAF keep the decoder's configuration in.
[[nodiscard]] std::vector<std::uint8_t> elementaryStreamDescriptor(const AacStreamInfo& info);

} // namespace Platform
