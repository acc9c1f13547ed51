// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Foundation/RunningProgram.h"

/// Starts the window program while another instance may run. Main thread.
namespace Launch {

enum class Outcome {
    First,         ///< this process holds the lock
    Raised,        ///< another process shows its window
    NobodyAnswers, ///< another process holds the lock, but does not answer
    NoPlace,       ///< the lock file cannot be created; RunningProgram::lastError() holds the reason
};

/// A starting program may wait half a minute for the sound server before it answers.
inline constexpr int PatienceMs = 60000;

/// Takes the lock, or raises the window of the process that holds it. Waits at most @p patienceMs for a process that is
/// still starting; takes the lock when that process ends meanwhile. Blocks.
/// @param token the launcher's token for this launch, see Platform::Activation; may be empty
[[nodiscard]] Outcome begin(Platform::RunningProgram& running, const QByteArray& token, int patienceMs = PatienceMs);

} // namespace Launch
