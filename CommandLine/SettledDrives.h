// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Disc/DiscRecording.h"

#include <memory>
#include <vector>

namespace CommandLine {

/// Lets events come for a twentieth of a second.
void turnTheEventLoop();

/// The drives, after each has said what is in it. Turns the event loop for half a minute at most, or until one of the
/// signals of Interrupt comes.
[[nodiscard]] std::vector<std::shared_ptr<Platform::DRDevice>> settledDrives();

} // namespace CommandLine
