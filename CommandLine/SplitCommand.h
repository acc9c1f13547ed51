// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "CommandLine/CommandLine.h"

namespace CommandLine {

/// Cuts a recording into several at its silences.
extern const Command splitCommand;

} // namespace CommandLine
