// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Foundation/Result.h"

#include <cstdint>
#include <functional>
#include <memory>

#include <QString>

namespace Platform {

/// The encoded audio of a recording, or of several in a row, which can be copied without decoding and encoding it
/// again. One thread at a time. The files must not change meanwhile.
class EncodedAudio {
public:
    virtual ~EncodedAudio() = default;
    /// In Hz.
    [[nodiscard]] virtual int sampleRate() const = 0;
    /// Length without priming and padding.
    [[nodiscard]] virtual std::int64_t frames() const = 0;
    /// Copies frames @p first to @p end (not included) into an MPEG-4 file; an existing file is overwritten. The
    /// packets with these frames are copied as they are, after the packet before them, which the decoder needs. The
    /// edit list of the copy names the exact frames: decoded, they equal those of the source sample by sample. The
    /// range has at least 2048 frames: libavformat finds nothing in a shorter copy that begins inside a packet. @p
    /// progress receives a value from 0 to 1 and returns false to stop, which is an error of kind Cancelled. Blocks
    /// until the copy is on the disk.
    virtual Result<> copy(const QString& path, std::int64_t first, std::int64_t end,
                          const std::function<bool(double)>& progress) const = 0;
    /// Continues with the audio of @p next. False, and nothing changes, when @p next was not copied from the same
    /// recording from this end on: then its packets do not fit behind these.
    virtual bool append(const EncodedAudio& next) = 0;
};

/// Opens a finished recording of this program; of kind UnknownFormat for any other file. The pointer is never null.
Result<std::unique_ptr<EncodedAudio>> openEncodedAudio(const QString& path);

} // namespace Platform
