// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "CommandLine/CommandLine.h"

namespace CommandLine {
/// Reports on, installs and removes the computer-audio driver.
extern const Command driverCommand;
} // namespace CommandLine
