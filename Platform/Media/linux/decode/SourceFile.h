// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Media/linux/libav/MediaErrors.h"
#include "Platform/Media/linux/mpeg4/Mpeg4Boxes.h"

#include <optional>
#include <span>

namespace Platform {

/// A regular file for reading. Opening never blocks, whatever the path refers to. Reads from any thread.
class SourceFile final : public ByteSource {
public:
    SourceFile() = default;
    ~SourceFile() override;
    SourceFile(const SourceFile&) = delete;
    SourceFile& operator=(const SourceFile&) = delete;

    Result<> open(const QString& path);
    [[nodiscard]] std::int64_t size() const override;
    /// @return bytes read, 0 at the end, negative errno on failure.
    std::int64_t read(std::int64_t offset, std::span<std::uint8_t> out) const;
    [[nodiscard]] bool readAll(std::int64_t offset, std::span<std::uint8_t> out) const override;

private:
    int fd_ = -1;
};

/// Properties of a container that libavformat does not report exactly.
struct ContainerFacts {
    std::optional<std::int64_t> validFrames; ///< length without priming and padding
    std::int64_t primingFrames = 0;          ///< frames to skip where libavformat does not (CAF)
    std::int64_t editStart = 0;              ///< MPEG-4: where the only entry of the edit list begins, in frames
    std::int64_t descriptions = 0;           ///< MPEG-4: formats of the track's packets, normally 1
    bool ownEncoder = false;                 ///< written by this program
    bool fragmented = false;
};

/// Reads the properties of an MPEG-4 file's first audio track; @p rate: its sample rate.
[[nodiscard]] ContainerFacts readMpeg4Facts(const SourceFile& file, int rate);
[[nodiscard]] ContainerFacts readCafFacts(const SourceFile& file);
/// Describes a complete MPEG-4 file that this program wrote; nothing for any other file. libavformat would give the
/// same answer, but takes longer to load.
[[nodiscard]] std::optional<AudioFileInfo> readOwnRecording(const SourceFile& file);

} // namespace Platform
