// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "CommandLine/CommandLine.h"

namespace CommandLine {

/// Records until a given time has passed or a signal ends it.
extern const Command recordCommand;

} // namespace CommandLine
