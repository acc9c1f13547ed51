// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "CommandLine/CommandLine.h"

namespace CommandLine {
/// Lists the two collections, or removes entries and their files.
extern const Command libraryCommand;
} // namespace CommandLine
