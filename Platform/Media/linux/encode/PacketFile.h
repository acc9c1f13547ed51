// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Media/linux/encode/OutputFile.h"

#include <cstdint>
#include <memory>
#include <span>
#include <vector>

namespace Platform {

/// Parameters of the AAC packets for a container.
struct AacStreamInfo {
    int sampleRate = 44100;
    int channels = 2;
    int framesPerPacket = 1024;
    int primingFrames = 1024; ///< frames at the beginning of the decoded stream that the encoder added
    int bitRate = 0;
    std::vector<std::uint8_t> config; ///< AudioSpecificConfig
};

/// A container of AAC packets. One thread.
class PacketFile {
public:
    virtual ~PacketFile() = default;
    /// False when readers treat a file without packets as damaged.
    [[nodiscard]] virtual bool mayBeEmpty() const { return true; }
    virtual bool begin(const AacStreamInfo& info) = 0;
    virtual bool add(std::span<const std::uint8_t> packet) = 0;
    /// @p validFrames: length without priming and padding, in frames.
    virtual void finish(std::int64_t validFrames) = 0;
};

/// MPEG-4. While the file grows it consists of fragments of about a second, each written at once, so that a file whose
/// process was killed still plays. finish() turns it into a plain file with its index at the end: the plain version is
/// made beside it and replaces it in one step. Without room for that, the index is appended behind the fragments, and
/// one write of a few bytes turns them into the content of one media box. On a full disk the fragments stay.
[[nodiscard]] std::unique_ptr<PacketFile> createMpeg4File(OutputFile& file);

/// The handler name that marks our MPEG-4 files: our encoder uses no noise substitution, so a packet always decodes to
/// the same samples, whatever was decoded before. ffmpeg keeps the name when it encodes the sound again, but not our
/// movie time scale, which is the sample rate: both together mark a file as ours.
inline constexpr const char* mpeg4HandlerName = "Sonaphex Sound";

/// CAF, with priming and padding in its packet table.
[[nodiscard]] std::unique_ptr<PacketFile> createCafFile(OutputFile& file);

/// The descriptor in which MPEG-4 and CAF store the decoder's configuration.
[[nodiscard]] std::vector<std::uint8_t> elementaryStreamDescriptor(const AacStreamInfo& info);

} // namespace Platform
