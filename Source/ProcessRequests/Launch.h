// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Foundation/RunningProgram.h"

/// What a launch of the window program does when another one may run. Main thread.
namespace Launch {

enum class Outcome {
    First,         ///< this process holds the lock now
    Raised,        ///< another process shows its window
    NobodyAnswers, ///< another process holds the lock, but does not answer
    NoPlace,       ///< there is no place for the lock; RunningProgram::lastError() says why
};

/// A program that starts may wait half a minute for the sound server before it answers.
inline constexpr int PatienceMs = 60000;

/// Takes the lock, or raises the window of the process that holds it. Waits for a process that has not finished its
/// own start, @p patienceMs at most; takes its place when it ends meanwhile. Blocks.
/// @param token what the launcher gave to this launch, see Platform::Activation; may be empty
[[nodiscard]] Outcome begin(Platform::RunningProgram& running, const QByteArray& token, int patienceMs = PatienceMs);

} // namespace Launch
