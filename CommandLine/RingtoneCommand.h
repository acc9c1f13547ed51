// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "CommandLine/CommandLine.h"

namespace CommandLine {
/// Makes a ringtone from a range of a recording, like the ringtone maker's button.
extern const Command ringtoneCommand;
} // namespace CommandLine
