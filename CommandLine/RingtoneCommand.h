// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "CommandLine/CommandLine.h"

namespace CommandLine {
/// Makes a ringtone of a stretch of a recording, as the ringtone maker's button does.
extern const Command ringtoneCommand;
} // namespace CommandLine
