// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "CommandLine/CommandLine.h"

namespace CommandLine {

/// Lists the devices that can be recorded from.
extern const Command devicesCommand;

} // namespace CommandLine
