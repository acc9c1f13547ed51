// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "CommandLine/CommandLine.h"

namespace CommandLine {
/// Prints or draws the outline of an audio file.
extern const Command waveformCommand;
} // namespace CommandLine
