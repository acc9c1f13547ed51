// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "CommandLine/CommandLine.h"

namespace CommandLine {
/// Prints or writes the tags and the artwork of an MPEG-4 audio file.
extern const Command tagCommand;
} // namespace CommandLine
