// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "CommandLine/CommandLine.h"

namespace CommandLine {
/// Copies a range of an audio file into a new file of another type.
extern const Command convertCommand;
} // namespace CommandLine
