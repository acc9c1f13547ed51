// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Media/ExtAudioFile.h"

namespace Platform {

inline constexpr OSStatus kMediaInvalidPropertyError = -66563; ///< a format or channel map that does not fit
inline constexpr OSStatus kMediaInvalidStateError = -66567;    ///< the call came too late or too early

/// The status code for an error; noErr for none.
[[nodiscard]] OSStatus statusOf(const Error& error);

/// An error whose text is "<path>: <what>".
[[nodiscard]] Error makeError(Error::Kind kind, const QString& path, const QString& what, const QString& detail = {});

} // namespace Platform
