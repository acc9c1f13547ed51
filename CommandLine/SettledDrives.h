// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Disc/DiscRecording.h"

#include <memory>
#include <vector>

namespace CommandLine {

/// Runs the event loop for a twentieth of a second.
void turnTheEventLoop();

/// The drives, after each has reported its disc. Runs the event loop for at most half a minute, or until one of the
/// signals of Interrupt arrives.
[[nodiscard]] std::vector<std::shared_ptr<Platform::DRDevice>> settledDrives();

} // namespace CommandLine
