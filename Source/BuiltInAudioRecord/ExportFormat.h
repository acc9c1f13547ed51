// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Audio/AudioTypes.h"

/// The data formats in which files are written, 44100 Hz and two channels: WAVE of 32-bit integers, and MPEG-4 AAC.
[[nodiscard]] AudioStreamBasicDescription waveExportFormat();
[[nodiscard]] AudioStreamBasicDescription aacExportFormat();
