// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Audio/AudioTypes.h"
#include "Platform/Foundation/Dictionary.h"

#include <cstdint>

namespace Platform {
struct AudioFileInfo;
}

/// Reads the properties of an audio file without decoding it. @p path may contain any character. @return noErr or an
/// error code; @p audioFile is valid only with noErr. Any thread.
[[nodiscard]] OSStatus CreateAudioFileFromPath(const QString& path, Platform::AudioFileInfo& audioFile);

/// Whole seconds of an audio file, truncated; 0 when it cannot be read. Any thread.
[[nodiscard]] std::uint64_t CAGetLengthOfAudioFile(const QString& path);

/// Creates entries for the burn window's track list (see TrackEntry). Any thread.
namespace CDTextControl {

/// Estimated megabytes per second of audio on the disc. CD audio takes 0.1764; the rest is a safety margin.
inline constexpr float kMegabytesPerSecond = 0.18F;

/// The entry of a file, ticked; empty for a folder, an unreadable file and a file of less than two whole seconds.
[[nodiscard]] Dictionary setAudioInfoForDic(const QString& path);

/// The entry of a library recording, ticked. Its length is the stored one; the file is not opened. Empty for a
/// recording of less than two whole seconds and for one without a stored length.
[[nodiscard]] Dictionary addRecordAudioInfoForDic(const Dictionary& record);

} // namespace CDTextControl
