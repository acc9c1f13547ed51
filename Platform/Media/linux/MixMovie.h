// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Media/ExtAudioFile.h"

namespace Platform {

/// A movie with the audio of the file at @p path. The file is opened again when the movie is written.
Result<std::unique_ptr<Movie>> createMixMovie(const QString& path);

} // namespace Platform
