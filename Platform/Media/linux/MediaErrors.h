// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Media/ExtAudioFile.h"

namespace Platform {

inline constexpr OSStatus kMediaInvalidPropertyError = -66563; ///< a format or map that does not fit
inline constexpr OSStatus kMediaInvalidStateError = -66567;    ///< too late or too early for this call

/// The status that stands for an error of this kind; noErr for none.
[[nodiscard]] OSStatus statusOf(const MediaError& error);

/// What @p code of errno means for the file at @p path: "<path>: No space left on device".
[[nodiscard]] MediaError errnoError(int code, const QString& path);

[[nodiscard]] MediaError makeError(MediaError::Kind kind, const QString& path, const QString& what);

} // namespace Platform
