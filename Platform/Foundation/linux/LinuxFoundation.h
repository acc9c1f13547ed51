// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Foundation/Bundle.h"
#include "Platform/Foundation/Clock.h"

#include <memory>

namespace Platform {

/// The system's clocks. hostTime() honours a HostTimeScope of the calling thread.
[[nodiscard]] std::unique_ptr<Clock> createClock();

/// The bundle of the running program: its resources lie beside it in a build tree, under share/sonaphex when installed.
[[nodiscard]] std::unique_ptr<Bundle> createBundle();
/// As above, for a program in another folder.
[[nodiscard]] std::unique_ptr<Bundle> createBundle(const QString& programFolder);

} // namespace Platform
